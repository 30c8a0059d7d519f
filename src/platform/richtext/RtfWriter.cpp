#include "ListKinds.h"
#include "RichContent.h"
#include "RichText.h"
#include "RtfSource.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <array>
#include <optional>

namespace platform::richtext {

namespace {

/// Stands for the document's own font, which no run names; the fonts that runs name follow it.
constexpr std::u16string_view kDefaultFamily = u"Verdana";
constexpr int kFirstFont = 1;
constexpr int kHangingBullet = 200; // twips between a bullet and its text

constexpr std::array<std::pair<Qt::AlignmentFlag, const char *>, 3> kAlignments{
    {{Qt::AlignRight, "qr"}, {Qt::AlignHCenter, "qc"}, {Qt::AlignJustify, "qj"}}};

constexpr std::array<std::pair<QTextOption::TabType, const char *>, 3> kTabTypes{
    {{QTextOption::RightTab, "tqr"}, {QTextOption::CenterTab, "tqc"}, {QTextOption::DelimiterTab, "tqdec"}}};

int twips(qreal pixels) {
    return qRound(std::clamp(pixels, -1e6, 1e6) * kTwipsPerPixel);
}

int halfPoints(const QTextCharFormat &format) {
    constexpr double twipsPerHalfPoint = 10;
    const double size =
        format.hasProperty(QTextFormat::FontPixelSize)
            ? format.intProperty(QTextFormat::FontPixelSize) * kTwipsPerPixel / twipsPerHalfPoint
            : format.fontPointSize() * 2;
    return int(std::clamp(size + 0.5, 0.0, double(kLargestHalfPoints)));
}

QRgb solidColour(const QBrush &brush) {
    constexpr QRgb opaque = 0xFF000000;
    return brush.style() == Qt::SolidPattern ? brush.color().rgb() | opaque : 0;
}

Qt::AlignmentFlag alignment(const QTextBlockFormat &format) {
    for (const auto &[flag, word] : kAlignments) {
        if (format.alignment().testFlag(flag)) {
            return flag;
        }
    }
    return Qt::AlignLeft;
}

ParagraphStyle paragraphStyle(const QTextBlock &block) {
    const QTextBlockFormat format = block.blockFormat();
    const QTextList *list = block.textList();
    const int indents = format.indent() + (list != nullptr ? list->format().indent() : 0);
    ParagraphStyle style;
    style.alignment = alignment(format);
    style.list = list != nullptr ? listForm(list->format().style()).kind : ListKind::None;
    style.left = twips(format.leftMargin() + indents * block.document()->indentWidth());
    style.right = twips(format.rightMargin());
    style.firstLine = twips(format.textIndent());
    style.before = twips(format.topMargin());
    style.after = twips(format.bottomMargin());
    for (const QTextOption::Tab &tab : format.tabPositions()) {
        style.addTab({twips(tab.position), tab.type});
    }
    style.normalise();
    return style;
}

class RtfWriter {
public:
    QString write(const QTextDocument &document);

private:
    void block(const QTextBlock &block);
    void paragraphFormat(const ParagraphStyle &style);
    void marker(ListKind kind);
    void numbering(ListKind kind);
    void lengths(const ParagraphStyle &style);
    void characterFormat(const CharacterStyle &style);
    void toggle(bool wanted, bool current, const char *on, const char *off);
    /// Of a fragment, or of a block's end; reading a format costs more than looking it up.
    template <typename Part>
    const CharacterStyle &styleOf(const Part &part);
    CharacterStyle characterStyle(const QTextCharFormat &format);
    int familyNumber(const QString &family);
    int colourNumber(QRgb colour);
    QByteArray header() const;

    RtfSource m_body;
    QStringList m_families;
    std::vector<QRgb> m_colours; ///< the table from its second entry on; the first is "automatic"
    QHash<QRgb, int> m_colourNumbers;
    QHash<int, CharacterStyle> m_styles; ///< by number of the format in the document
    CharacterStyle m_character;
    std::optional<ParagraphStyle> m_paragraph;
    int m_itemNumber = 0;
};

QString RtfWriter::write(const QTextDocument &document) {
    for (QTextBlock each = document.begin(); each.isValid(); each = each.next()) {
        block(each);
    }
    return QString::fromLatin1(header() + m_body.take() + "}\r\n");
}

void RtfWriter::block(const QTextBlock &block) {
    paragraphFormat(paragraphStyle(block));
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        characterFormat(styleOf(fragment));
        m_body.text(fragment.text());
    }
    characterFormat(styleOf(block));
    m_body.word("par");
    m_body.syntax("\r\n");
}

void RtfWriter::paragraphFormat(const ParagraphStyle &style) {
    const bool continues = m_paragraph == style;
    m_itemNumber = continues ? m_itemNumber + 1 : 1;
    if (!continues) {
        m_body.word("pard");
    }
    if (style.list != ListKind::None) {
        marker(style.list);
    }
    if (continues) {
        return;
    }
    if (style.list != ListKind::None) {
        numbering(style.list);
    }
    lengths(style);
    m_paragraph = style;
}

/// The bullet or number as text, for readers that know no lists.
void RtfWriter::marker(ListKind kind) {
    m_body.syntax("{");
    m_body.word("pntext");
    m_body.text(kind == ListKind::Bullet ? QStringLiteral("\u2022") : QString::number(m_itemNumber) + u'.');
    m_body.word("tab");
    m_body.syntax("}");
}

void RtfWriter::numbering(ListKind kind) {
    m_body.syntax("{\\*");
    m_body.word("pn");
    m_body.word(kind == ListKind::Bullet ? "pnlvlblt" : "pnlvlbody");
    m_body.word("pnindent", 0);
    if (kind == ListKind::Bullet) {
        m_body.syntax("{");
        m_body.word("pntxtb");
        m_body.text(u"\u2022");
    } else {
        m_body.word("pnstart", 1);
        m_body.word(listForm(kind).word);
        m_body.syntax("{");
        m_body.word("pntxta");
        m_body.text(u".");
    }
    m_body.syntax("}}");
}

void RtfWriter::lengths(const ParagraphStyle &style) {
    const int firstLine =
        style.list == ListKind::None ? style.firstLine : -std::min(style.left, kHangingBullet);
    const std::array<std::pair<const char *, int>, 5> words{{
        {"fi", firstLine},
        {"li", style.left},
        {"ri", style.right},
        {"sb", style.before},
        {"sa", style.after},
    }};
    for (const auto &[word, value] : words) {
        if (value != 0) {
            m_body.word(word, value);
        }
    }
    for (const auto &[flag, word] : kAlignments) {
        if (style.alignment == flag) {
            m_body.word(word);
        }
    }
    for (const TabStop &stop : style.tabs) {
        for (const auto &[type, word] : kTabTypes) {
            if (stop.type == type) {
                m_body.word(word);
            }
        }
        m_body.word("tx", stop.position);
    }
}

void RtfWriter::characterFormat(const CharacterStyle &style) {
    const bool unsetsFont = m_character.family >= 0 && style.family < 0;
    const bool unsetsSize = m_character.halfPoints > 0 && style.halfPoints == 0;
    if (unsetsFont || unsetsSize) {
        // No other word takes a font or a size back.
        m_body.word("plain");
        m_character = {};
    }
    if (style.family != m_character.family) {
        m_body.word("f", style.family + kFirstFont);
    }
    if (style.halfPoints != m_character.halfPoints) {
        m_body.word("fs", style.halfPoints);
    }
    if (style.foreground != m_character.foreground) {
        m_body.word("cf", colourNumber(style.foreground));
    }
    if (style.background != m_character.background) {
        m_body.word("highlight", colourNumber(style.background));
    }
    toggle(style.bold, m_character.bold, "b", "b0");
    toggle(style.italic, m_character.italic, "i", "i0");
    toggle(style.underline, m_character.underline, "ul", "ulnone");
    toggle(style.strike, m_character.strike, "strike", "strike0");
    m_character = style;
}

void RtfWriter::toggle(bool wanted, bool current, const char *on, const char *off) {
    if (wanted != current) {
        m_body.word(wanted ? on : off);
    }
}

template <typename Part>
const CharacterStyle &RtfWriter::styleOf(const Part &part) {
    const auto known = m_styles.constFind(part.charFormatIndex());
    return known != m_styles.cend()
               ? *known
               : *m_styles.insert(part.charFormatIndex(), characterStyle(part.charFormat()));
}

CharacterStyle RtfWriter::characterStyle(const QTextCharFormat &format) {
    CharacterStyle style;
    style.family = familyNumber(format.fontFamilies().toStringList().value(0));
    style.halfPoints = halfPoints(format);
    style.foreground = solidColour(format.foreground());
    style.background = solidColour(format.background());
    style.bold = format.fontWeight() >= QFont::DemiBold;
    style.italic = format.fontItalic();
    style.underline = format.underlineStyle() != QTextCharFormat::NoUnderline;
    style.strike = format.fontStrikeOut();
    return style;
}

int RtfWriter::familyNumber(const QString &family) {
    const QString name = familyName(family);
    if (name.isEmpty()) {
        return -1;
    }
    const qsizetype known = m_families.indexOf(name);
    if (known >= 0) {
        return int(known);
    }
    m_families += name;
    return int(m_families.size()) - 1;
}

int RtfWriter::colourNumber(QRgb colour) {
    if (colour == 0) {
        return 0;
    }
    const auto known = m_colourNumbers.constFind(colour);
    if (known != m_colourNumbers.cend()) {
        return *known;
    }
    m_colours.push_back(colour);
    return *m_colourNumbers.insert(colour, int(m_colours.size()));
}

QByteArray RtfWriter::header() const {
    RtfSource source;
    source.syntax(R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl)");
    for (qsizetype i = -1; i < m_families.size(); ++i) {
        source.syntax("{");
        source.word("f", int(i) + kFirstFont);
        source.syntax("\\fnil\\fcharset0 ");
        source.text(i < 0 ? QStringView(kDefaultFamily) : QStringView(m_families[i]));
        source.syntax(";}");
    }
    source.syntax("}\r\n");
    if (!m_colours.empty()) {
        source.syntax("{\\colortbl ;");
        for (const QRgb colour : m_colours) {
            source.word("red", qRed(colour));
            source.word("green", qGreen(colour));
            source.word("blue", qBlue(colour));
            source.syntax(";");
        }
        source.syntax("}\r\n");
    }
    source.syntax("\\viewkind4\\uc1");
    return source.take();
}

} // namespace

QString toRtf(const QTextDocument &document) {
    return RtfWriter().write(document);
}

} // namespace platform::richtext
