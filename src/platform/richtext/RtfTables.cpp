#include "RtfTables.h"

#include "RichContent.h"

#include <algorithm>

namespace platform::richtext {

void FontTable::begin(int number) {
    m_number = number;
    m_font = {};
    m_name.clear();
}

void FontTable::addName(QStringView text, ContentCollector &content) {
    for (const QChar c : text) {
        if (c == u';') {
            end(content);
        } else {
            m_name += c;
        }
    }
}

void FontTable::end(ContentCollector &content) {
    // Groups inside a font's own (\\panose) end before its name comes.
    if (!m_name.isEmpty()) {
        m_font.family = content.family(m_name);
        m_fonts.insert(m_number, m_font);
        begin(m_number);
    }
}

void ColourTable::setComponent(Component component, int value) {
    constexpr QRgb opaque = 0xFF000000;
    constexpr QRgb byte = 0xFF;
    m_current &= ~(byte << component);
    m_current |= opaque | (QRgb(std::clamp(value, 0, int(byte))) << component);
}

void ColourTable::addText(QStringView text) {
    for (const QChar c : text) {
        if (c == u';') {
            m_colours.push_back(m_current);
            m_current = 0;
        }
    }
}

QRgb ColourTable::colour(int number) const {
    return number >= 0 && size_t(number) < m_colours.size() ? m_colours[size_t(number)] : 0;
}

} // namespace platform::richtext
