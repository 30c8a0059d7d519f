#include "RowCache.h"

#include <sqlite3.h>

#include <algorithm>
#include <vector>

namespace platform::database {

namespace {

// Values, and not the sqlite3_column functions, each of which looks the column up and checks the statement again. The
// engine allows that for a connection without a mutex.

std::string_view textOf(sqlite3_value *value) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return {text ? text : "", size_t(sqlite3_value_bytes(value))};
}

std::string_view blobOf(sqlite3_value *value) {
    const auto *bytes = static_cast<const char *>(sqlite3_value_blob(value));
    return {bytes ? bytes : "", size_t(sqlite3_value_bytes(value))};
}

} // namespace

QVariant columnValue(sqlite3_stmt *statement, int column) {
    sqlite3_value *value = sqlite3_column_value(statement, column);
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qlonglong(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_BLOB: {
        const std::string_view bytes = blobOf(value);
        return QByteArray(bytes.data(), qsizetype(bytes.size()));
    }
    default: {
        const std::string_view text = textOf(value);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    }
}

RowCache::Cell RowCache::store(sqlite3_stmt *statement, int column) {
    sqlite3_value *value = sqlite3_column_value(statement, column);
    Cell cell{sqlite3_value_type(value), 0, {0}};
    if (cell.type == SQLITE_INTEGER) {
        cell.number = sqlite3_value_int64(value);
    } else if (cell.type == SQLITE_FLOAT) {
        cell.real = sqlite3_value_double(value);
    } else if (cell.type != SQLITE_NULL) {
        const std::string_view bytes = cell.type == SQLITE_TEXT ? textOf(value) : blobOf(value);
        cell.size = int(bytes.size());
        cell.offset = keep(bytes);
    }
    return cell;
}

/// Copies bytes behind those that are kept; gives their place.
qint64 RowCache::keep(std::string_view bytes) {
    const qsizetype place = m_used;
    m_used += qsizetype(bytes.size());
    if (m_used > m_texts.size()) {
        m_texts.resize(2 * m_used);
    }
    std::copy(bytes.begin(), bytes.end(), m_texts.data() + place);
    return place;
}

RowCache::Row RowCache::read(qint64 rowid, sqlite3_stmt *statement, int firstColumn) {
    const Row row{rowid, m_cells.size()};
    for (int column = 0; column < m_columns; ++column) {
        m_cells.push_back(store(statement, firstColumn + column));
    }
    return row;
}

void RowCache::append(qint64 rowid, sqlite3_stmt *statement, int firstColumn) {
    m_rows.push_back(read(rowid, statement, firstColumn));
}

void RowCache::replace(qsizetype row, qint64 rowid, sqlite3_stmt *statement) {
    m_rows[row] = read(rowid, statement, 0);
}

void RowCache::remove(qsizetype row) {
    m_rows.remove(row);
}

QVariant RowCache::value(qsizetype row, int column) const {
    const Cell &stored = cell(row, column);
    switch (stored.type) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qlonglong(stored.number);
    case SQLITE_FLOAT:
        return stored.real;
    case SQLITE_BLOB:
        return bytesOf(stored).toByteArray();
    default:
        return QString::fromUtf8(bytesOf(stored));
    }
}

QString RowCache::text(qsizetype row, int column) const {
    const Cell &stored = cell(row, column);
    return stored.type == SQLITE_TEXT ? QString::fromUtf8(bytesOf(stored)) : value(row, column).toString();
}

qint64 RowCache::number(qsizetype row, int column) const {
    const Cell &stored = cell(row, column);
    return stored.type == SQLITE_INTEGER ? stored.number : value(row, column).toLongLong();
}

bool RowCache::isNull(qsizetype row, int column) const {
    return cell(row, column).type == SQLITE_NULL;
}

bool RowCache::isText(qsizetype row, int column) const {
    return cell(row, column).type == SQLITE_TEXT;
}

qsizetype RowCache::find(qint64 rowid) const {
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [rowid](const Row &r) { return r.rowid == rowid; });
    return row == m_rows.end() ? -1 : row - m_rows.begin();
}

void RowCache::TextOrder::append(sqlite3_stmt *statement, int column) {
    sqlite3_value *value = sqlite3_column_value(statement, column);
    if (sqlite3_value_type(value) == SQLITE_NULL) {
        m_keys.append('\0');
    } else {
        m_keys.append('\1');
        m_collation.appendSortKey(textOf(value), m_keys);
    }
    m_ends.append(m_keys.size());
}

void RowCache::TextOrder::apply(bool descending) {
    struct KeyedRow {
        std::string_view key;
        Row row;
    };

    std::vector<KeyedRow> rows;
    rows.reserve(size_t(m_ends.size()));
    qsizetype begin = 0;
    for (const qsizetype end : m_ends) {
        rows.push_back(
            {{m_keys.constData() + begin, size_t(end - begin)}, m_cache.m_rows[qsizetype(rows.size())]});
        begin = end;
    }
    std::sort(rows.begin(), rows.end(), [](const KeyedRow &left, const KeyedRow &right) {
        const int order = left.key.compare(right.key);
        return order != 0 ? order < 0 : left.row.rowid < right.row.rowid;
    });
    if (descending) {
        std::reverse(rows.begin(), rows.end());
    }
    std::transform(rows.cbegin(), rows.cend(), m_cache.m_rows.begin(),
                   [](const KeyedRow &keyed) { return keyed.row; });
}

} // namespace platform::database
