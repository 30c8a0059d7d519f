#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

// Before the library's header, which would include it as C.
#include <glib.h>

#include <mdbtools.h>

namespace platform::jet {

using Bytes = std::span<const unsigned char>;

/// A file that is not as it should be. what() is French, in UTF-8.
class Damage : public std::runtime_error {
public:
    explicit Damage(const std::string &cause) : std::runtime_error("Le fichier est endommagé : " + cause) {}
};

/// A row within the page that has been read last.
struct RowPlace {
    int start;
    std::size_t size;
};

/// An open Jet file: its pages and its long values, each checked before the library touches it.
///
/// There is one buffer for a page, and one more that follows long values and page maps.
class Book {
public:
    /// @throws Damage for a file that is damaged or none of Jet 3 or Jet 4
    explicit Book(const char *path);

    MdbHandle *handle() const { return m_handle.get(); }

    bool isJet3() const { return m_handle->f->jet_version == MDB_VER_JET3; }

    /// Reads a page into the buffer. @throws Damage
    Bytes readPage(std::uint32_t page);

    /// The rows that the page in the buffer has, struck ones among them. @throws Damage
    int rowsOnPage() const;

    /// The content of a memo. @throws Damage
    /// @param field what stands in the row: the content itself or where it lies
    std::string longValue(Bytes field);

private:
    struct Closer {
        void operator()(MdbHandle *handle) const { mdb_close(handle); }
    };

    Bytes longValuePiece(std::uint32_t pageRow);

    std::unique_ptr<MdbHandle, Closer> m_handle;
    std::uint64_t m_size = 0;
    std::uint32_t m_pages = 0;
};

/// A little-endian number.
std::uint32_t number16(Bytes bytes, std::size_t offset);
std::uint32_t number32(Bytes bytes, std::size_t offset);

} // namespace platform::jet
