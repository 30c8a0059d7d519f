#include "HtmlLexer.h"

#include "platform/codepages/CodePages.h"

#include <QTextDocument>
#include <algorithm>

namespace platform::richtext {

namespace {

constexpr qsizetype kLongestEntity = 32;

bool isBlank(QChar c) {
    return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r' || c == u'\f';
}

bool isAsciiLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

template <typename Ends>
qsizetype lengthUntil(QStringView text, Ends ends) {
    return std::find_if(text.begin(), text.end(), ends) - text.begin();
}

QString numbered(QStringView number) {
    constexpr uint firstControl = 0x80;
    constexpr uint lastControl = 0x9F;
    const bool hexadecimal = number.startsWith(u'x', Qt::CaseInsensitive);
    bool valid = false;
    const uint code = hexadecimal ? number.mid(1).toUInt(&valid, 16) : number.toUInt(&valid);
    if (!valid || code > QChar::LastValidCodePoint || QChar::isSurrogate(code)) {
        return {};
    }
    // The HTML standard reads the numbers of control characters as bytes of code page 1252.
    if (code >= firstControl && code <= lastControl) {
        return {QChar(codepages::decode(1252, quint8(code)))};
    }
    const char32_t character = code;
    return QString::fromUcs4(&character, 1);
}

} // namespace

HtmlToken HtmlLexer::next() {
    while (m_rest.startsWith(u"<!") || m_rest.startsWith(u"<?")) {
        skipDeclaration();
    }
    if (m_rest.isEmpty()) {
        return {};
    }
    if (atTag()) {
        return tag();
    }
    const qsizetype end = m_rest.indexOf(u'<', 1);
    return {HtmlToken::Kind::Text, take(end < 0 ? m_rest.size() : end), {}};
}

QStringView HtmlLexer::rawText(QStringView name) {
    for (qsizetype end = 0; (end = m_rest.indexOf(u"</", end)) >= 0; ++end) {
        if (m_rest.mid(end + 2).startsWith(name, Qt::CaseInsensitive)) {
            return take(end);
        }
    }
    return take(m_rest.size());
}

bool HtmlLexer::atTag() const {
    const qsizetype name = m_rest.startsWith(u"</") ? 2 : 1;
    return m_rest.startsWith(u'<') && m_rest.size() > name && isAsciiLetter(m_rest[name]);
}

void HtmlLexer::skipDeclaration() {
    const QStringView ending = m_rest.startsWith(u"<!--") ? u"-->" : u">";
    const qsizetype end = m_rest.indexOf(ending, 2);
    take(end < 0 ? m_rest.size() : end + ending.size());
}

HtmlToken HtmlLexer::tag() {
    const bool closes = m_rest.startsWith(u"</");
    take(closes ? 2 : 1);
    const QStringView name =
        take(lengthUntil(m_rest, [](QChar c) { return isBlank(c) || c == u'/' || c == u'>'; }));
    QChar quote;
    const qsizetype length = lengthUntil(m_rest, [&quote](QChar c) {
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
            return false;
        }
        if (c == u'"' || c == u'\'') {
            quote = c;
        }
        return c == u'>';
    });
    const QStringView attributes = take(length);
    take(std::min<qsizetype>(1, m_rest.size()));
    return {closes ? HtmlToken::Kind::Close : HtmlToken::Kind::Open, name, attributes};
}

QStringView HtmlLexer::take(qsizetype length) {
    const QStringView taken = m_rest.left(length);
    m_rest = m_rest.mid(length);
    return taken;
}

QHash<QString, QString> htmlAttributes(QStringView source, HtmlEntities &entities) {
    QHash<QString, QString> attributes;
    const auto skipBlanks = [&source] {
        source = source.mid(lengthUntil(source, [](QChar c) { return !isBlank(c) && c != u'/'; }));
    };
    for (skipBlanks(); !source.isEmpty(); skipBlanks()) {
        const qsizetype nameEnd =
            std::max<qsizetype>(1, lengthUntil(source, [](QChar c) { return isBlank(c) || c == u'='; }));
        const QString name = source.left(nameEnd).toString().toLower();
        source = source.mid(nameEnd);
        const QStringView afterName = source.trimmed();
        QStringView value;
        if (afterName.startsWith(u'=')) {
            source = afterName.mid(1).trimmed();
            const QChar quote = source.isEmpty() ? QChar() : source.front();
            const bool quoted = quote == u'"' || quote == u'\'';
            source = source.mid(quoted ? 1 : 0);
            value =
                source.left(lengthUntil(source, [&](QChar c) { return quoted ? c == quote : isBlank(c); }));
            source = source.mid(value.size() + (quoted ? 1 : 0));
        }
        QString &known = attributes[name];
        if (known.isEmpty()) {
            known = entities.read(value);
        } else if (name == u"style") {
            // Qt writes two for an item: of its characters, then of its paragraph.
            known += u';' + entities.read(value);
        }
    }
    return attributes;
}

QString HtmlEntities::read(QStringView source) {
    QString result;
    result.reserve(source.size());
    for (qsizetype at = 0; (at = source.indexOf(u'&')) >= 0;) {
        result += source.left(at);
        source = source.mid(at + 1);
        const qsizetype end = source.left(kLongestEntity).indexOf(u';');
        const QString read = end > 0 ? characters(source.left(end)) : QString();
        if (read.isEmpty()) {
            result += u'&';
        } else {
            result += read;
            source = source.mid(end + 1);
        }
    }
    return result + source;
}

/// Of the entity without its "&" and ";"; empty if it is none.
QString HtmlEntities::characters(QStringView name) {
    if (name.startsWith(u'#')) {
        return numbered(name.mid(1));
    }
    if (!std::all_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); })) {
        return {};
    }
    const QString key = name.toString();
    if (const auto known = m_known.constFind(key); known != m_known.cend()) {
        return *known;
    }
    // Qt has the table of names, but offers it nowhere else.
    QTextDocument document;
    document.setHtml(u'&' + key + u';');
    const QString text = document.toRawText();
    return *m_known.insert(key, text.startsWith(u'&') && key != u"amp" ? QString() : text);
}

} // namespace platform::richtext
