#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

namespace platform::richtext {

/// One piece of an HTML source.
struct HtmlToken {
    enum class Kind {
        End,
        Text,  ///< characters as they stand, entities among them, in text
        Open,  ///< start tag, its name in text
        Close, ///< end tag, its name in text
    };

    Kind kind = Kind::End;
    QStringView text;
    QStringView attributes; ///< source between the name and the end of the tag
};

/// Cuts HTML into tags and text, without any knowledge of elements. Comments and declarations are left out.
class HtmlLexer {
public:
    explicit HtmlLexer(QStringView source) : m_rest(source) {}

    HtmlToken next();
    /// The source up to the end tag of a name, or to the end: what elements hold that have no tags in them.
    QStringView rawText(QStringView name);

private:
    bool atTag() const;
    void skipDeclaration();
    HtmlToken tag();
    QStringView take(qsizetype length);

    QStringView m_rest;
};

/// The characters that entities stand for.
class HtmlEntities {
public:
    /// The text with its entities read; what is none stays as it stands.
    QString read(QStringView source);

private:
    QString characters(QStringView name);

    QHash<QString, QString> m_known; ///< by name; empty for what is no name
};

/// Attributes by name in small letters, their entities read.
QHash<QString, QString> htmlAttributes(QStringView source, HtmlEntities &entities);

} // namespace platform::richtext
