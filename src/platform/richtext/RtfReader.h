#pragma once

#include "RichContent.h"

namespace platform::richtext {

/// The content of an RTF text. Reading ends with the brace that closes the first group; a text cut before it
/// keeps what was read. Takes time and memory in proportion to the source, whatever its nesting.
RichContent readRtf(QStringView source);

} // namespace platform::richtext
