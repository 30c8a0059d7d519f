#include "RowCache.h"

#include <QtEndian>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace platform::database {

namespace {

std::string_view textOf(sqlite3_stmt *statement, int column) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
    return {text ? text : "", size_t(sqlite3_column_bytes(statement, column))};
}

std::string_view blobOf(sqlite3_stmt *statement, int column) {
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement, column));
    return {bytes ? bytes : "", size_t(sqlite3_column_bytes(statement, column))};
}

} // namespace

QVariant columnValue(sqlite3_stmt *statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qlonglong(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_BLOB: {
        const std::string_view bytes = blobOf(statement, column);
        return QByteArray(bytes.data(), qsizetype(bytes.size()));
    }
    default: {
        const std::string_view text = textOf(statement, column);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    }
}

RowCache::Cell RowCache::store(sqlite3_stmt *statement, int column) {
    Cell cell{sqlite3_column_type(statement, column), 0, {0}};
    if (cell.type == SQLITE_INTEGER) {
        cell.number = sqlite3_column_int64(statement, column);
    } else if (cell.type == SQLITE_FLOAT) {
        cell.real = sqlite3_column_double(statement, column);
    } else if (cell.type != SQLITE_NULL) {
        const std::string_view bytes =
            cell.type == SQLITE_TEXT ? textOf(statement, column) : blobOf(statement, column);
        cell.size = int(bytes.size());
        cell.offset = qint64(m_texts.size());
        m_texts.append(bytes);
    }
    return cell;
}

RowCache::Row RowCache::read(qint64 rowid, sqlite3_stmt *statement, int firstColumn) {
    const Row row{rowid, m_cells.size()};
    for (int column = 0; column < m_columns; ++column)
        m_cells.push_back(store(statement, firstColumn + column));
    return row;
}

void RowCache::append(qint64 rowid, sqlite3_stmt *statement, int firstColumn) {
    m_rows.push_back(read(rowid, statement, firstColumn));
}

void RowCache::replace(qsizetype row, qint64 rowid, sqlite3_stmt *statement) {
    m_rows[size_t(row)] = read(rowid, statement, 0);
}

void RowCache::remove(qsizetype row) {
    m_rows.erase(m_rows.begin() + row);
}

QVariant RowCache::value(qsizetype row, int column) const {
    const Cell &cell = m_cells[m_rows[size_t(row)].firstCell + size_t(column)];
    switch (cell.type) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qlonglong(cell.number);
    case SQLITE_FLOAT:
        return cell.real;
    case SQLITE_BLOB:
        return QByteArray(m_texts.data() + cell.offset, cell.size);
    default:
        return QString::fromUtf8(m_texts.data() + cell.offset, cell.size);
    }
}

bool RowCache::isNull(qsizetype row, int column) const {
    return m_cells[m_rows[size_t(row)].firstCell + size_t(column)].type == SQLITE_NULL;
}

qsizetype RowCache::find(qint64 rowid) const {
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [rowid](const Row &r) { return r.rowid == rowid; });
    return row == m_rows.end() ? -1 : row - m_rows.begin();
}

void RowCache::TextOrder::append(const RowCache &cache, sqlite3_stmt *statement, int column) {
    Key key{0, 0, m_texts.size()};
    Text text{false, m_bytes.size(), 0, cache.m_rows.back()};
    if (sqlite3_column_type(statement, column) != SQLITE_NULL) {
        const std::string bytes = m_collation.sortKey(textOf(statement, column));
        std::array<quint64, 2> start{};
        std::memcpy(start.data(), bytes.data(), std::min(bytes.size(), sizeof start));
        key.first = qFromBigEndian(start[0]);
        key.second = qFromBigEndian(start[1]);
        text.present = true;
        text.size = bytes.size();
        m_bytes.append(bytes);
    }
    m_keys.push_back(key);
    m_texts.push_back(text);
}

bool RowCache::TextOrder::before(const Key &left, const Key &right) const {
    if (left.first != right.first)
        return left.first < right.first;
    if (left.second != right.second)
        return left.second < right.second;
    return textBefore(m_texts[left.text], m_texts[right.text]);
}

bool RowCache::TextOrder::textBefore(const Text &left, const Text &right) const {
    if (left.present != right.present)
        return right.present;
    const std::string_view bytes(m_bytes);
    const int order = bytes.substr(left.offset, left.size).compare(bytes.substr(right.offset, right.size));
    return order != 0 ? order < 0 : left.row.rowid < right.row.rowid;
}

void RowCache::TextOrder::apply(RowCache &cache, bool descending) {
    std::sort(m_keys.begin(), m_keys.end(),
              [this](const Key &left, const Key &right) { return before(left, right); });
    if (descending)
        std::reverse(m_keys.begin(), m_keys.end());
    std::transform(m_keys.begin(), m_keys.end(), cache.m_rows.begin(),
                   [this](const Key &key) { return m_texts[key.text].row; });
}

} // namespace platform::database
