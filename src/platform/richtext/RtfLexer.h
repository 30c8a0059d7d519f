#pragma once

#include <QStringView>
#include <optional>

namespace platform::richtext {

/// One piece of RTF source.
struct RtfToken {
    enum class Kind {
        End,
        Open,   ///< {
        Close,  ///< }
        Text,   ///< characters as they stand, in text
        Word,   ///< control word, its name in text
        Symbol, ///< control symbol, its character in text
        Byte,   ///< \'xx, its value in parameter
    };

    Kind kind = Kind::End;
    QStringView text;
    std::optional<int> parameter; ///< out of range: the nearest that fits
};

/// Cuts RTF source into tokens, without any knowledge of words. Line ends belong to no token unless a
/// backslash stands before them.
class RtfLexer {
public:
    explicit RtfLexer(QStringView source) : m_rest(source) {}

    RtfToken next();
    /// Leaves out characters of the source (the data behind \bin). A count beyond the end is damage and
    /// leaves out none, since it would swallow the text that follows.
    void skip(int count);

private:
    RtfToken control();
    RtfToken word();
    RtfToken take(RtfToken::Kind kind, qsizetype length);

    QStringView m_rest;
};

} // namespace platform::richtext
