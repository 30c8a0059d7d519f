#pragma once

#include "RichContent.h"

namespace platform::richtext {

/// The content of HTML as a browser or a word processor puts it on the clipboard: text, paragraphs, line
/// breaks and lists with bold, italic, underline and colour. Cells of a table stand one after another, each
/// row in a paragraph. Links lose their colour and underline. Nothing is fetched. Takes time in proportion.
RichContent readHtml(QStringView source);

} // namespace platform::richtext
