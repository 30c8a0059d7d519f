#include "RowCache.h"

#include <QtEndian>

#include <sqlite3.h>

#include <algorithm>
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
    for (int column = 0; column < m_columns; ++column) {
        m_cells.push_back(store(statement, firstColumn + column));
    }
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

QString RowCache::text(qsizetype row, int column) const {
    const Cell &cell = m_cells[m_rows[size_t(row)].firstCell + size_t(column)];
    return cell.type == SQLITE_TEXT ? QString::fromUtf8(m_texts.data() + cell.offset, cell.size)
                                    : value(row, column).toString();
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
    Text text{false, m_bytes.size(), 0, cache.m_rows.back()};
    if (sqlite3_column_type(statement, column) != SQLITE_NULL) {
        m_collation.appendSortKey(textOf(statement, column), m_bytes);
        text.present = true;
        text.size = m_bytes.size() - text.offset;
    }
    m_texts.push_back(text);
}

/// The bytes of a sort key from a depth on, 0 behind its end, as a number that is in their order.
quint64 RowCache::TextOrder::wordAt(const Text &text, size_t depth) const {
    quint64 bytes = 0;
    if (depth < text.size) {
        std::memcpy(&bytes, m_bytes.data() + text.offset + depth, std::min(text.size - depth, sizeof bytes));
    }
    return qFromBigEndian(bytes);
}

/// Compares what follows a depth up to which two keys are equal; Null comes before every text, equal texts go
/// by row number.
bool RowCache::TextOrder::before(const Key &left, const Key &right, size_t depth) const {
    const Text &a = m_texts[left.text];
    const Text &b = m_texts[right.text];
    if (a.present != b.present) {
        return b.present;
    }
    const std::string_view bytes(m_bytes);
    const auto rest = [&](const Text &text) {
        const size_t equal = std::min(depth, text.size);
        return bytes.substr(text.offset + equal, text.size - equal);
    };
    const int order = rest(a).compare(rest(b));
    return order != 0 ? order < 0 : a.row.rowid < b.row.rowid;
}

/// Sorts keys that are equal up to a depth: by one word, then those that are equal in it by the next. The
/// titles of a book begin alike, so comparing them whole would read the same bytes over and over.
void RowCache::TextOrder::sortFrom(std::span<Key> keys, size_t depth) {
    constexpr size_t kFew = 8;
    constexpr size_t kDeepest = 256; // bytes; limits the recursion where texts are long and alike
    if (keys.size() <= kFew || depth >= kDeepest) {
        std::sort(keys.begin(), keys.end(),
                  [this, depth](const Key &a, const Key &b) { return before(a, b, depth); });
        return;
    }
    for (Key &key : keys) {
        key.word = wordAt(m_texts[key.text], depth);
    }
    std::sort(keys.begin(), keys.end(), [](const Key &a, const Key &b) { return a.word < b.word; });
    for (auto first = keys.begin(); first != keys.end();) {
        const auto last =
            std::find_if(first, keys.end(), [first](const Key &key) { return key.word != first->word; });
        if (last - first > 1) {
            sortFrom({first, last}, depth + sizeof(quint64));
        }
        first = last;
    }
}

void RowCache::TextOrder::apply(RowCache &cache, bool descending) {
    std::vector<Key> keys(m_texts.size());
    for (size_t text = 0; text < keys.size(); ++text) {
        keys[text] = {0, text};
    }
    sortFrom(keys, 0);
    if (descending) {
        std::reverse(keys.begin(), keys.end());
    }
    std::transform(keys.begin(), keys.end(), cache.m_rows.begin(),
                   [this](const Key &key) { return m_texts[key.text].row; });
}

} // namespace platform::database
