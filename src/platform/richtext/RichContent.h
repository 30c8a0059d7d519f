#pragma once

#include <QHash>
#include <QList>
#include <QRgb>
#include <QString>
#include <QStringList>
#include <QTextOption>
#include <limits>
#include <vector>

namespace platform::richtext {

/// Twips to a pixel of a document.
constexpr double kTwipsPerPixel = 15.0;

/// 1638 points, the largest font of rich text controls.
constexpr int kLargestHalfPoints = 3276;

/// What is set for a run of characters; a value that is not set leaves the document's own.
struct CharacterStyle {
    int family = -1;     ///< position in RichContent::families, -1 not set
    int halfPoints = 0;  ///< 0 not set
    QRgb foreground = 0; ///< opaque, 0 not set
    QRgb background = 0; ///< opaque, 0 not set
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;

    friend bool operator==(const CharacterStyle &, const CharacterStyle &) = default;
    friend size_t qHash(const CharacterStyle &style, size_t seed);
};

enum class ListKind { None, Bullet, Decimal, LowerLetter, UpperLetter, LowerRoman, UpperRoman };

struct TabStop {
    int position; ///< twips
    QTextOption::TabType type;

    friend bool operator==(const TabStop &, const TabStop &) = default;
};

/// What is set for a paragraph, in twips.
struct ParagraphStyle {
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    ListKind list = ListKind::None;
    int left = 0;
    int right = 0;
    int firstLine = 0; ///< counted from left; negative hangs
    int before = 0;
    int after = 0;
    std::vector<TabStop> tabs;

    /// Adds a tab stop unless it lies outside of any page or there are as many as rich text controls keep.
    void addTab(TabStop stop);

    /// Brings the lengths within what a text box can show, so that no text ends up outside of it. In a list
    /// the first line has no indent of its own: the document places the bullet in the left margin, which gets
    /// room for it.
    void normalise();

    friend bool operator==(const ParagraphStyle &, const ParagraphStyle &) = default;
};

/// A formatted text apart from any document: its characters, and the places where runs and paragraphs end.
struct RichContent {
    struct Run {
        qsizetype end; ///< position in text
        int style;     ///< position in characterStyles
    };

    struct Paragraph {
        qsizetype end; ///< position in text, which holds no paragraph separators
        int style;     ///< position in paragraphStyles
        int mark;      ///< position in characterStyles, of the paragraph's end
    };

    QString text;
    std::vector<Run> runs;             ///< each lies within one paragraph and is not empty
    std::vector<Paragraph> paragraphs; ///< at least one
    std::vector<CharacterStyle> characterStyles;
    std::vector<ParagraphStyle> paragraphStyles;
    QStringList families;
    bool isWhole = true; ///< false where the text was longer than it was to be read

    /// As QTextDocument::toPlainText() gives it.
    QString plainText() const;
};

/// No limit to the characters of a text.
constexpr qsizetype kAnyLength = std::numeric_limits<qsizetype>::max();

/// Collects a RichContent from front to back.
class ContentCollector {
public:
    /// Takes so many characters at most, ends of paragraphs counted.
    explicit ContentCollector(qsizetype longest = kAnyLength) : m_longest(longest) {}

    /// Adds characters to the current paragraph; those that a document cannot hold as text are left out.
    void append(QStringView text, const CharacterStyle &style);
    void endParagraph(ParagraphStyle style, const CharacterStyle &mark);
    /// The position of a font family among the families; -1 for a name that is none, or one of far too many.
    int family(QStringView name);
    /// True when nothing was added since the last paragraph ended.
    bool atParagraphStart() const;

    bool hasParagraphs() const { return !m_content.paragraphs.empty(); }

    /// True when something had to be left out: nothing more is taken.
    bool isFull() const { return !m_content.isWhole; }

    RichContent take() { return std::move(m_content); }

private:
    int indexOf(const CharacterStyle &style);
    bool keeps(const std::vector<TabStop> &tabs);
    qsizetype room() const;

    qsizetype m_longest;
    RichContent m_content;
    QHash<CharacterStyle, int> m_styles;
    QHash<QString, int> m_families;
    std::vector<std::vector<TabStop>> m_tabLists;
};

/// False for control characters and for those by which a document marks frames and objects.
bool isText(char16_t character);

/// A family name as a font table can hold it, empty if nothing is left.
QString familyName(QStringView name);

/// The content of a text without formatting, up to so many characters; LF, CR LF and CR end paragraphs.
RichContent readPlain(QStringView text, qsizetype longest = kAnyLength);

} // namespace platform::richtext
