#pragma once

#include "Collation.h"
#include "Recordset.h"

#include <QString>

#include <memory>

namespace platform::database {

class Connection;

/// An open database file. It closes itself at the end of its scope, and with it every Recordset made from it.
class Database {
public:
    Database(Database &&) noexcept;
    Database &operator=(Database &&) noexcept;
    ~Database();

    /// A cursor on the rows of a query, standing on the first row if there is one.
    ///
    /// "SELECT * From table [where ...] [order by column [asc|desc]]" can be updated; rows that an ascending
    /// order leaves equal come oldest first, those that a descending one leaves equal newest first. Any other
    /// query gives a picture of its rows that can only be read.
    /// @throws DatabaseError with the engine's text
    Recordset OpenRecordset(const QString &sql);

    /// Runs one statement that gives no rows, and commits it outside a Transaction; "DELETE * FROM table ..." is
    /// understood.
    /// @throws DatabaseError with the engine's text
    void Execute(const QString &sql);

    /// A number of the file for its user, 0 in a new one; the engine gives it no meaning.
    int UserVersion();
    /// Takes effect at once, or with the Transaction it stands in.
    void SetUserVersion(int version);

    /// Ends the connection before the scope does. A second call does nothing.
    void Close();

private:
    friend class BulkInsert;
    friend class Transaction;
    friend Database OpenDatabase(const QString &, bool, bool, const QString &, const Collation &);
    explicit Database(std::shared_ptr<Connection> connection);

    const std::shared_ptr<Connection> &open() const;

    std::shared_ptr<Connection> m_connection;
};

/// Opens an existing file; it is never created.
///
/// @param name      path of the file
/// @param exclusive no other connection, in this process or another, can open the file until this one is
///                  closed; when one is open already this call fails at once
/// @param readOnly  every change fails
/// @param connect   ";pwd =passphrase": the passphrase of a SQLCipher 3 file with pages of 4,096 bytes;
///                  without `pwd` the file is a plain one
/// @param collation takes the place of the built-in NOCASE, so it rules the columns declared COLLATE NOCASE;
///                  an index on such a column must be declared COLLATE BINARY, or a program without this
///                  collation would corrupt it
/// @throws DatabaseError with the engine's text, at once for a missing, locked, foreign or damaged file and
///         for a wrong passphrase; the file is untouched then
///
/// While a database is open the process must not open its file by other means: closing any descriptor of a
/// file drops the locks that the process holds on it (POSIX).
Database OpenDatabase(const QString &name, bool exclusive, bool readOnly, const QString &connect,
                      const Collation &collation = kBinaryCollation);

/// Begins to derive the key of a file on another thread, so that the first OpenDatabase need not wait for it. Never
/// fails: a file that cannot be read is left to OpenDatabase, and one that is replaced meanwhile gets a key of its own.
/// Not while the file is open: this reads it by other means.
void PrepareKey(const QString &name, const QString &connect);

} // namespace platform::database
