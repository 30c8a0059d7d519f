#pragma once

#include "Collation.h"

#include <QByteArray>
#include <QList>
#include <QVariant>

struct sqlite3_stmt;

namespace platform::database {

/// The value of a column of the row that a statement stands on.
QVariant columnValue(sqlite3_stmt *statement, int column);

/// The rows of a cursor: the row number and the first columns of each. Texts lie together in one buffer,
/// since thousands of rows are read for a list. QList and QByteArray grow in place: a std::vector would move to
/// fresh memory each time, and touching that costs more than filling it.
class RowCache {
public:
    explicit RowCache(int columns) : m_columns(columns) {}

    qsizetype count() const { return m_rows.size(); }

    int columns() const { return m_columns; }

    qint64 rowid(qsizetype row) const { return m_rows[row].rowid; }

    QVariant value(qsizetype row, int column) const;
    /// The value as text; empty for Null.
    QString text(qsizetype row, int column) const;
    /// The value as a number; 0 for Null and for a text that is no number.
    qint64 number(qsizetype row, int column) const;
    bool isNull(qsizetype row, int column) const;
    bool isText(qsizetype row, int column) const;

    /// The bytes of a text, until the cache changes.
    QByteArrayView utf8(qsizetype row, int column) const { return bytesOf(cell(row, column)); }

    /// The place of a row number, or -1.
    qsizetype find(qint64 rowid) const;

    /// Appends the row that a statement stands on.
    /// @param firstColumn the first of its columns that are kept
    void append(qint64 rowid, sqlite3_stmt *statement, int firstColumn = 0);
    /// Reads a row again.
    void replace(qsizetype row, qint64 rowid, sqlite3_stmt *statement);
    void remove(qsizetype row);

    class TextOrder;

private:
    struct Cell {
        int type;
        int size;

        union {
            qint64 number;
            double real;
            qint64 offset;
        };
    };

    struct Row {
        qint64 rowid;
        qsizetype firstCell;
    };

    const Cell &cell(qsizetype row, int column) const { return m_cells[m_rows[row].firstCell + column]; }

    QByteArrayView bytesOf(const Cell &cell) const { return {m_texts.constData() + cell.offset, cell.size}; }

    Row read(qint64 rowid, sqlite3_stmt *statement, int firstColumn);
    Cell store(sqlite3_stmt *statement, int column);
    qint64 keep(std::string_view bytes);

    int m_columns;
    QList<Row> m_rows;
    QList<Cell> m_cells;
    QByteArray m_texts; // of which the first bytes are used
    qsizetype m_used = 0;
};

/// The sort keys of the rows of a cache, gathered beside them: several times as fast as the engine's sorter, which calls
/// the collation for each comparison.
class RowCache::TextOrder {
public:
    TextOrder(RowCache &cache, const Collation &collation) : m_cache(cache), m_collation(collation) {}

    /// The text in a column of a statement for the next row of the cache; Null comes before every text.
    void append(sqlite3_stmt *statement, int column);
    /// Sorts the rows; rows of equal texts by row number, in the same direction.
    void apply(bool descending);

private:
    RowCache &m_cache;
    const Collation &m_collation;
    QByteArray m_keys; // one behind the other
    QList<qsizetype> m_ends;
};

} // namespace platform::database
