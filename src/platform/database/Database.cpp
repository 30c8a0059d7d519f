#include "Database.h"

#include "Connection.h"
#include "Cursor.h"
#include "DatabaseError.h"
#include "KeyDerivation.h"
#include "Query.h"
#include "Statement.h"

#include <QFile>

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
    return Database(std::make_shared<Connection>(
        name, Connection::Options{exclusive, readOnly, passphraseOf(connect), collation}));
}

void PrepareKey(const QString &name, const QString &connect) {
    QFile file(name);
    const QByteArray passphrase = passphraseOf(connect);
    const QByteArray salt = file.open(QIODevice::ReadOnly) ? file.read(kSaltSize) : QByteArray();
    if (salt.size() == kSaltSize && !passphrase.isEmpty()) {
        KeyCache::instance().prepare(passphrase, salt);
    }
}

} // namespace platform::database
