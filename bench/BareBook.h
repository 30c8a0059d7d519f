#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

struct CloseConnection {
    void operator()(sqlite3 *connection) const;
};

struct FinalizeStatement {
    void operator()(sqlite3_stmt *statement) const;
};

using Connection = std::unique_ptr<sqlite3, CloseConnection>;
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A book as the C interface opens it, for the bare side of the comparisons. The key is derived once.
class BareBook {
public:
    /// @throws std::runtime_error when the file cannot be read
    explicit BareBook(const QString &path);

    /// A connection with its key, not yet read from. @throws std::runtime_error
    Connection open() const;

private:
    QByteArray m_path;
    QByteArray m_rawKey; // as the engine takes it: x'<key><salt>'
};

/// @throws std::runtime_error with the engine's text, as the two below
Statement prepare(sqlite3 *connection, const char *sql);
/// False after the last row.
bool step(const Statement &statement);
void execute(sqlite3 *connection, const char *sql);

/// Gives NOCASE, which the text columns are declared with, the order of the program.
void useFrenchOrder(sqlite3 *connection);

} // namespace bench
