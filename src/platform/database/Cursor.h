#pragma once

#include "Query.h"
#include "Recordset.h"
#include "RowCache.h"
#include "Statement.h"

#include <map>
#include <optional>

namespace platform::database {

/// What stands behind a Recordset and its fields.
class Cursor {
public:
    Cursor(const std::shared_ptr<Connection> &connection, const QString &sql);

    /// These read the rows where that has waited.
    qsizetype count() {
        requireRows();
        return m_rows.count();
    }

    bool atEnd() {
        requireRows();
        return m_row >= m_rows.count();
    }

    void moveNext();

    /// The place of a column. @throws DatabaseError when there is none
    int column(int position) const;
    int column(QStringView name) const;
    QVariant value(int column);
    QString text(int column);
    /// Valid until the next call or change of the cursor.
    QByteArrayView utf8(int column);
    qint64 number(int column);
    bool isNull(int column);
    void setValue(int column, const QVariant &value);

    void addNew();
    void edit();
    void update();
    void remove();

    RowMark lastModified() const { return RowMark{m_lastModified}; }

    void setBookmark(RowMark mark);

private:
    enum class Change { None, Edit, Add };

    void requireRows() {
        if (!m_rowsRead) {
            readRows();
        }
    }

    void readRows();
    void readTable();
    void readSnapshot();
    int keptColumn(const QByteArray &name) const;
    bool hasCollation(const QByteArray &name) const;
    void requireRow();
    void requireTable() const;
    void requireChange() const;
    void goTo(qint64 rowid);
    void dropRow();
    void dropChange();
    void insertRow();
    void updateRow();

    /// True for a column of the current row that lies in the cache as it is stored.
    bool isCached(int column) const { return m_change == Change::None && column < m_rows.columns(); }

    bool readRow(qint64 rowid);
    bool isRowNumber(int column) const;
    QByteArray columnName(int column) const;

    std::shared_ptr<Connection> m_connection;
    /// Nothing for a query that can only be read.
    std::optional<TableQuery> m_table;
    /// Gives one row of the table by its number, and the names of the columns; for any other query, itself.
    Statement m_source;
    bool m_sourceOnRow = false;
    RowCache m_rows;
    bool m_rowsRead = false;
    qsizetype m_row = 0;
    /// The row to stand on once the rows are read, instead of the first.
    std::optional<qint64> m_waitingMark;
    /// The current row was deleted: m_row is the one after it already.
    bool m_deleted = false;
    Change m_change = Change::None;
    std::map<int, QVariant> m_changes;
    QByteArray m_utf8; // what utf8 gave, where it had to be made
    qint64 m_lastModified = 0;
};

} // namespace platform::database
