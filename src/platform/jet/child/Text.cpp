#include "Text.h"

#include "Book.h"

namespace platform::jet {

namespace {

constexpr char32_t kReplacement = 0xfffd;

/// Takes the compact form apart: bytes that are characters below U+0100, and pairs of bytes, by turns; a byte of
/// zero changes from one to the other.
std::u16string expand(std::string_view stored) {
    std::u16string text;
    bool single = true;
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const auto byte = static_cast<unsigned char>(stored[i]);
        if (byte == 0) {
            single = !single;
        } else if (single) {
            text.push_back(byte);
        } else if (i + 1 < stored.size()) {
            text.push_back(char16_t(byte | static_cast<unsigned char>(stored[++i]) << 8U));
        }
    }
    return text;
}

std::u16string fromLittleEndian(std::string_view stored) {
    std::u16string text;
    for (std::size_t i = 0; i + 1 < stored.size(); i += 2) {
        const unsigned high = static_cast<unsigned char>(stored[i + 1]);
        text.push_back(char16_t(static_cast<unsigned char>(stored[i]) | high << 8U));
    }
    return text;
}

void appendUtf8(std::string &text, char32_t character) {
    const auto continuation = [&](unsigned shift) {
        text.push_back(char(0x80U | (character >> shift & 0x3fU)));
    };
    if (character < 0x80) {
        text.push_back(char(character));
    } else if (character < 0x800) {
        text.push_back(char(0xc0U | character >> 6U));
        continuation(0);
    } else if (character < 0x10000) {
        text.push_back(char(0xe0U | character >> 12U));
        continuation(6);
        continuation(0);
    } else {
        text.push_back(char(0xf0U | character >> 18U));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

std::string toUtf8(std::u16string_view utf16) {
    const auto isSurrogate = [&](std::size_t i, char16_t first) {
        return i < utf16.size() && utf16[i] >= first && utf16[i] < first + 0x400;
    };
    std::string text;
    text.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        if (isSurrogate(i, 0xd800) && isSurrogate(i + 1, 0xdc00)) {
            appendUtf8(text, 0x10000 + ((utf16[i] - 0xd800U) << 10U) + (utf16[i + 1] - 0xdc00U));
            ++i;
        } else {
            const bool alone = isSurrogate(i, 0xd800) || isSurrogate(i, 0xdc00);
            appendUtf8(text, alone ? kReplacement : utf16[i]);
        }
    }
    return text;
}

} // namespace

std::string toUtf8(const Book &book, std::string_view stored) {
    // The library's own conversion loses every character beyond U+FFFF.
    if (!book.isJet3()) {
        return stored.starts_with("\xff\xfe") ? toUtf8(expand(stored.substr(2)))
                                              : toUtf8(fromLittleEndian(stored));
    }
    std::string text(3 * stored.size() + 8, '\0');
    const int size = mdb_unicode2ascii(book.handle(), stored.data(), stored.size(), text.data(), text.size());
    text.resize(std::size_t(size));
    return text;
}

} // namespace platform::jet
