#pragma once

#include <QHash>
#include <QRgb>
#include <QString>
#include <QStringView>
#include <vector>

namespace platform::richtext {

class ContentCollector;

/// The \fonttbl group as it is read.
class FontTable {
public:
    struct Font {
        int family = -1; ///< position in RichContent::families, -1 none
        int charset = -1;
    };

    /// Starts the font of a number.
    void begin(int number);

    void setCharset(int charset) { m_font.charset = charset; }

    /// Adds to the name of the current font; each semicolon ends one.
    void addName(QStringView text, ContentCollector &content);
    /// Ends the current font if it has a name.
    void end(ContentCollector &content);

    /// The font of a number, one without family and charset if the table has none.
    Font font(int number) const { return m_fonts.value(number); }

private:
    QHash<int, Font> m_fonts;
    int m_number = 0;
    Font m_font;
    QString m_name;
};

/// The \colortbl group as it is read.
class ColourTable {
public:
    enum Component { Red = 16, Green = 8, Blue = 0 };

    /// Value of a component, brought into 0 to 255.
    void setComponent(Component component, int value);
    /// Each semicolon ends a colour.
    void addText(QStringView text);
    /// 0 for an entry without colour ("automatic") and for a number that the table lacks.
    QRgb colour(int number) const;

private:
    std::vector<QRgb> m_colours;
    QRgb m_current = 0;
};

} // namespace platform::richtext
