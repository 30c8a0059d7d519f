#pragma once

#include "Collation.h"

#include <QVariant>

#include <span>
#include <string>
#include <vector>

struct sqlite3_stmt;

namespace platform::database {

/// The value of a column of the row that a statement stands on.
QVariant columnValue(sqlite3_stmt *statement, int column);

/// The rows of a cursor: the row number and the first columns of each. Texts lie together in one buffer,
/// since thousands of rows are read for a list.
class RowCache {
public:
    explicit RowCache(int columns) : m_columns(columns) {}

    qsizetype count() const { return qsizetype(m_rows.size()); }

    int columns() const { return m_columns; }

    qint64 rowid(qsizetype row) const { return m_rows[size_t(row)].rowid; }

    QVariant value(qsizetype row, int column) const;
    /// The value as text; empty for Null.
    QString text(qsizetype row, int column) const;
    bool isNull(qsizetype row, int column) const;
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
        size_t firstCell;
    };

    Row read(qint64 rowid, sqlite3_stmt *statement, int firstColumn);
    Cell store(sqlite3_stmt *statement, int column);

    int m_columns;
    std::vector<Row> m_rows;
    std::vector<Cell> m_cells;
    std::string m_texts;
};

/// The texts by which the rows of a cache are sorted, gathered beside them.
class RowCache::TextOrder {
public:
    explicit TextOrder(const Collation &collation) : m_collation(collation) {}

    /// The text in a column of a statement for the last row of the cache; Null comes before every text.
    void append(const RowCache &cache, sqlite3_stmt *statement, int column);
    /// Sorts the rows; rows of equal texts by row number, in the same direction.
    void apply(RowCache &cache, bool descending);

private:
    /// Eight bytes of a sort key as a number, and the text that they are of.
    struct Key {
        quint64 word;
        size_t text;
    };

    struct Text {
        bool present;
        size_t offset;
        size_t size;
        Row row;
    };

    quint64 wordAt(const Text &text, size_t depth) const;
    void sortFrom(std::span<Key> keys, size_t depth);
    bool before(const Key &left, const Key &right, size_t depth) const;

    const Collation &m_collation;
    std::vector<Text> m_texts;
    std::string m_bytes;
};

} // namespace platform::database
