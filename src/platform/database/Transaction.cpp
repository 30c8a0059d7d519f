#include "Transaction.h"

#include "Connection.h"
#include "Database.h"

#include <sqlite3.h>

namespace platform::database {

Transaction::Transaction(const Database &database) : m_connection(database.open()) {
    runScript(m_connection->handle(), "BEGIN EXCLUSIVE");
}

Transaction::~Transaction() {
    if (m_open && m_connection->isOpen()) {
        sqlite3_exec(m_connection->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Transaction::commit() {
    runScript(m_connection->handle(), "COMMIT");
    m_open = false;
}

} // namespace platform::database
