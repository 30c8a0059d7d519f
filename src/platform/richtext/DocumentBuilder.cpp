#include "DocumentBuilder.h"

#include "ListKinds.h"
#include "RichContent.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <iterator>

namespace platform::richtext {

namespace {

/// Wrapping at words takes time by the square of a run without a blank: a longer one may break anywhere.
constexpr qsizetype kLongestRun = 10'000;

/// A document looks at every item of a list for each one added: longer ones continue in a list of their own.
constexpr int kLongestList = 200;

QTextCharFormat characterFormat(const CharacterStyle &style, const QStringList &families) {
    QTextCharFormat format;
    if (style.family >= 0) {
        format.setFontFamilies({families[style.family]});
    }
    if (style.halfPoints > 0) {
        format.setFontPointSize(style.halfPoints / 2.0);
    }
    if (style.foreground != 0) {
        format.setForeground(QColor(style.foreground));
    }
    if (style.background != 0) {
        format.setBackground(QColor(style.background));
    }
    if (style.bold) {
        format.setFontWeight(QFont::Bold);
    }
    if (style.italic) {
        format.setFontItalic(true);
    }
    if (style.underline) {
        format.setFontUnderline(true);
    }
    if (style.strike) {
        format.setFontStrikeOut(true);
    }
    return format;
}

QTextBlockFormat blockFormat(const ParagraphStyle &style) {
    using Setter = void (QTextBlockFormat::*)(qreal);
    constexpr std::array<std::pair<int ParagraphStyle::*, Setter>, 5> lengths{{
        {&ParagraphStyle::left, &QTextBlockFormat::setLeftMargin},
        {&ParagraphStyle::right, &QTextBlockFormat::setRightMargin},
        {&ParagraphStyle::firstLine, &QTextBlockFormat::setTextIndent},
        {&ParagraphStyle::before, &QTextBlockFormat::setTopMargin},
        {&ParagraphStyle::after, &QTextBlockFormat::setBottomMargin},
    }};
    QTextBlockFormat format;
    if (style.alignment != Qt::AlignLeft) {
        format.setAlignment(style.alignment);
    }
    for (const auto &[length, set] : lengths) {
        if (style.*length != 0) {
            (format.*set)(style.*length / kTwipsPerPixel);
        }
    }
    if (!style.tabs.empty()) {
        QList<QTextOption::Tab> tabs;
        std::transform(
            style.tabs.begin(), style.tabs.end(), std::back_inserter(tabs),
            [](const TabStop &stop) { return QTextOption::Tab(stop.position / kTwipsPerPixel, stop.type); });
        format.setTabPositions(tabs);
    }
    return format;
}

/// True where the text has a run without a blank that is too long to look for words in it.
bool hasLongRun(const RichContent &content) {
    qsizetype start = 0;
    return std::any_of(
        content.paragraphs.begin(), content.paragraphs.end(), [&](const RichContent::Paragraph &paragraph) {
            const QStringView text = QStringView(content.text).sliced(start, paragraph.end - start);
            start = paragraph.end;
            qsizetype run = 0;
            return std::any_of(text.begin(), text.end(), [&run](QChar character) {
                run = character.isSpace() ? 0 : run + 1;
                return run > kLongestRun;
            });
        });
}

void wrap(QTextDocument &document, QTextOption::WrapMode mode) {
    QTextOption option = document.defaultTextOption();
    if (option.wrapMode() != mode) {
        option.setWrapMode(mode);
        document.setDefaultTextOption(option);
    }
}

/// To be called before the content is put in, since putting it in lays it out.
void wrapAnywhereForLongRuns(QTextDocument &document, const RichContent &content) {
    if (hasLongRun(content)) {
        wrap(document, QTextOption::WrapAnywhere);
    }
}

QTextListFormat listFormat(ListKind kind) {
    QTextListFormat format;
    format.setStyle(listForm(kind).style);
    // The left margin of the paragraph is the whole indent; a list would add one of its own.
    format.setIndent(0);
    return format;
}

/// Puts the content into a document, at the cursor.
class Filler {
public:
    Filler(QTextCursor &cursor, const RichContent &content) : m_cursor(cursor), m_content(content) {
        std::transform(content.characterStyles.begin(), content.characterStyles.end(),
                       std::back_inserter(m_characterFormats),
                       [&](const CharacterStyle &style) { return characterFormat(style, content.families); });
        std::transform(content.paragraphStyles.begin(), content.paragraphStyles.end(),
                       std::back_inserter(m_blockFormats), blockFormat);
    }

    void fill() {
        auto run = m_content.runs.begin();
        qsizetype start = 0;
        for (const RichContent::Paragraph &paragraph : m_content.paragraphs) {
            beginBlock(paragraph, &paragraph == &m_content.paragraphs.front());
            for (; run != m_content.runs.end() && run->end <= paragraph.end; ++run) {
                m_cursor.insertText(m_content.text.mid(start, run->end - start),
                                    m_characterFormats[size_t(run->style)]);
                start = run->end;
            }
        }
    }

private:
    /// The list that goes on at a margin.
    struct OpenList {
        int left;
        ListKind kind;
        QTextList *list; ///< owned by the document
    };

    void beginBlock(const RichContent::Paragraph &paragraph, bool first) {
        const ParagraphStyle &style = m_content.paragraphStyles[size_t(paragraph.style)];
        const QTextBlockFormat &format = m_blockFormats[size_t(paragraph.style)];
        const QTextCharFormat &mark = m_characterFormats[size_t(paragraph.mark)];
        if (!first) {
            m_cursor.insertBlock(format, mark);
        } else if (m_cursor.document()->isEmpty()) {
            m_cursor.setBlockFormat(format);
            m_cursor.setBlockCharFormat(mark);
        } else if (style.list != ListKind::None && m_cursor.block().length() == 1) {
            m_cursor.setBlockFormat(format);
        } else {
            return; // goes on with the paragraph that it is put into
        }
        joinList(style);
    }

    /// Items go on with the list of their margin, past those of a deeper one.
    void joinList(const ParagraphStyle &style) {
        while (!m_lists.empty() && (style.list == ListKind::None || m_lists.back().left > style.left)) {
            m_lists.pop_back();
        }
        if (style.list == ListKind::None) {
            return;
        }
        if (!m_lists.empty() && m_lists.back().left == style.left) {
            if (m_lists.back().kind == style.list && m_lists.back().list->count() < kLongestList) {
                m_lists.back().list->add(m_cursor.block());
                return;
            }
            m_lists.pop_back();
        }
        m_lists.push_back({style.left, style.list, m_cursor.createList(listFormat(style.list))});
    }

    QTextCursor &m_cursor;
    const RichContent &m_content;
    std::vector<QTextCharFormat> m_characterFormats;
    std::vector<QTextBlockFormat> m_blockFormats;
    std::vector<OpenList> m_lists; ///< by growing margin
};

} // namespace

void build(QTextDocument &document, const RichContent &content) {
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    document.clear();
    wrap(document,
         hasLongRun(content) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
    Filler(cursor, content).fill();
    cursor.endEditBlock();
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
}

void insert(QTextCursor &cursor, const RichContent &content) {
    cursor.beginEditBlock();
    wrapAnywhereForLongRuns(*cursor.document(), content);
    cursor.removeSelectedText();
    Filler(cursor, content).fill();
    cursor.endEditBlock();
}

void insertPlain(QTextCursor &cursor, const RichContent &content) {
    cursor.beginEditBlock();
    wrapAnywhereForLongRuns(*cursor.document(), content);
    cursor.removeSelectedText();
    qsizetype start = 0;
    for (const RichContent::Paragraph &paragraph : content.paragraphs) {
        if (&paragraph != &content.paragraphs.front()) {
            cursor.insertBlock();
        }
        cursor.insertText(content.text.mid(start, paragraph.end - start));
        start = paragraph.end;
    }
    cursor.endEditBlock();
}

} // namespace platform::richtext
