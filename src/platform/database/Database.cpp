#include "Database.h"

#include "Connection.h"
#include "Cursor.h"
#include "DatabaseError.h"
#include "Query.h"
#include "ReadAhead.h"
#include "Statement.h"

#include <sqlite3.h>

namespace platform::database {

Database::Database(std::shared_ptr<Connection> connection) : m_connection(std::move(connection)) {}

Database::Database(Database &&) noexcept = default;

Database &Database::operator=(Database &&other) noexcept {
    Close();
    m_connection = std::move(other.m_connection);
    return *this;
}

Database::~Database() {
    Close();
}

Recordset Database::OpenRecordset(const QString &sql) {
    return Recordset(std::make_unique<Cursor>(open(), sql));
}

void Database::Execute(const QString &sql) {
    Statement(open(), withoutDeleteStar(sql).toUtf8()).step();
}

int Database::UserVersion() {
    return int(OpenRecordset(QStringLiteral("PRAGMA user_version")).Fields(0).Number());
}

void Database::SetUserVersion(int version) {
    Execute(u"PRAGMA user_version = " + QString::number(version));
}

void Database::Close() {
    if (m_connection) {
        m_connection->close();
    }
    m_connection.reset();
}

const std::shared_ptr<Connection> &Database::open() const {
    if (!m_connection) {
        throw DatabaseError("La base de données est fermée.");
    }
    return m_connection;
}

Database OpenDatabase(const QString &name, bool exclusive, bool readOnly, const QString &connect,
                      const Collation &collation) {
    ReadAhead::instance().finish();
    return Database(std::make_shared<Connection>(
        name, Connection::Options{exclusive, readOnly, passphraseOf(connect), collation}));
}

void StartReading(const QString &name, const QString &connect, const Collation &collation,
                  const QStringList &queries) {
    constexpr bool kExclusive = false;
    constexpr bool kReadOnly = true;
    ReadAhead::instance().start(name, {kExclusive, kReadOnly, passphraseOf(connect), collation}, queries);
}

} // namespace platform::database
