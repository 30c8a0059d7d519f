#pragma once

#include "Book.h"
#include "Output.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace platform::jet {

/// A table of a book.
class Table {
public:
    /// Reads the definition of a table.
    /// @param page where it begins
    /// @throws Damage
    Table(Book &book, const std::string &name, std::uint32_t page);
    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;
    ~Table() = default;

    const std::string &name() const { return m_name; }

    std::vector<std::string> columns() const;

    /// The number of rows by the definition.
    std::uint32_t rowCount() const { return m_definition->num_rows; }

    /// Calls for each row, in the order of the row heads of the pages: a row that grew and moved to another page
    /// keeps its place.
    /// @throws Damage, also after the last row when there were not as many as the definition says
    void forEachRow(const std::function<void(const std::vector<Value> &)> &take);

private:
    struct Freer {
        void operator()(MdbTableDef *definition) const { mdb_free_tabledef(definition); }
    };

    const MdbColumn &column(std::size_t index) const;
    std::uint32_t nextPage(std::uint32_t page) const;
    bool ownsPage(Bytes page) const;
    RowPlace follow(RowPlace place);
    std::vector<Value> rowAt(RowPlace place);
    Value value(const MdbColumn &column, const MdbField &field, RowPlace row);
    [[noreturn]] void fail(const std::string &what) const;

    Book &m_book;
    std::string m_name;
    MdbCatalogEntry m_entry{};
    std::unique_ptr<MdbTableDef, Freer> m_definition;
};

/// The tables of these names, compared without regard to case, in this order; those that are missing are left
/// out.
std::vector<std::unique_ptr<Table>> openTables(Book &book, const std::vector<std::string> &names);

} // namespace platform::jet
