#pragma once

#include <QtGlobal>
#include <optional>

namespace platform::codepages {

/// The character of a byte in a code page (number as in \ansicpg; 10000 is Mac Roman). An unknown page is
/// read as 1252.
char16_t decode(int codePage, quint8 byte);

/// The byte of a character in code page 1252, if it has one.
std::optional<quint8> encodeWestern(char16_t character);

/// The code page of a font's \fcharset number; the file's own for numbers that name none.
int codePageOfCharset(int charset, int codePageOfFile);

} // namespace platform::codepages
