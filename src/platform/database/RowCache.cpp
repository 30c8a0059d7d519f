#include "RowCache.h"

#include <QtEndian>

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

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
    Text text{m_bytes.size(), -1};
    if (sqlite3_value *value = sqlite3_column_value(statement, column);
        sqlite3_value_type(value) != SQLITE_NULL) {
        m_collation.appendSortKey(textOf(value), m_bytes);
        text.size = m_bytes.size() - text.offset;
    }
    m_texts.append(text);
}

/// The bytes of a sort key from a depth on, 0 behind its end, as a number that is in their order.
quint64 RowCache::TextOrder::wordAt(const Text &text, qsizetype depth) const {
    quint64 bytes = 0;
    if (depth < text.size) {
        std::memcpy(&bytes, m_bytes.constData() + text.offset + depth,
                    std::min(size_t(text.size - depth), sizeof bytes));
    }
    return qFromBigEndian(bytes);
}

/// Compares what follows a depth up to which two keys are equal; Null comes before every text, equal texts go
/// by row number.
bool RowCache::TextOrder::before(const Key &left, const Key &right, qsizetype depth) const {
    const Text &a = m_texts[left.row];
    const Text &b = m_texts[right.row];
    if ((a.size < 0) != (b.size < 0)) {
        return a.size < 0;
    }
    const std::string_view bytes(m_bytes.constData(), size_t(m_bytes.size()));
    const auto rest = [bytes, depth](const Text &text) {
        const qsizetype size = std::max<qsizetype>(text.size, 0);
        const qsizetype equal = std::min(depth, size);
        return bytes.substr(size_t(text.offset + equal), size_t(size - equal));
    };
    const int order = rest(a).compare(rest(b));
    return order != 0 ? order < 0 : m_cache.rowid(left.row) < m_cache.rowid(right.row);
}

/// Sorts keys that are equal up to a depth: by one word, then those that are equal in it by the next. The
/// titles of a book begin alike, so comparing them whole would read the same bytes over and over.
void RowCache::TextOrder::sortFrom(std::span<Key> keys, qsizetype depth) const {
    constexpr size_t kFew = 8;
    constexpr qsizetype kDeepest = 256; // bytes; limits the recursion where texts are long and alike
    if (keys.size() <= kFew || depth >= kDeepest) {
        std::sort(keys.begin(), keys.end(),
                  [this, depth](const Key &a, const Key &b) { return before(a, b, depth); });
        return;
    }
    for (Key &key : keys) {
        key.word = wordAt(m_texts[key.row], depth);
    }
    std::sort(keys.begin(), keys.end(), [](const Key &a, const Key &b) { return a.word < b.word; });
    for (auto first = keys.begin(); first != keys.end();) {
        const auto last =
            std::find_if(first, keys.end(), [first](const Key &key) { return key.word != first->word; });
        if (last - first > 1) {
            sortFrom({first, last}, depth + qsizetype(sizeof(quint64)));
        }
        first = last;
    }
}

void RowCache::TextOrder::apply(bool descending) {
    QList<Key> keys(m_texts.size());
    for (qsizetype row = 0; row < keys.size(); ++row) {
        keys[row] = {0, row};
    }
    sortFrom(keys, 0);
    if (descending) {
        std::reverse(keys.begin(), keys.end());
    }
    QList<Row> rows(keys.size());
    std::transform(keys.cbegin(), keys.cend(), rows.begin(),
                   [this](const Key &key) { return m_cache.m_rows[key.row]; });
    m_cache.m_rows = std::move(rows);
}

} // namespace platform::database
