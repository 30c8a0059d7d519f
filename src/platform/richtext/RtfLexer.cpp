#include "RtfLexer.h"

#include <algorithm>
#include <limits>

namespace platform::richtext {

namespace {

bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isSyntax(QChar c) {
    return c == u'\\' || c == u'{' || c == u'}' || c == u'\r' || c == u'\n';
}

template <typename Predicate>
qsizetype countWhile(QStringView text, Predicate predicate) {
    return std::find_if_not(text.begin(), text.end(), predicate) - text.begin();
}

int hexDigit(QChar c) {
    if (isDigit(c)) {
        return c.unicode() - u'0';
    }
    const char16_t lower = c.unicode() | 0x20U;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

int number(QStringView digits, bool negative) {
    constexpr int largest = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (const QChar digit : digits) {
        value = std::min<qint64>(value * 10 + (digit.unicode() - u'0'), largest);
    }
    return int(negative ? -value : value);
}

} // namespace

RtfToken RtfLexer::next() {
    while (!m_rest.isEmpty() && (m_rest.front() == u'\r' || m_rest.front() == u'\n')) {
        m_rest = m_rest.mid(1);
    }
    if (m_rest.isEmpty()) {
        return {};
    }
    switch (m_rest.front().unicode()) {
    case u'{':
        return take(RtfToken::Kind::Open, 1);
    case u'}':
        return take(RtfToken::Kind::Close, 1);
    case u'\\':
        m_rest = m_rest.mid(1);
        return control();
    default:
        return take(RtfToken::Kind::Text, countWhile(m_rest, [](QChar c) { return !isSyntax(c); }));
    }
}

void RtfLexer::skip(int count) {
    if (count > 0 && count <= m_rest.size()) {
        m_rest = m_rest.mid(count);
    }
}

RtfToken RtfLexer::control() {
    if (m_rest.isEmpty()) {
        return {};
    }
    if (isLetter(m_rest.front())) {
        return word();
    }
    if (m_rest.front() == u'\'' && m_rest.size() > 2) {
        const int high = hexDigit(m_rest[1]);
        const int low = hexDigit(m_rest[2]);
        if (high >= 0 && low >= 0) {
            RtfToken token = take(RtfToken::Kind::Byte, 3);
            token.parameter = high * 16 + low;
            return token;
        }
    }
    return take(RtfToken::Kind::Symbol, 1);
}

RtfToken RtfLexer::word() {
    RtfToken token = take(RtfToken::Kind::Word, countWhile(m_rest, isLetter));
    const bool negative = m_rest.startsWith(u'-');
    const QStringView unsignedRest = m_rest.mid(negative ? 1 : 0);
    const qsizetype digits = countWhile(unsignedRest, isDigit);
    if (digits > 0) {
        token.parameter = number(unsignedRest.left(digits), negative);
        m_rest = unsignedRest.mid(digits);
    }
    if (m_rest.startsWith(u' ')) {
        m_rest = m_rest.mid(1);
    }
    return token;
}

RtfToken RtfLexer::take(RtfToken::Kind kind, qsizetype length) {
    const RtfToken token{kind, m_rest.left(length), {}};
    m_rest = m_rest.mid(length);
    return token;
}

} // namespace platform::richtext
