#pragma once

#include <string>
#include <string_view>

namespace platform::jet {

class Book;

/// A stored text as UTF-8. Jet 4 stores UTF-16, or behind the mark FF FE a compact form of it; Jet 3 the code page
/// of the system that made the file.
std::string toUtf8(const Book &book, std::string_view stored);

} // namespace platform::jet
