#include "RtfSource.h"

#include "RichContent.h"

#include "platform/codepages/CodePages.h"

namespace platform::richtext {

namespace {

constexpr char16_t kFirstEscaped = 0x7F;

} // namespace

void RtfSource::word(const char *name) {
    m_source += '\\';
    m_source += name;
    m_afterWord = true;
}

void RtfSource::word(const char *name, int parameter) {
    word(name);
    m_source += QByteArray::number(parameter);
}

void RtfSource::syntax(const char *source) {
    m_source += source;
    m_afterWord = false;
}

void RtfSource::text(QStringView text) {
    for (const QChar c : text) {
        character(c.unicode());
    }
}

void RtfSource::character(char16_t c) {
    constexpr char16_t nonBreakingHyphen = 0x2011;
    switch (c) {
    case u'\\':
        syntax("\\\\");
        break;
    case u'{':
        syntax("\\{");
        break;
    case u'}':
        syntax("\\}");
        break;
    case u'\t':
        word("tab");
        break;
    case QChar::LineSeparator:
        word("line");
        break;
    case QChar::Nbsp:
        syntax("\\~");
        break;
    case QChar::SoftHyphen:
        syntax("\\-");
        break;
    case nonBreakingHyphen:
        syntax("\\_");
        break;
    default:
        if (isText(c)) {
            c < kFirstEscaped ? plain(c) : escaped(c);
        }
    }
}

void RtfSource::plain(char16_t c) {
    if (m_afterWord) {
        m_source += ' ';
    }
    m_source += char(c);
    m_afterWord = false;
}

void RtfSource::escaped(char16_t c) {
    if (const std::optional<quint8> byte = codepages::encodeWestern(c)) {
        m_source += "\\'";
        m_source += QByteArray::number(*byte, 16);
    } else {
        word("u", qint16(c));
        m_source += '?';
    }
    m_afterWord = false;
}

} // namespace platform::richtext
