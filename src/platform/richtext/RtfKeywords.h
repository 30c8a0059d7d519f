#pragma once

#include <QStringView>

namespace platform::richtext {

/// Where the characters of a group go.
enum class Destination { Body, Fonts, Colours, Numbering, Marker };

/// What a control word does.
enum class Action {
    // text and structure
    Character,
    Unicode,
    FallbackLength,
    Binary,
    ParagraphEnd,
    Destination,
    SkipGroup,
    // tables, fonts and code pages
    CodePage,
    DefaultFont,
    Charset,
    ColourComponent,
    Numbering,
    Font,
    Plain,
    // characters
    FontSize,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    Strike,
    Foreground,
    Background,
    // paragraphs
    Left,
    Right,
    FirstLine,
    Before,
    After,
    Alignment,
    TabType,
    TabStop,
    ParagraphReset,
};

struct Keyword {
    std::u16string_view name;
    Action action;
    int value = 0; ///< the character, destination, code page, ... that the word stands for
};

/// The control word of a name, null if it is not known.
const Keyword *findKeyword(QStringView name);

} // namespace platform::richtext
