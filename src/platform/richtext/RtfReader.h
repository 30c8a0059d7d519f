#pragma once

#include "RichContent.h"

namespace platform::richtext {

/// The content of an RTF text. Reading ends with the brace that closes the first group; a text cut before it
/// keeps what was read, and so does one that is longer than `longest` characters. Takes time and memory in proportion to
/// the source, whatever its nesting.
RichContent readRtf(QStringView source, qsizetype longest = kAnyLength);

} // namespace platform::richtext
