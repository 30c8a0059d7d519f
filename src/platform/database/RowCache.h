#pragma once

#include "Collation.h"

#include <QByteArray>
#include <QList>
#include <QVariant>

#include <span>

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
    friend class TextOrder;

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

/// The texts by which the rows of a cache are sorted, gathered beside them.
class RowCache::TextOrder {
public:
    TextOrder(RowCache &cache, const Collation &collation) : m_cache(cache), m_collation(collation) {}

    /// The text in a column of a statement for the next row of the cache; Null comes before every text.
    void append(sqlite3_stmt *statement, int column);
    /// Sorts the rows; rows of equal texts by row number, in the same direction.
    void apply(bool descending);

private:
    /// Eight bytes of a sort key as a number, and the row that they are of.
    struct Key {
        quint64 word;
        qsizetype row;
    };

    /// Where the sort key of a row lies; a size of -1 stands for Null.
    struct Text {
        qsizetype offset;
        qsizetype size;
    };

    quint64 wordAt(const Text &text, qsizetype depth) const;
    void sortFrom(std::span<Key> keys, qsizetype depth) const;
    bool before(const Key &left, const Key &right, qsizetype depth) const;

    RowCache &m_cache;
    const Collation &m_collation;
    QList<Text> m_texts;
    QByteArray m_bytes;
};

} // namespace platform::database
