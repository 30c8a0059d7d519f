#include "HtmlReader.h"

#include "HtmlLexer.h"
#include "HtmlStyles.h"
#include "ListKinds.h"

#include <QColor>
#include <QSet>
#include <algorithm>
#include <array>

namespace platform::richtext {

namespace {

constexpr size_t kDeepest = 400;  // deeper elements share the formats of this one
constexpr int kLevelIndent = 360; // twips between the levels of a list
constexpr int kDeepestLevel = 9;
constexpr int kNoItem = -1;

/// The item of a list that text belongs to.
struct Item {
    ListKind kind = ListKind::None;
    int left = 0; ///< twips
};

struct Element {
    QString name;
    CharacterStyle style;
    ListKind list = ListKind::None; ///< of the items within
    int level = 0;                  ///< how many lists stand around
    int item = kNoItem;             ///< position in the reader's items
    bool flatList = false;
    bool preserved = false;
    bool link = false;
    bool hidden = false;
    bool marker = false;  ///< holds the written number or bullet of the item
    bool hasCell = false; ///< a row that a cell was seen of
};

/// What stands between the text read so far and that which comes next.
enum class Gap { None, Blank, Cell, Paragraph };

const QSet<QString> &blocks() {
    static const QSet<QString> names{
        QStringLiteral("address"),    QStringLiteral("article"),    QStringLiteral("aside"),
        QStringLiteral("blockquote"), QStringLiteral("body"),       QStringLiteral("caption"),
        QStringLiteral("center"),     QStringLiteral("dd"),         QStringLiteral("details"),
        QStringLiteral("div"),        QStringLiteral("dl"),         QStringLiteral("dt"),
        QStringLiteral("fieldset"),   QStringLiteral("figcaption"), QStringLiteral("figure"),
        QStringLiteral("footer"),     QStringLiteral("form"),       QStringLiteral("h1"),
        QStringLiteral("h2"),         QStringLiteral("h3"),         QStringLiteral("h4"),
        QStringLiteral("h5"),         QStringLiteral("h6"),         QStringLiteral("header"),
        QStringLiteral("hr"),         QStringLiteral("legend"),     QStringLiteral("li"),
        QStringLiteral("main"),       QStringLiteral("nav"),        QStringLiteral("ol"),
        QStringLiteral("p"),          QStringLiteral("pre"),        QStringLiteral("section"),
        QStringLiteral("summary"),    QStringLiteral("table"),      QStringLiteral("ul")};
    return names;
}

bool isOneOf(QStringView name, std::initializer_list<QStringView> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isHeading(QStringView name) {
    return name.size() == 2 && name[0] == u'h' && name[1] >= u'1' && name[1] <= u'6';
}

bool isEmptyElement(QStringView name) {
    return isOneOf(name, {u"area", u"base", u"br", u"col", u"embed", u"hr", u"img", u"input", u"link",
                          u"meta", u"param", u"source", u"track", u"wbr"});
}

bool isRawElement(QStringView name) {
    return isOneOf(name, {u"script", u"style", u"title", u"textarea", u"noscript", u"iframe", u"xmp"});
}

bool isHiddenElement(QStringView name) {
    return isOneOf(name,
                   {u"audio", u"button", u"canvas", u"object", u"select", u"svg", u"template", u"video"});
}

ListKind listKind(QStringView name, const QString &type) {
    if (name == u"ul") {
        return ListKind::Bullet;
    }
    if (type == u"a") {
        return ListKind::LowerLetter;
    }
    if (type == u"A") {
        return ListKind::UpperLetter;
    }
    if (type == u"i") {
        return ListKind::LowerRoman;
    }
    return type == u"I" ? ListKind::UpperRoman : ListKind::Decimal;
}

/// 0 for what names no opaque colour.
QRgb readColour(QString value) {
    constexpr int opaque = 255;
    value = value.trimmed();
    const qsizetype bracket = value.indexOf(u'(');
    if (bracket < 0) {
        const QColor colour(value);
        return colour.isValid() && colour.alpha() == opaque ? colour.rgb() : 0;
    }
    const QString numbers = value.mid(bracket + 1).remove(u')').replace(u',', u' ');
    const QStringList parts = numbers.split(u' ', Qt::SkipEmptyParts);
    if (!value.startsWith(u"rgb") || parts.size() < 3) {
        return 0;
    }
    const auto component = [&](qsizetype i) { return std::clamp(qRound(parts[i].toDouble()), 0, opaque); };
    return qRgb(component(0), component(1), component(2));
}

class HtmlReader {
public:
    explicit HtmlReader(QStringView source) : m_lexer(source) {}

    RichContent read();

private:
    void open(const HtmlToken &token);
    void close(const QString &name);
    void closeImplied(const QString &name);
    void closeUpTo(QStringView name, std::initializer_list<QStringView> bounds);
    void raw(const QString &name);

    // Each gives the element one part of what its tag and its style ask for.
    void applyTag(Element &element, const QHash<QString, QString> &attributes);
    void applyStyle(Element &element, const HtmlStyle &style);
    void beginItem(Element &element, ListKind kind, int left);
    void beginCell();

    void text(QStringView source);
    void preserved(const QString &text);
    void collapsed(const QString &text);
    void put(QStringView text);
    void lineBreak();
    void endLine();
    void fillGap();
    void endParagraph();

    HtmlLexer m_lexer;
    HtmlEntities m_entities;
    StyleSheet m_sheet;
    ContentCollector m_content;
    std::vector<Element> m_elements{Element{}};
    std::vector<Item> m_items;
    size_t m_excess = 0; ///< open elements beyond the deepest kept
    Gap m_gap = Gap::None;
    CharacterStyle m_gapStyle;
    bool m_inParagraph = false; ///< the paragraph that ends next has something in it
    int m_itemOfParagraph = kNoItem;
    CharacterStyle m_breakStyle;
    int m_breaks = 0; ///< line breaks that count once something follows them
};

RichContent HtmlReader::read() {
    for (HtmlToken token = m_lexer.next(); token.kind != HtmlToken::Kind::End; token = m_lexer.next()) {
        switch (token.kind) {
        case HtmlToken::Kind::Open:
            open(token);
            break;
        case HtmlToken::Kind::Close:
            close(token.text.toString().toLower());
            break;
        default:
            text(token.text);
        }
    }
    if (m_inParagraph || !m_content.hasParagraphs()) {
        endParagraph();
    }
    return m_content.take();
}

void HtmlReader::open(const HtmlToken &token) {
    const QString name = token.text.toString().toLower();
    if (isRawElement(name)) {
        raw(name);
        return;
    }
    if (name == u"br") {
        lineBreak();
        return;
    }
    closeImplied(name);
    if (blocks().contains(name)) {
        endLine();
    }
    if (name == u"tr") {
        m_gap = Gap::Paragraph;
    } else if (name == u"td" || name == u"th") {
        beginCell();
    }
    if (isEmptyElement(name)) {
        return;
    }
    if (m_elements.size() == kDeepest) {
        ++m_excess;
        return;
    }
    Element element = m_elements.back();
    element.name = name;
    element.hasCell = false;
    const QHash<QString, QString> attributes = htmlAttributes(token.attributes, m_entities);
    HtmlStyle style = m_sheet.styleOf(name, attributes.value(QStringLiteral("class")));
    style.add(readDeclarations(attributes.value(QStringLiteral("style"))));
    applyTag(element, attributes);
    applyStyle(element, style);
    m_elements.push_back(std::move(element));
}

void HtmlReader::close(const QString &name) {
    if (m_excess > 0) {
        --m_excess;
        return;
    }
    if (name == u"p" || blocks().contains(name)) {
        endLine();
    } else if (name == u"tr") {
        m_gap = Gap::Paragraph;
    }
    const auto found = std::find_if(m_elements.rbegin(), m_elements.rend(),
                                    [&name](const Element &element) { return element.name == name; });
    if (found != m_elements.rend() && !name.isEmpty()) {
        m_elements.erase(found.base() - 1, m_elements.end());
    }
}

/// Ends the elements that need no end tag before an element of a name.
void HtmlReader::closeImplied(const QString &name) {
    if (m_excess > 0) {
        return;
    }
    if (name == u"p") {
        closeUpTo(u"p", {u"div", u"li", u"td", u"th", u"table", u"blockquote"});
    } else if (name == u"li") {
        closeUpTo(u"li", {u"ul", u"ol"});
    } else if (name == u"td" || name == u"th") {
        closeUpTo(u"td", {u"tr", u"table"});
        closeUpTo(u"th", {u"tr", u"table"});
    } else if (name == u"tr") {
        closeUpTo(u"tr", {u"table"});
    }
}

void HtmlReader::closeUpTo(QStringView name, std::initializer_list<QStringView> bounds) {
    const auto found = std::find_if(m_elements.rbegin(), m_elements.rend(), [&](const Element &element) {
        return element.name == name || isOneOf(element.name, bounds);
    });
    if (found != m_elements.rend() && found->name == name) {
        m_elements.erase(found.base() - 1, m_elements.end());
    }
}

void HtmlReader::raw(const QString &name) {
    const QStringView content = m_lexer.rawText(name);
    if (name == u"style") {
        m_sheet.read(content);
    }
}

void HtmlReader::applyTag(Element &element, const QHash<QString, QString> &attributes) {
    const QString &name = element.name;
    if (isOneOf(name, {u"b", u"strong", u"th"}) || isHeading(name)) {
        element.style.bold = true;
    } else if (isOneOf(name, {u"i", u"em", u"cite", u"var", u"dfn"})) {
        element.style.italic = true;
    } else if (isOneOf(name, {u"u", u"ins"})) {
        element.style.underline = !element.link;
    } else if (name == u"a" && attributes.contains(QStringLiteral("href"))) {
        element.link = true;
    } else if (name == u"pre") {
        element.preserved = true;
    } else if (name == u"ul" || name == u"ol") {
        element.list = listKind(name, attributes.value(QStringLiteral("type")));
        element.level = std::min(element.level + 1, kDeepestLevel);
        element.item = kNoItem;
    } else if (isHiddenElement(name)) {
        element.hidden = true;
    } else if (name == u"font" && !element.link) {
        const QRgb colour = readColour(attributes.value(QStringLiteral("color")));
        element.style.foreground = colour != 0 ? colour : element.style.foreground;
    }
}

void HtmlReader::applyStyle(Element &element, const HtmlStyle &style) {
    element.style.bold = style.bold.value_or(element.style.bold);
    element.style.italic = style.italic.value_or(element.style.italic);
    element.preserved = style.preserved.value_or(element.preserved);
    element.hidden = element.hidden || style.hidden.value_or(false);
    element.marker = element.marker || style.listMarker.value_or(false);
    element.flatList = style.flatList.value_or(element.flatList);
    if (!element.link) {
        element.style.underline = style.underline.value_or(element.style.underline);
        const QRgb colour = readColour(style.colour);
        element.style.foreground = colour != 0 ? colour : element.style.foreground;
    }
    if (element.name == u"li") {
        constexpr double largest = 2000; // pixels
        const double pixels = element.flatList ? std::clamp(style.left.value_or(0), 0.0, largest) : 0;
        const int left = qRound(pixels * kTwipsPerPixel);
        const ListKind kind = element.list == ListKind::None ? ListKind::Bullet : element.list;
        beginItem(element, kind, left > 0 ? left : std::max(element.level, 1) * kLevelIndent);
    } else if (style.listLevel) {
        beginItem(element, ListKind::Bullet, std::min(*style.listLevel, kDeepestLevel) * kLevelIndent);
    }
}

void HtmlReader::beginItem(Element &element, ListKind kind, int left) {
    element.item = int(m_items.size());
    m_items.push_back({kind, left});
}

void HtmlReader::beginCell() {
    const auto row = std::find_if(m_elements.rbegin(), m_elements.rend(),
                                  [](const Element &element) { return element.name == u"tr"; });
    if (row == m_elements.rend()) {
        endLine();
    } else if (row->hasCell) {
        m_gap = Gap::Cell;
    } else {
        row->hasCell = true;
    }
}

void HtmlReader::text(QStringView source) {
    const Element &element = m_elements.back();
    if (element.hidden) {
        return;
    }
    const QString text = m_entities.read(source);
    if (element.marker) {
        const ListKind kind = kindOfMarker(QStringView(text).left(16));
        if (kind != ListKind::None && element.item != kNoItem) {
            m_items[size_t(element.item)].kind = kind;
        }
    } else if (element.preserved) {
        preserved(text);
    } else {
        collapsed(text);
    }
}

void HtmlReader::preserved(const QString &text) {
    bool first = true;
    for (const QStringView line : QStringView(text).tokenize(u'\n')) {
        if (!first) {
            lineBreak();
        }
        first = false;
        if (!line.isEmpty()) {
            put(line);
        }
    }
}

void HtmlReader::collapsed(const QString &text) {
    const auto isBlank = [](QChar c) {
        return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r' || c == u'\f';
    };
    for (auto at = text.begin(); at != text.end();) {
        if (isBlank(*at)) {
            if (m_inParagraph && m_gap == Gap::None && m_breaks == 0) {
                m_gap = Gap::Blank;
                m_gapStyle = m_elements.back().style;
            }
            at = std::find_if_not(at, text.end(), isBlank);
        } else {
            const auto end = std::find_if(at, text.end(), isBlank);
            put(QStringView(at, end));
            at = end;
        }
    }
}

void HtmlReader::put(QStringView text) {
    fillGap();
    for (; m_breaks > 0; --m_breaks) {
        m_content.append(u"\u2028", m_breakStyle);
    }
    m_content.append(text, m_elements.back().style);
}

void HtmlReader::lineBreak() {
    if (m_elements.back().hidden) {
        return;
    }
    if (m_gap == Gap::Blank) {
        m_gap = Gap::None;
    }
    fillGap();
    m_breakStyle = m_elements.back().style;
    ++m_breaks;
}

/// Ends a line at the border of a block; empty blocks leave none.
void HtmlReader::endLine() {
    if (m_gap != Gap::Cell) {
        m_gap = Gap::Paragraph;
    }
}

void HtmlReader::fillGap() {
    const Gap gap = std::exchange(m_gap, Gap::None);
    const int item = m_elements.back().item;
    const bool sameItem = item == m_itemOfParagraph;
    if (m_inParagraph) {
        if (gap == Gap::Paragraph && sameItem && item != kNoItem) {
            // A second paragraph of an item has no bullet of its own.
            m_breaks = std::max(m_breaks, 1);
        } else if (gap == Gap::Paragraph || (gap == Gap::Cell && !sameItem)) {
            endParagraph();
        } else if (gap != Gap::None) {
            m_content.append(u" ", gap == Gap::Blank ? m_gapStyle : CharacterStyle{});
        }
    }
    if (!m_inParagraph) {
        m_inParagraph = true;
        m_itemOfParagraph = item;
    }
}

void HtmlReader::endParagraph() {
    // A break at the end of a block only gives the block its last line.
    for (; m_breaks > 1; --m_breaks) {
        m_content.append(u"\u2028", {});
    }
    m_breaks = 0;
    ParagraphStyle style;
    if (m_itemOfParagraph != kNoItem) {
        const Item &item = m_items[size_t(m_itemOfParagraph)];
        style.list = item.kind;
        style.left = item.left;
    }
    m_content.endParagraph(std::move(style), {});
    m_inParagraph = false;
    m_itemOfParagraph = kNoItem;
}

} // namespace

RichContent readHtml(QStringView source) {
    return HtmlReader(source).read();
}

} // namespace platform::richtext
