#include "Statement.h"

#include "Connection.h"
#include "DatabaseError.h"

#include <QByteArrayView>

#include <sqlite3.h>

namespace platform::database {

void Statement::Finalizer::operator()(sqlite3_stmt *statement) const {
    if (connection->isOpen()) {
        sqlite3_finalize(statement);
    }
}

Statement::Statement(const std::shared_ptr<Connection> &connection, const QByteArray &sql)
    : m_statement(nullptr, Finalizer{connection}) {
    sqlite3_stmt *statement = nullptr;
    const char *rest = nullptr;
    const int result =
        sqlite3_prepare_v2(connection->handle(), sql.constData(), int(sql.size()) + 1, &statement, &rest);
    if (result != SQLITE_OK) {
        connection->fail();
    }
    m_statement.reset(statement);
    if (!statement || !QByteArrayView(rest).trimmed().isEmpty()) {
        throw DatabaseError("Une seule instruction SQL est attendue.");
    }
}

sqlite3_stmt *Statement::handle() const {
    m_statement.get_deleter().connection->handle();
    return m_statement.get();
}

void Statement::check(int result) const {
    if (result != SQLITE_OK) {
        m_statement.get_deleter().connection->fail();
    }
}

void Statement::bind(int parameter, qint64 number) {
    check(sqlite3_bind_int64(handle(), parameter, number));
}

void Statement::bind(int parameter, const QVariant &value) {
    switch (value.isNull() ? QMetaType::UnknownType : value.typeId()) {
    case QMetaType::UnknownType:
        check(sqlite3_bind_null(handle(), parameter));
        break;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        bind(parameter, value.toLongLong());
        break;
    case QMetaType::Double:
        check(sqlite3_bind_double(handle(), parameter, value.toDouble()));
        break;
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        check(sqlite3_bind_blob64(handle(), parameter, bytes.constData(), quint64(bytes.size()),
                                  SQLITE_TRANSIENT));
        break;
    }
    default: {
        const QByteArray text = value.toString().toUtf8();
        check(sqlite3_bind_text64(handle(), parameter, text.constData(), quint64(text.size()),
                                  SQLITE_TRANSIENT, SQLITE_UTF8));
    }
    }
}

bool Statement::step() {
    const int result = sqlite3_step(handle());
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        m_statement.get_deleter().connection->fail();
    }
    return result == SQLITE_ROW;
}

void Statement::reset() {
    sqlite3_reset(handle());
}

int Statement::columnCount() const {
    return sqlite3_column_count(handle());
}

const char *Statement::columnName(int column) const {
    return sqlite3_column_name(handle(), column);
}

} // namespace platform::database
