#pragma once

#include <memory>

namespace platform::database {

class Connection;
class Database;

/// Statements of one database that take effect together: with commit() all are on disk, without it none is. There is
/// one at a time.
class Transaction {
public:
    /// @throws DatabaseError with the engine's text; where one has begun already, too
    explicit Transaction(const Database &database);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    /// Rolls back unless commit() succeeded or the database has been closed, which does the same. Never throws.
    ~Transaction();

    /// @throws DatabaseError with the engine's text
    void commit();

private:
    std::shared_ptr<Connection> m_connection;
    bool m_open = true;
};

} // namespace platform::database
