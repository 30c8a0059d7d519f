#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <optional>

namespace platform::richtext {

/// What a style sheet or a style attribute says about text; values that are not set leave what is around.
struct HtmlStyle {
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<bool> preserved; ///< blanks and line ends are kept
    std::optional<bool> hidden;
    QString colour;
    std::optional<int> listLevel;   ///< of a word processor's list item, from 1
    std::optional<bool> listMarker; ///< holds the number or bullet of such an item as text
    std::optional<double> left;     ///< left margin in pixels
    std::optional<bool> flatList;   ///< the margins of the items tell the levels of the list

    /// Takes over what the other sets.
    void add(const HtmlStyle &other);
};

/// Reads the declarations of a style attribute; those of other kinds are left out.
HtmlStyle readDeclarations(QStringView source);

/// The rules of style elements for a tag, a class, or a tag with a class; other selectors are left out.
class StyleSheet {
public:
    void read(QStringView source);
    /// The rules for an element, the most specific last.
    HtmlStyle styleOf(const QString &tag, const QString &classes) const;

private:
    QHash<QString, HtmlStyle> m_rules; ///< by selector
};

} // namespace platform::richtext
