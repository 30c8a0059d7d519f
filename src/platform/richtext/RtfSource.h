#pragma once

#include <QByteArray>
#include <QStringView>

namespace platform::richtext {

/// RTF source under construction: puts the blank that ends a control word only where it is needed.
class RtfSource {
public:
    void word(const char *name);
    void word(const char *name, int parameter);
    /// Braces, symbols and line ends as they stand; each ends a control word.
    void syntax(const char *source);
    /// Characters, escaped where they must be; those that RTF cannot hold are left out.
    void text(QStringView text);

    QByteArray take() { return std::move(m_source); }

private:
    void character(char16_t c);
    void plain(char16_t c);
    void escaped(char16_t c);

    QByteArray m_source;
    bool m_afterWord = false;
};

} // namespace platform::richtext
