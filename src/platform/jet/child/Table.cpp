#include "Table.h"

#include "JetStream.h"
#include "Text.h"

#include <cstring>

namespace platform::jet {

namespace {

constexpr unsigned char kDataPage = 1;

/// Where the definition of the catalogue begins in every file.
constexpr std::uint32_t kCatalogPage = 2;

/// In the catalogue: the type of a table that lies in the file, and the flags of those of the system.
constexpr std::int64_t kTableType = 1;
constexpr std::uint32_t kSystemFlags = 0x80000002;
constexpr std::uint32_t kPageMask = 0x00ffffff;

/// A page map has a byte for its kind and four for its first page at least.
constexpr std::size_t kSmallestMap = 5;

/// In the head of a row: it is struck or stands for a moved one; it is a pointer to where the row lives now.
constexpr int kStruckRow = 0x8000;
constexpr int kMovedRow = 0x4000;
constexpr int kRowOffsetMask = 0x1fff;
constexpr std::size_t kPointerSize = 4;

/// A row that moves again gets another pointer behind the first.
constexpr int kMostMoves = 64;

template <typename Number>
Number read(Bytes bytes) {
    Number number;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

std::string_view asText(Bytes bytes) {
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

/// The size of a value of a type in its row; 0 for one that has no fixed size.
std::size_t fixedSize(int type) {
    switch (type) {
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    case MDB_MONEY:
    case MDB_DOUBLE:
    case MDB_DATETIME:
        return 8;
    default:
        return 0;
    }
}

} // namespace

Table::Table(Book &book, const std::string &name, std::uint32_t page) : m_book(book), m_name(name) {
    m_entry.mdb = book.handle();
    m_entry.object_type = MDB_TABLE;
    m_entry.table_pg = page;
    name.copy(m_entry.object_name, sizeof m_entry.object_name - 1);

    book.readPage(page);
    m_definition.reset(mdb_read_table(&m_entry));
    // The library would follow a map of no size.
    if (!m_definition || m_definition->map_sz < kSmallestMap) {
        fail("la définition de la table est illisible");
    }
    // It finds the columns in the page that the definition has left in the buffer.
    const GPtrArray *columns =
        m_definition->num_cols <= kMaxColumns ? mdb_read_columns(m_definition.get()) : nullptr;
    if (!columns || columns->len == 0) {
        fail("les colonnes de la table sont illisibles");
    }
}

void Table::fail(const std::string &what) const {
    throw Damage(what + " (" + m_name + ").");
}

const MdbColumn &Table::column(std::size_t index) const {
    return *static_cast<const MdbColumn *>(g_ptr_array_index(m_definition->columns, index));
}

std::vector<std::string> Table::columns() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < m_definition->columns->len; ++i) {
        names.emplace_back(column(i).name);
    }
    return names;
}

bool Table::ownsPage(Bytes page) const {
    return page[0] == kDataPage && number32(page, 4) == m_entry.table_pg;
}

/// The next page of the table's map, or 0. The library's own loop ends in the same way after a failure.
std::uint32_t Table::nextPage(std::uint32_t page) const {
    const int next = mdb_map_find_next(m_book.handle(), m_definition->usage_map,
                                       static_cast<unsigned>(m_definition->map_sz), page);
    if (next < 0 || (next > 0 && std::uint32_t(next) <= page)) {
        fail("la carte des pages est illisible");
    }
    return std::uint32_t(next);
}

void Table::forEachRow(const std::function<void(const std::vector<Value> &)> &take) {
    std::uint32_t rows = 0;
    for (std::uint32_t page = nextPage(0); page != 0; page = nextPage(page)) {
        // The map of a large table may name pages that others have taken.
        if (!ownsPage(m_book.readPage(page))) {
            continue;
        }
        const int heads = m_book.rowsOnPage();
        for (int row = 0; row < heads; ++row) {
            m_book.readPage(page); // a moved row has left another one in the buffer
            RowPlace place{};
            if (mdb_find_row(m_book.handle(), row, &place.start, &place.size) != 0) {
                fail("la page " + std::to_string(page) + " est illisible");
            }
            if ((place.start & kStruckRow) == 0) {
                take(rowAt(follow(place)));
                ++rows;
            }
        }
    }
    // A book that was never closed properly announces none at all.
    if (rows != rowCount() && rowCount() != 0) {
        fail(std::to_string(rows) + " enregistrements sur " + std::to_string(rowCount()));
    }
}

/// Where a row lives, in the page that is read last.
/// @param place as the row head gives it, with its flags
RowPlace Table::follow(RowPlace place) {
    for (int moves = 0; (place.start & kMovedRow) != 0; ++moves) {
        const auto start = std::size_t(place.start & kRowOffsetMask);
        if (moves == kMostMoves || place.size < kPointerSize) {
            fail("un enregistrement déplacé est introuvable");
        }
        const std::uint32_t pointer = number32(
            Bytes(m_book.handle()->pg_buf, sizeof m_book.handle()->pg_buf).subspan(start, kPointerSize), 0);
        const int row = int(pointer & 0xffU);
        if (!ownsPage(m_book.readPage(pointer >> 8U)) || row >= m_book.rowsOnPage() ||
            mdb_find_row(m_book.handle(), row, &place.start, &place.size) != 0) {
            fail("un enregistrement déplacé est introuvable");
        }
    }
    return {place.start & kRowOffsetMask, place.size};
}

std::vector<Value> Table::rowAt(RowPlace place) {
    // The library trusts the count of columns at the start of the row.
    const std::size_t countSize = m_book.isJet3() ? 1 : 2;
    const unsigned char *start = m_book.handle()->pg_buf + place.start;
    std::vector<MdbField> fields(m_definition->columns->len);
    if (place.size <= countSize || (countSize == 2 && start[1] != 0) ||
        mdb_crack_row(m_definition.get(), place.start, place.size, fields.data()) < 0) {
        fail("un enregistrement est illisible");
    }
    std::vector<Value> values;
    values.reserve(fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        values.push_back(value(column(i), fields[i], place));
    }
    return values;
}

Value Table::value(const MdbColumn &column, const MdbField &field, RowPlace row) {
    // A truth value stands where others have the mark for Null.
    if (column.col_type == MDB_BOOL) {
        return std::int64_t(field.is_null ? 0 : -1);
    }
    if (field.is_null) {
        return {};
    }
    // Damaged rows give places outside of them, and negative sizes.
    if (field.siz < 0 || field.start < row.start ||
        std::size_t(field.start - row.start) + std::size_t(field.siz) > row.size) {
        fail("un champ est illisible");
    }
    const Bytes bytes(static_cast<const unsigned char *>(field.value), std::size_t(field.siz));
    if (const std::size_t size = fixedSize(column.col_type); size != 0 && bytes.size() != size) {
        fail("un champ est illisible");
    }
    switch (column.col_type) {
    case MDB_BYTE:
        return std::int64_t(bytes[0]);
    case MDB_INT:
        return std::int64_t(read<std::int16_t>(bytes));
    case MDB_LONGINT:
        return std::int64_t(read<std::int32_t>(bytes));
    case MDB_MONEY:
        return double(read<std::int64_t>(bytes)) / 10000.0;
    case MDB_FLOAT:
        return double(read<float>(bytes));
    case MDB_DOUBLE:
    case MDB_DATETIME:
        return read<double>(bytes);
    case MDB_TEXT:
        return toUtf8(m_book, asText(bytes));
    case MDB_MEMO:
        return bytes.empty() ? std::string() : toUtf8(m_book, m_book.longValue(bytes));
    default:
        return {};
    }
}

std::vector<std::unique_ptr<Table>> openTables(Book &book, const std::vector<std::string> &names) {
    Table catalog(book, "MSysObjects", kCatalogPage);
    const std::vector<std::string> columns = catalog.columns();
    const auto cell = [&](const std::vector<Value> &row, std::string_view name) -> const Value & {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (columns[i] == name) {
                return row[i];
            }
        }
        throw Damage("son catalogue est illisible.");
    };

    std::vector<std::uint32_t> pages(names.size());
    catalog.forEachRow([&](const std::vector<Value> &row) {
        const auto *const name = std::get_if<std::string>(&cell(row, "Name"));
        const auto *const type = std::get_if<std::int64_t>(&cell(row, "Type"));
        const auto *const id = std::get_if<std::int64_t>(&cell(row, "Id"));
        const auto *const flags = std::get_if<std::int64_t>(&cell(row, "Flags"));
        if (!name || !id || !type || *type != kTableType ||
            (flags && (static_cast<std::uint32_t>(*flags) & kSystemFlags) != 0)) {
            return;
        }
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (pages[i] == 0 && g_ascii_strcasecmp(names[i].c_str(), name->c_str()) == 0) {
                pages[i] = static_cast<std::uint32_t>(*id) & kPageMask;
            }
        }
    });

    std::vector<std::unique_ptr<Table>> tables;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (pages[i] != 0) {
            tables.push_back(std::make_unique<Table>(book, names[i], pages[i]));
        }
    }
    return tables;
}

} // namespace platform::jet
