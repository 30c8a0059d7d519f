#pragma once

#include "Transaction.h"

#include <QStringList>
#include <QVariant>

#include <memory>

namespace platform::database {

class Statement;

/// Appends many rows to the tables of a database in one transaction: with commit() all are on disk, without it
/// none is there. Meanwhile nothing else may be written through the database, which must outlive this object.
class BulkInsert {
public:
    /// @throws DatabaseError with the engine's text, as the others do
    explicit BulkInsert(const Database &database);
    BulkInsert(const BulkInsert &) = delete;
    BulkInsert &operator=(const BulkInsert &) = delete;
    ~BulkInsert();

    /// The rows that follow go into these columns of this table; its other columns become Null.
    void into(const QString &table, const QStringList &columns);

    /// Appends a row to the table named last.
    /// @param values one for each column; an invalid QVariant writes Null
    void row(const QVariantList &values);

    /// Ends the transaction. Nothing can be appended after it.
    void commit();

private:
    Transaction m_transaction;
    std::shared_ptr<Connection> m_connection;
    std::unique_ptr<Statement> m_insert;
    qsizetype m_columns = 0;
};

} // namespace platform::database
