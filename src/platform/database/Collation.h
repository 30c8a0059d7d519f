#pragma once

#include <QByteArray>

#include <string_view>

namespace platform::database {

/// How texts (UTF-8) compare in `where` and `order by`.
///
/// compare() is negative, zero or positive; appendSortKey() puts bytes behind those of `keys` whose plain
/// byte order is the order of compare(), so that a long list is sorted without calling compare() again and
/// again.
struct Collation {
    int (*compare)(std::string_view left, std::string_view right);
    void (*appendSortKey)(std::string_view text, QByteArray &keys);
};

/// Byte by byte, which in UTF-8 is by code point.
inline constexpr Collation kBinaryCollation{
    [](std::string_view left, std::string_view right) { return left.compare(right); },
    [](std::string_view text, QByteArray &keys) { keys.append(text.data(), qsizetype(text.size())); },
};

} // namespace platform::database
