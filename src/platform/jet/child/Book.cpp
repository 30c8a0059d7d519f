#include "Book.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace platform::jet {

namespace {

constexpr std::string_view kSignature = "Standard Jet DB";
constexpr int kSignatureOffset = 4;

constexpr unsigned char kDataPage = 1;

/// The 12 bytes that a memo has in its row: length and flags, page and row, 4 bytes without a meaning.
constexpr std::size_t kLongHeadSize = 12;
constexpr std::uint32_t kLongInline = 0x80000000;
constexpr std::uint32_t kLongOnePiece = 0x40000000;
constexpr std::uint32_t kLongLengthMask = 0x3fffffff;

/// Beside the offset of a row in its page stand two flags.
constexpr int kRowOffsetMask = 0x1fff;

/// The library takes an empty file, or one of zeros, for Jet 3.
void requireSignature(const char *path) {
    std::array<char, kSignatureOffset + kSignature.size()> head{};
    std::ifstream file(path, std::ios::binary);
    file.read(head.data(), head.size());
    if (!file || std::string_view(head.data() + kSignatureOffset, kSignature.size()) != kSignature) {
        throw std::runtime_error("Ce fichier n'est pas un ancien livre, ou il ne peut pas être lu.");
    }
}

} // namespace

std::uint32_t number16(Bytes bytes, std::size_t offset) {
    return bytes[offset] | std::uint32_t(bytes[offset + 1]) << 8U;
}

std::uint32_t number32(Bytes bytes, std::size_t offset) {
    return number16(bytes, offset) | number16(bytes, offset + 2) << 16U;
}

Book::Book(const char *path) {
    requireSignature(path);
    m_size = std::filesystem::file_size(path);
    m_handle.reset(mdb_open(path, MDB_NOFLAGS));
    if (!m_handle || (m_handle->f->jet_version != MDB_VER_JET3 && m_handle->f->jet_version != MDB_VER_JET4)) {
        throw Damage("sa première page est illisible.");
    }
    const auto pageSize = std::uint64_t(m_handle->fmt->pg_size);
    if (m_size % pageSize != 0) {
        throw Damage("il a été tronqué.");
    }
    m_pages = std::uint32_t(m_size / pageSize);
}

Bytes Book::readPage(std::uint32_t page) {
    if (page == 0 || page >= m_pages || mdb_read_pg(handle(), page) != handle()->fmt->pg_size) {
        throw Damage("la page " + std::to_string(page) + " manque.");
    }
    return {handle()->pg_buf, std::size_t(handle()->fmt->pg_size)};
}

int Book::rowsOnPage() const {
    const Bytes page(handle()->pg_buf, std::size_t(handle()->fmt->pg_size));
    const std::uint32_t heads = handle()->fmt->row_count_offset;
    const std::uint32_t rows = number16(page, heads);
    if (heads + 2 + 2 * rows > page.size()) {
        throw Damage("la page " + std::to_string(handle()->cur_pg) + " est illisible.");
    }
    return int(rows);
}

std::string Book::longValue(Bytes field) {
    if (field.size() < kLongHeadSize) {
        throw Damage("un texte long est illisible.");
    }
    const std::uint32_t head = number32(field, 0);
    const std::size_t length = head & kLongLengthMask;
    if (length > m_size) {
        throw Damage("un texte long est illisible.");
    }
    std::string content;
    const auto append = [&](Bytes piece) {
        const auto *text = reinterpret_cast<const char *>(piece.data());
        content.append(text, std::min(piece.size(), length - content.size()));
    };

    if ((head & kLongInline) != 0) {
        append(field.subspan(kLongHeadSize));
    } else if ((head & kLongOnePiece) != 0) {
        append(longValuePiece(number32(field, 4)));
    } else {
        // Each piece brings a byte at least, so a chain that bites its tail ends with the length.
        for (std::uint32_t next = number32(field, 4); content.size() < length;) {
            const Bytes piece = longValuePiece(next);
            if (piece.size() <= 4) {
                throw Damage("un texte long est illisible.");
            }
            next = number32(piece, 0);
            append(piece.subspan(4));
        }
    }
    if (content.size() != length) {
        throw Damage("un texte long est incomplet.");
    }
    return content;
}

/// A row of a page of long values, in the second buffer.
/// @param pageRow the page, and in the lowest byte the row
Bytes Book::longValuePiece(std::uint32_t pageRow) {
    void *buffer = nullptr;
    int start = 0;
    std::size_t size = 0;
    if (pageRow >> 8U >= m_pages || mdb_find_pg_row(handle(), int(pageRow), &buffer, &start, &size) != 0) {
        throw Damage("un morceau d'un texte long manque.");
    }
    const Bytes page(static_cast<const unsigned char *>(buffer), std::size_t(handle()->fmt->pg_size));
    const auto offset = std::size_t(start & kRowOffsetMask);
    // In place of the table that owns it, a page of long values has four letters.
    if (page[0] != kDataPage || std::memcmp(&page[4], "LVAL", 4) != 0 || size > page.size() ||
        offset > page.size() - size) {
        throw Damage("un morceau d'un texte long est illisible.");
    }
    return page.subspan(offset, size);
}

} // namespace platform::jet
