#include "Cursor.h"

#include "Connection.h"
#include "DatabaseError.h"

#include <QAnyStringView>

#include <sqlite3.h>

#include <algorithm>

namespace platform::database {

namespace {

/// How many columns of each row of a table are read at once.
constexpr int kListColumns = 2;

QByteArray sourceSql(const std::optional<TableQuery> &table, const QString &sql) {
    return table ? "SELECT * FROM " + quotedName(table->table) + " WHERE rowid = ?" : sql.toUtf8();
}

bool isWhole(const TableQuery &table) {
    return table.condition.isEmpty() && table.orderColumn.isEmpty();
}

} // namespace

Cursor::Cursor(const std::shared_ptr<Connection> &connection, const QString &sql)
    : m_connection(connection),
      m_table(parseTableQuery(sql)),
      m_source(connection, sourceSql(m_table, sql)),
      m_rows(m_table ? std::min(kListColumns, m_source.columnCount()) : m_source.columnCount()) {
    if (!m_table || !isWhole(*m_table)) {
        readRows();
    }
}

/// A whole table in its own order waits until its rows are asked for: large ones are opened only to be added to.
void Cursor::readRows() {
    m_rows = RowCache(m_rows.columns()); // a reading that failed may have left some
    if (m_table) {
        readTable();
    } else {
        readSnapshot();
    }
    if (m_waitingMark) {
        goTo(*m_waitingMark);
        m_waitingMark.reset();
    }
    m_rowsRead = true;
}

void Cursor::readSnapshot() {
    while (m_source.step()) {
        m_rows.append(m_rows.count(), m_source.handle());
    }
}

void Cursor::readTable() {
    QByteArray sql = "SELECT rowid";
    for (int column = 0; column < m_rows.columns(); ++column) {
        sql += ", " + columnName(column);
    }
    const QByteArray order = quotedName(m_table->orderColumn);
    const bool textOrder = !m_table->orderColumn.isEmpty() && hasCollation(m_table->orderColumn);
    if (textOrder) {
        sql += ", " + order;
    }
    sql += " FROM " + quotedName(m_table->table);
    if (!m_table->condition.isEmpty()) {
        sql += " WHERE (" + m_table->condition + ")";
    }
    if (!textOrder) {
        const QByteArray direction = m_table->descending ? " DESC" : " ASC";
        sql += " ORDER BY ";
        if (!m_table->orderColumn.isEmpty()) {
            sql += order + direction + ", ";
        }
        sql += "rowid" + direction;
    }

    Statement rows(m_connection, sql);
    RowCache::TextOrder texts(m_rows, m_connection->collation());
    sqlite3_stmt *row = rows.handle();
    while (rows.step()) {
        m_rows.append(sqlite3_column_int64(row, 0), row, 1);
        if (textOrder) {
            texts.append(row, 1 + m_rows.columns());
        }
    }
    if (textOrder) {
        texts.apply(m_table->descending);
    }
}

/// True for a column declared COLLATE NOCASE. The engine would take an unknown name in quotes for a text, so
/// this is also the check that the column exists.
bool Cursor::hasCollation(const QByteArray &name) const {
    const char *collation = nullptr;
    if (sqlite3_table_column_metadata(m_connection->handle(), nullptr, m_table->table.constData(),
                                      name.constData(), nullptr, &collation, nullptr, nullptr,
                                      nullptr) != SQLITE_OK) {
        m_connection->fail();
    }
    return qstricmp(collation, "NOCASE") == 0;
}

void Cursor::moveNext() {
    dropChange();
    if (!m_deleted) {
        requireRow();
        ++m_row;
    }
    m_deleted = false;
    dropRow();
}

void Cursor::requireRow() {
    if (m_deleted) {
        throw DatabaseError("L'enregistrement en cours a été supprimé.");
    }
    if (atEnd()) {
        throw DatabaseError("Aucun enregistrement en cours.");
    }
}

void Cursor::requireTable() const {
    if (!m_table) {
        throw DatabaseError("Les lignes de cette requête ne peuvent pas être modifiées.");
    }
}

/// Puts m_source on a row of the table; false when it is gone.
bool Cursor::readRow(qint64 rowid) {
    dropRow();
    m_source.bind(1, rowid);
    m_sourceOnRow = m_source.step();
    return m_sourceOnRow;
}

void Cursor::dropRow() {
    if (m_table && m_sourceOnRow) {
        m_source.reset();
    }
    m_sourceOnRow = false;
}

void Cursor::dropChange() {
    if (m_change != Change::None) {
        m_change = Change::None;
        m_changes.clear();
    }
}

int Cursor::column(int position) const {
    if (position < 0 || position >= m_source.columnCount()) {
        throw DatabaseError("Élément non trouvé dans cette collection.");
    }
    return position;
}

int Cursor::column(QStringView name) const {
    for (int position = 0; position < m_source.columnCount(); ++position) {
        const QUtf8StringView candidate(m_source.columnName(position));
        if (QAnyStringView::compare(candidate, name, Qt::CaseInsensitive) == 0) {
            return position;
        }
    }
    throw DatabaseError(u"Élément non trouvé dans cette collection : " + name.toString());
}

QVariant Cursor::value(int column) {
    if (const auto change = m_changes.find(column); change != m_changes.end()) {
        return change->second;
    }
    if (m_change == Change::Add) {
        return {};
    }
    requireRow();
    if (column < m_rows.columns()) {
        return m_rows.value(m_row, column);
    }
    if (!m_sourceOnRow && !readRow(m_rows.rowid(m_row))) {
        throw DatabaseError("L'enregistrement en cours a été supprimé.");
    }
    return columnValue(m_source.handle(), column);
}

QString Cursor::text(int column) {
    if (!isCached(column)) {
        return value(column).toString();
    }
    requireRow();
    return m_rows.text(m_row, column);
}

QByteArrayView Cursor::utf8(int column) {
    if (isCached(column)) {
        requireRow();
        if (m_rows.isText(m_row, column)) {
            return m_rows.utf8(m_row, column);
        }
    }
    m_utf8 = text(column).toUtf8();
    return m_utf8;
}

bool Cursor::isNull(int column) {
    if (!isCached(column)) {
        return value(column).isNull();
    }
    requireRow();
    return m_rows.isNull(m_row, column);
}

qint64 Cursor::number(int column) {
    if (!isCached(column)) {
        return value(column).toLongLong();
    }
    requireRow();
    return m_rows.number(m_row, column);
}

void Cursor::setValue(int column, const QVariant &value) {
    if (m_change == Change::None) {
        throw DatabaseError("Aucune modification de l'enregistrement n'a été commencée.");
    }
    m_changes[column] = value;
}

void Cursor::addNew() {
    requireTable();
    dropChange();
    m_change = Change::Add;
}

void Cursor::edit() {
    requireTable();
    requireRow();
    dropChange();
    m_change = Change::Edit;
}

void Cursor::update() {
    dropRow();
    if (m_change == Change::None) {
        throw DatabaseError("Aucune modification de l'enregistrement n'a été commencée.");
    }
    if (m_change == Change::Add) {
        insertRow();
    } else {
        updateRow();
    }
    dropChange();
}

QByteArray Cursor::columnName(int column) const {
    return quotedName(m_source.columnName(column));
}

void Cursor::insertRow() {
    QByteArray names;
    QByteArray marks;
    for (const auto &[column, value] : m_changes) {
        names += (names.isEmpty() ? "" : ", ") + columnName(column);
        marks += marks.isEmpty() ? "?" : ", ?";
    }
    const QByteArray values =
        names.isEmpty() ? QByteArray("DEFAULT VALUES") : "(" + names + ") VALUES (" + marks + ")";
    Statement insert(m_connection, "INSERT INTO " + quotedName(m_table->table) + " " + values);
    int parameter = 0;
    for (const auto &[column, value] : m_changes) {
        insert.bind(++parameter, value);
    }
    insert.step();

    m_lastModified = sqlite3_last_insert_rowid(m_connection->handle());
    if (m_rowsRead && readRow(m_lastModified)) {
        m_rows.append(m_lastModified, m_source.handle());
    }
    dropRow();
}

void Cursor::updateRow() {
    const qint64 rowid = m_rows.rowid(m_row);
    // The callers write the key of the row again with each change. Setting it would rewrite the row's place
    // in every index.
    std::erase_if(m_changes, [this, rowid](const auto &change) {
        return change.second.toLongLong() == rowid && isRowNumber(change.first);
    });
    m_lastModified = rowid;
    if (m_changes.empty()) {
        return;
    }

    QByteArray assignments;
    for (const auto &[column, value] : m_changes) {
        assignments += (assignments.isEmpty() ? "" : ", ") + columnName(column) + " = ?";
        if (isRowNumber(column)) {
            m_lastModified = value.toLongLong();
        }
    }
    Statement update(m_connection,
                     "UPDATE " + quotedName(m_table->table) + " SET " + assignments + " WHERE rowid = ?");
    int parameter = 0;
    for (const auto &[column, value] : m_changes) {
        update.bind(++parameter, value);
    }
    update.bind(++parameter, rowid);
    update.step();
    requireChange();

    if (readRow(m_lastModified)) {
        m_rows.replace(m_row, m_lastModified, m_source.handle());
    }
}

/// Fails when the statement just run found its row gone.
void Cursor::requireChange() const {
    if (sqlite3_changes(m_connection->handle()) == 0) {
        throw DatabaseError("L'enregistrement en cours a été supprimé.");
    }
}

/// True for a column declared INTEGER PRIMARY KEY: its value is the number of the row.
bool Cursor::isRowNumber(int column) const {
    const char *type = nullptr;
    int key = 0;
    sqlite3_table_column_metadata(m_connection->handle(), nullptr, m_table->table.constData(),
                                  m_source.columnName(column), &type, nullptr, nullptr, &key, nullptr);
    return key != 0 && type && qstricmp(type, "INTEGER") == 0;
}

void Cursor::remove() {
    requireTable();
    requireRow();
    dropChange();
    dropRow();
    Statement statement(m_connection, "DELETE FROM " + quotedName(m_table->table) + " WHERE rowid = ?");
    statement.bind(1, m_rows.rowid(m_row));
    statement.step();
    requireChange();
    m_rows.remove(m_row);
    m_deleted = true;
}

void Cursor::setBookmark(RowMark mark) {
    if (m_rowsRead) {
        goTo(qint64(mark));
    } else {
        m_waitingMark = qint64(mark);
    }
    dropChange();
    dropRow();
    m_deleted = false;
}

void Cursor::goTo(qint64 rowid) {
    const qsizetype row = m_rows.find(rowid);
    if (row < 0) {
        throw DatabaseError("Cet enregistrement ne fait pas partie de la requête.");
    }
    m_row = row;
}

} // namespace platform::database
