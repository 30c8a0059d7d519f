#pragma once

#include <QByteArray>
#include <QVariant>

#include <memory>

struct sqlite3_stmt;

namespace platform::database {

class Connection;

/// A prepared statement. When its connection is closed first, it is finalised with it and every use throws.
class Statement {
public:
    /// @throws DatabaseError with the engine's text; also when more than one statement is given
    Statement(const std::shared_ptr<Connection> &connection, const QByteArray &sql);

    /// Parameters count from 1.
    void bind(int parameter, qint64 number);
    void bind(int parameter, const QVariant &value);

    /// True when it stands on a row, false at the end.
    bool step();
    void reset();

    int columnCount() const;
    const char *columnName(int column) const;

    /// For the sqlite3_column functions.
    sqlite3_stmt *handle() const;

private:
    struct Finalizer {
        std::shared_ptr<Connection> connection;
        void operator()(sqlite3_stmt *statement) const;
    };

    void check(int result) const;

    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

} // namespace platform::database
