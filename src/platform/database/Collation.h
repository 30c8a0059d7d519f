#pragma once

#include <string>
#include <string_view>

namespace platform::database {

/// How texts (UTF-8) compare in `where` and `order by`.
///
/// compare() is negative, zero or positive; sortKey() gives bytes whose plain byte order is the order of
/// compare(), so that a long list is sorted without calling compare() again and again.
struct Collation {
    int (*compare)(std::string_view left, std::string_view right);
    std::string (*sortKey)(std::string_view text);
};

/// Byte by byte, which in UTF-8 is by code point.
inline constexpr Collation kBinaryCollation{
    [](std::string_view left, std::string_view right) { return left.compare(right); },
    [](std::string_view text) { return std::string(text); },
};

} // namespace platform::database
