#pragma once

#include "Collation.h"
#include "DatabaseError.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <string_view>

struct sqlite3;

namespace platform::database {

struct SqliteCloser {
    void operator()(sqlite3 *db) const;
};

using SqliteHandle = std::unique_ptr<sqlite3, SqliteCloser>;

/// The passphrase in a connect string ";pwd =passphrase"; empty when it has none.
QByteArray passphraseOf(const QString &connect);

/// The failure of the last call.
DatabaseError engineError(sqlite3 *db);

/// Opens a file without reading it.
/// @param flags of sqlite3_open_v2
/// @throws DatabaseError of the engine
SqliteHandle openFile(const QString &name, int flags);

/// Gives a connection its raw key and the page size, before anything else is asked of it.
/// @param salt the first bytes of the file
void useKey(sqlite3 *db, const QByteArray &passphrase, const QByteArray &salt);

/// Runs statements whose rows do not matter.
/// @throws DatabaseError of the engine
void runScript(sqlite3 *db, const char *sql);

/// An open file, shared by a Database and the cursors made from it, which end with it.
class Connection {
public:
    struct Options {
        bool exclusive;
        bool readOnly;
        QByteArray passphrase;
        Collation collation;
    };

    Connection(const QString &name, const Options &options);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    ~Connection();

    bool isOpen() const { return m_db != nullptr; }

    void close();

    /// @throws DatabaseError when closed
    sqlite3 *handle() const {
        if (!m_db) {
            failClosed();
        }
        return m_db.get();
    }

    const Collation &collation() const { return m_collation; }

    /// Throws engineError().
    [[noreturn]] void fail() const;

private:
    [[noreturn]] static void failClosed();

    SqliteHandle m_db;
    Collation m_collation;
    bool m_journalled; ///< the lasting lock keeps the journal, which close() removes
};

} // namespace platform::database
