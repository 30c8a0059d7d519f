#include "RichContent.h"

#include <QHashFunctions>
#include <algorithm>

namespace platform::richtext {

namespace {

constexpr int kLargestIndent = 31680; // 22 inches, the widest page of the format
constexpr int kBulletRoom = 180;
constexpr int kLongestFamilyName = 64;

// A document finds its formats by a hash that leaves families and tab stops out: many of them would make it
// slow.
constexpr qsizetype kMostFamilies = 250;
constexpr size_t kMostTabLists = 60;

QStringView withoutBreak(QStringView text, qsizetype at) {
    const bool pair = text.mid(at, 2) == u"\r\n";
    return text.mid(at + (pair ? 2 : 1));
}

} // namespace

size_t qHash(const CharacterStyle &style, size_t seed) {
    return qHashMulti(seed, style.family, style.halfPoints, style.foreground, style.background, style.bold,
                      style.italic, style.underline, style.strike);
}

void ParagraphStyle::addTab(TabStop stop) {
    constexpr size_t mostTabs = 32;
    if (stop.position > 0 && stop.position <= kLargestIndent && tabs.size() < mostTabs) {
        tabs.push_back(stop);
    }
}

void ParagraphStyle::normalise() {
    const int smallestLeft = list == ListKind::None ? 0 : kBulletRoom;
    left = std::clamp(left, smallestLeft, kLargestIndent);
    right = std::clamp(right, 0, kLargestIndent);
    before = std::clamp(before, 0, kLargestIndent);
    after = std::clamp(after, 0, kLargestIndent);
    firstLine = list == ListKind::None ? std::clamp(firstLine, -left, kLargestIndent) : 0;
}

QString RichContent::plainText() const {
    QString result;
    result.reserve(text.size() + qsizetype(paragraphs.size()));
    qsizetype start = 0;
    for (const Paragraph &paragraph : paragraphs) {
        if (&paragraph != &paragraphs.front()) {
            result += u'\n';
        }
        result += QStringView(text).mid(start, paragraph.end - start);
        start = paragraph.end;
    }
    result.replace(QChar::LineSeparator, u'\n');
    result.replace(QChar::Nbsp, u' ');
    return result;
}

void ContentCollector::append(QStringView text, const CharacterStyle &style) {
    const qsizetype start = m_content.text.size();
    if (text.size() > room()) {
        text.truncate(std::max<qsizetype>(room(), 0));
        m_content.isWhole = false;
    }
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return isText(c.unicode()); })) {
        m_content.text += text;
    } else {
        std::copy_if(text.begin(), text.end(), std::back_inserter(m_content.text),
                     [](QChar c) { return isText(c.unicode()); });
    }
    const qsizetype end = m_content.text.size();
    if (end == start) {
        return;
    }
    const bool continues = !m_content.runs.empty() && m_content.runs.back().end == start &&
                           (!hasParagraphs() || m_content.paragraphs.back().end != start) &&
                           m_content.characterStyles[size_t(m_content.runs.back().style)] == style;
    if (continues) {
        m_content.runs.back().end = end;
    } else {
        m_content.runs.push_back({end, indexOf(style)});
    }
}

qsizetype ContentCollector::room() const {
    return m_longest - m_content.text.size() - qsizetype(m_content.paragraphs.size());
}

void ContentCollector::endParagraph(ParagraphStyle style, const CharacterStyle &mark) {
    m_content.isWhole = m_content.isWhole && room() >= 0;
    style.normalise();
    if (!keeps(style.tabs)) {
        style.tabs.clear();
    }
    auto &styles = m_content.paragraphStyles;
    if (styles.empty() || styles.back() != style) {
        styles.push_back(std::move(style));
    }
    m_content.paragraphs.push_back({m_content.text.size(), int(styles.size()) - 1, indexOf(mark)});
}

int ContentCollector::family(QStringView name) {
    const QString clean = familyName(name);
    const auto known = m_families.constFind(clean);
    if (known != m_families.cend()) {
        return *known;
    }
    if (clean.isEmpty() || m_families.size() == kMostFamilies) {
        return -1;
    }
    const int index = int(m_content.families.size());
    m_content.families += clean;
    m_families.insert(clean, index);
    return index;
}

bool ContentCollector::atParagraphStart() const {
    return m_content.text.size() == (hasParagraphs() ? m_content.paragraphs.back().end : 0);
}

bool ContentCollector::keeps(const std::vector<TabStop> &tabs) {
    if (tabs.empty() || std::find(m_tabLists.begin(), m_tabLists.end(), tabs) != m_tabLists.end()) {
        return true;
    }
    if (m_tabLists.size() == kMostTabLists) {
        return false;
    }
    m_tabLists.push_back(tabs);
    return true;
}

int ContentCollector::indexOf(const CharacterStyle &style) {
    const auto known = m_styles.constFind(style);
    if (known != m_styles.cend()) {
        return *known;
    }
    const int index = int(m_content.characterStyles.size());
    m_content.characterStyles.push_back(style);
    m_styles.insert(style, index);
    return index;
}

bool isText(char16_t character) {
    constexpr char16_t frameBegin = 0xFDD0;
    constexpr char16_t frameEnd = 0xFDD1;
    if (character < u' ') {
        return character == u'\t';
    }
    return character != frameBegin && character != frameEnd &&
           character != QChar::ObjectReplacementCharacter && character != QChar::ParagraphSeparator;
}

QString familyName(QStringView name) {
    QString result;
    std::copy_if(name.begin(), name.end(), std::back_inserter(result),
                 [](QChar c) { return isText(c.unicode()) && c != u';'; });
    return result.trimmed().left(kLongestFamilyName).trimmed();
}

RichContent readPlain(QStringView text, qsizetype longest) {
    ContentCollector collector(longest);
    const auto endsParagraph = [](QChar c) {
        return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator;
    };
    while (true) {
        const auto end = std::find_if(text.begin(), text.end(), endsParagraph);
        const qsizetype length = end - text.begin();
        collector.append(text.left(length), {});
        collector.endParagraph({}, {});
        if (end == text.end() || collector.isFull()) {
            return collector.take();
        }
        text = withoutBreak(text, length);
    }
}

} // namespace platform::richtext
