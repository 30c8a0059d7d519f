#pragma once

#include "RichContent.h"

#include <optional>

namespace platform::richtext {

class ColourTable;
struct Keyword;

/// The formats that hold in a group, for the text that follows and the paragraph that ends next.
struct RtfFormats {
    CharacterStyle character;
    ParagraphStyle paragraph;
    QTextOption::TabType tabType = QTextOption::LeftTab; ///< of the next tab stop

    /// Does what a control word with its parameter asks for; other words than those of formats do nothing.
    /// Fonts are left to the reader, since the code page depends on them.
    void apply(const Keyword &keyword, std::optional<int> parameter, const ColourTable &colours);

private:
    bool applyToCharacters(const Keyword &keyword, std::optional<int> parameter, const ColourTable &colours);
    void applyToParagraph(const Keyword &keyword, int parameter);
};

} // namespace platform::richtext
