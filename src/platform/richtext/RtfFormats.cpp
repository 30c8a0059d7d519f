#include "RtfFormats.h"

#include "RtfKeywords.h"
#include "RtfTables.h"

#include <algorithm>

namespace platform::richtext {

void RtfFormats::apply(const Keyword &keyword, std::optional<int> parameter, const ColourTable &colours) {
    if (!applyToCharacters(keyword, parameter, colours)) {
        applyToParagraph(keyword, parameter.value_or(0));
    }
}

/// True if the word was one for characters.
bool RtfFormats::applyToCharacters(const Keyword &keyword, std::optional<int> parameter,
                                   const ColourTable &colours) {
    const int number = parameter.value_or(0);
    const bool on = parameter != 0; // also without parameter
    switch (keyword.action) {
    case Action::FontSize:
        character.halfPoints = std::clamp(number, 0, kLargestHalfPoints);
        return true;
    case Action::Bold:
        character.bold = on;
        return true;
    case Action::Italic:
        character.italic = on;
        return true;
    case Action::Underline:
        character.underline = on;
        return true;
    case Action::NoUnderline:
        character.underline = false;
        return true;
    case Action::Strike:
        character.strike = on;
        return true;
    case Action::Foreground:
        character.foreground = colours.colour(number);
        return true;
    case Action::Background:
        character.background = colours.colour(number);
        return true;
    default:
        return false;
    }
}

void RtfFormats::applyToParagraph(const Keyword &keyword, int parameter) {
    switch (keyword.action) {
    case Action::Left:
        paragraph.left = parameter;
        break;
    case Action::Right:
        paragraph.right = parameter;
        break;
    case Action::FirstLine:
        paragraph.firstLine = parameter;
        break;
    case Action::Before:
        paragraph.before = parameter;
        break;
    case Action::After:
        paragraph.after = parameter;
        break;
    case Action::Alignment:
        paragraph.alignment = Qt::AlignmentFlag(keyword.value);
        break;
    case Action::TabType:
        tabType = QTextOption::TabType(keyword.value);
        break;
    case Action::TabStop:
        paragraph.addTab({parameter, tabType});
        tabType = QTextOption::LeftTab;
        break;
    case Action::ParagraphReset:
        paragraph = {};
        break;
    default:
        break;
    }
}

} // namespace platform::richtext
