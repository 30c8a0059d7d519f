#include "BulkInsert.h"

#include "Database.h"
#include "DatabaseError.h"
#include "Query.h"
#include "Statement.h"

namespace platform::database {

BulkInsert::BulkInsert(const Database &database) : m_transaction(database), m_connection(database.open()) {}

BulkInsert::~BulkInsert() = default;

void BulkInsert::into(const QString &table, const QStringList &columns) {
    QByteArrayList names;
    for (const QString &column : columns) {
        names.append(quotedName(column.toUtf8()));
    }
    const QByteArray marks = QByteArrayList(columns.size(), "?").join(", ");
    m_columns = columns.size();
    m_insert = std::make_unique<Statement>(m_connection, "INSERT INTO " + quotedName(table.toUtf8()) + " (" +
                                                             names.join(", ") + ") VALUES (" + marks + ")");
}

void BulkInsert::row(const QVariantList &values) {
    if (!m_insert || values.size() != m_columns) {
        throw DatabaseError("Les valeurs ne correspondent pas aux colonnes.");
    }
    for (int i = 0; i < values.size(); ++i) {
        m_insert->bind(i + 1, values[i]);
    }
    m_insert->step();
    m_insert->reset();
}

void BulkInsert::commit() {
    m_insert.reset();
    m_transaction.commit();
}

} // namespace platform::database
