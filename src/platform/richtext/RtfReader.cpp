#include "RtfReader.h"

#include "ListKinds.h"
#include "RtfFormats.h"
#include "RtfKeywords.h"
#include "RtfLexer.h"
#include "RtfTables.h"

#include "platform/codepages/CodePages.h"

#include <algorithm>
#include <optional>

namespace platform::richtext {

namespace {

constexpr qsizetype kDeepestGroup = 500; // deeper groups share the formats of this one
constexpr qsizetype kLongestMarker = 16;

/// What opens with a brace and ends with its partner.
struct Group {
    Destination destination = Destination::Body;
    RtfFormats formats;
    int font = -1;    ///< number in the font table, -1 the file's default
    int fallback = 1; ///< characters that stand in for one \u
};

class RtfReader {
public:
    RtfReader(QStringView source, qsizetype longest) : m_lexer(source), m_content(longest) {}

    RichContent read();

private:
    using Parameter = std::optional<int>;

    void open();
    void close();
    void byte(int value);
    void word(const RtfToken &token);
    void symbol(char16_t c);
    void text(QStringView text);
    void put(QStringView text);

    void put(char16_t c) { put(QStringView(&c, 1)); }

    bool takenAsFallback();
    bool inBody() const;
    void endParagraph();
    void endText();
    int codePage();

    // Each does what a control word asks for; true if the word was one of its own.
    bool applyToText(const Keyword &keyword, Parameter parameter);
    bool applyToTables(const Keyword &keyword, Parameter parameter);

    void character(char16_t c);
    void unicode(int code);
    void enter(Destination destination);
    void skipGroup();
    void selectFont(int number);

    RtfLexer m_lexer;
    ContentCollector m_content;
    FontTable m_fonts;
    ColourTable m_colours;
    std::vector<Group> m_groups{Group{}};
    qsizetype m_depth = 0;     ///< open braces, also those that have no entry in m_groups
    qsizetype m_skipDepth = 0; ///< depth of the group being left out, 0 none
    bool m_ignorable = false;  ///< after \*: the group is left out if its word is not known
    bool m_finished = false;   ///< the first group was closed
    int m_fallbackLeft = 0;    ///< characters still to be left out after \u
    int m_codePageOfFile = 1252;
    int m_defaultFont = 0;
    Parameter m_codePage;                        ///< of the current font once looked up
    ListKind m_numbering = ListKind::None;       ///< of the \pn group being read
    ListKind m_listOfParagraph = ListKind::None; ///< known from the bullet or number written out before it
    QString m_marker;
};

RichContent RtfReader::read() {
    while (!m_finished && !m_content.isFull()) {
        const RtfToken token = m_lexer.next();
        switch (token.kind) {
        case RtfToken::Kind::End:
            m_finished = true;
            break;
        case RtfToken::Kind::Open:
            open();
            break;
        case RtfToken::Kind::Close:
            close();
            break;
        case RtfToken::Kind::Text:
            text(token.text);
            break;
        case RtfToken::Kind::Byte:
            byte(*token.parameter);
            break;
        case RtfToken::Kind::Word:
            word(token);
            break;
        case RtfToken::Kind::Symbol:
            symbol(token.text.front().unicode());
            break;
        }
    }
    endText();
    return m_content.take();
}

void RtfReader::open() {
    ++m_depth;
    m_fallbackLeft = 0;
    m_ignorable = false;
    if (m_skipDepth == 0 && m_depth <= kDeepestGroup) {
        m_groups.emplace_back(m_groups.back());
    }
}

void RtfReader::close() {
    m_fallbackLeft = 0;
    m_ignorable = false;
    if (m_depth <= 1) {
        m_finished = true;
        return;
    }
    if (m_skipDepth != 0 && m_depth > m_skipDepth) {
        --m_depth;
        return;
    }
    m_skipDepth = 0;
    if (m_depth-- > kDeepestGroup) {
        return;
    }
    const Destination closed = m_groups.back().destination;
    m_groups.pop_back();
    m_codePage.reset();
    if (closed == Destination::Fonts) {
        m_fonts.end(m_content);
    }
    if (closed == m_groups.back().destination) {
        return;
    }
    if (closed == Destination::Numbering) {
        m_groups.back().formats.paragraph.list = m_numbering;
    } else if (closed == Destination::Marker) {
        m_listOfParagraph = kindOfMarker(m_marker);
    }
}

void RtfReader::text(QStringView text) {
    m_ignorable = false;
    if (m_skipDepth != 0 || m_depth == 0) {
        return;
    }
    const qsizetype standIn = std::min<qsizetype>(m_fallbackLeft, text.size());
    m_fallbackLeft -= int(standIn);
    put(text.mid(standIn));
}

void RtfReader::byte(int value) {
    if (m_skipDepth == 0 && !takenAsFallback()) {
        put(codepages::decode(codePage(), quint8(value)));
    }
}

void RtfReader::symbol(char16_t c) {
    switch (c) {
    case u'*':
        m_ignorable = true;
        break;
    case u'\\':
    case u'{':
    case u'}':
        character(c);
        break;
    case u'~':
        character(QChar::Nbsp);
        break;
    case u'-':
        character(QChar::SoftHyphen);
        break;
    case u'_':
        character(0x2011); // non-breaking hyphen
        break;
    case u'\t':
        character(u'\t');
        break;
    case u'\r':
    case u'\n':
        endParagraph();
        break;
    default:
        break;
    }
}

void RtfReader::word(const RtfToken &token) {
    const Keyword *known = findKeyword(token.text);
    const bool opensDestination = known != nullptr && known->action == Action::Destination;
    if (m_ignorable && !opensDestination) {
        skipGroup();
    }
    m_ignorable = false;
    if (known == nullptr || known->action != Action::Character) {
        m_fallbackLeft = 0;
    }
    if (known == nullptr || (m_skipDepth != 0 && known->action != Action::Binary)) {
        return;
    }
    if (!applyToText(*known, token.parameter) && !applyToTables(*known, token.parameter)) {
        m_groups.back().formats.apply(*known, token.parameter, m_colours);
    }
}

bool RtfReader::takenAsFallback() {
    if (m_fallbackLeft == 0) {
        return false;
    }
    --m_fallbackLeft;
    return true;
}

void RtfReader::put(QStringView text) {
    switch (m_groups.back().destination) {
    case Destination::Body:
        m_content.append(text, m_groups.back().formats.character);
        break;
    case Destination::Fonts:
        m_fonts.addName(text, m_content);
        break;
    case Destination::Colours:
        m_colours.addText(text);
        break;
    case Destination::Marker:
        m_marker += text.left(kLongestMarker - m_marker.size());
        break;
    case Destination::Numbering:
        break;
    }
}

bool RtfReader::inBody() const {
    return m_skipDepth == 0 && m_groups.back().destination == Destination::Body;
}

void RtfReader::endParagraph() {
    m_fallbackLeft = 0;
    if (!inBody()) {
        return;
    }
    ParagraphStyle style = m_groups.back().formats.paragraph;
    if (style.list == ListKind::None) {
        style.list = m_listOfParagraph;
    }
    m_content.endParagraph(std::move(style), m_groups.back().formats.character);
    m_listOfParagraph = ListKind::None;
}

void RtfReader::endText() {
    // A text that was cut may end within a picture or a table, where no paragraph can.
    while (!inBody()) {
        close();
    }
    // Classic controls end the last paragraph too; without that it still is one.
    if (!m_content.atParagraphStart() || !m_content.hasParagraphs()) {
        endParagraph();
    }
}

int RtfReader::codePage() {
    if (!m_codePage) {
        const int font = m_groups.back().font;
        m_codePage = codepages::codePageOfCharset(m_fonts.font(font < 0 ? m_defaultFont : font).charset,
                                                  m_codePageOfFile);
    }
    return *m_codePage;
}

bool RtfReader::applyToText(const Keyword &keyword, Parameter parameter) {
    switch (keyword.action) {
    case Action::Character:
        character(char16_t(keyword.value));
        return true;
    case Action::Unicode:
        if (parameter) {
            unicode(*parameter);
        }
        return true;
    case Action::FallbackLength:
        m_groups.back().fallback = std::max(parameter.value_or(1), 0);
        return true;
    case Action::Binary:
        m_lexer.skip(parameter.value_or(0));
        return true;
    case Action::ParagraphEnd:
        endParagraph();
        return true;
    case Action::Destination:
        enter(Destination(keyword.value));
        return true;
    case Action::SkipGroup:
        skipGroup();
        return true;
    default:
        return false;
    }
}

bool RtfReader::applyToTables(const Keyword &keyword, Parameter parameter) {
    switch (keyword.action) {
    case Action::CodePage:
        m_codePageOfFile = keyword.value != 0 ? keyword.value : parameter.value_or(m_codePageOfFile);
        break;
    case Action::DefaultFont:
        m_defaultFont = parameter.value_or(0);
        break;
    case Action::Charset:
        m_fonts.setCharset(parameter.value_or(0));
        break;
    case Action::ColourComponent:
        m_colours.setComponent(ColourTable::Component(keyword.value), parameter.value_or(0));
        break;
    case Action::Numbering:
        m_numbering = ListKind(keyword.value);
        break;
    case Action::Font:
        selectFont(parameter.value_or(0));
        break;
    case Action::Plain:
        m_groups.back().formats.character = {};
        m_groups.back().font = -1;
        break;
    default:
        return false;
    }
    m_codePage.reset();
    return true;
}

void RtfReader::character(char16_t c) {
    if (m_skipDepth == 0 && !takenAsFallback()) {
        put(c);
    }
}

void RtfReader::unicode(int code) {
    constexpr int units = 0x10000;
    // Written as a signed 16-bit number; some programs write the whole code point.
    const int unsignedCode = code < 0 ? code + units : code;
    if (unsignedCode >= 0 && unsignedCode < units) {
        put(char16_t(unsignedCode));
    } else if (unsignedCode >= units && char32_t(unsignedCode) <= QChar::LastValidCodePoint) {
        put(QChar::highSurrogate(char32_t(unsignedCode)));
        put(QChar::lowSurrogate(char32_t(unsignedCode)));
    } else {
        put(QChar::ReplacementCharacter);
    }
    m_fallbackLeft = m_groups.back().fallback;
}

void RtfReader::enter(Destination destination) {
    if (m_depth > kDeepestGroup) {
        skipGroup();
    } else if (m_depth > 1) {
        m_groups.back().destination = destination;
        m_numbering = ListKind::None;
        m_marker.clear();
    }
}

void RtfReader::skipGroup() {
    // The file itself is never left out, whatever its first word.
    if (m_skipDepth == 0 && m_depth > 1) {
        m_skipDepth = m_depth;
    }
}

void RtfReader::selectFont(int number) {
    if (m_groups.back().destination == Destination::Fonts) {
        m_fonts.begin(number);
    } else {
        m_groups.back().font = number;
        m_groups.back().formats.character.family = m_fonts.font(number).family;
    }
}

} // namespace

RichContent readRtf(QStringView source, qsizetype longest) {
    return RtfReader(source, longest).read();
}

} // namespace platform::richtext
