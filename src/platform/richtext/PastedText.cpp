#include "PastedText.h"

#include "DocumentBuilder.h"
#include "HtmlReader.h"
#include "RichText.h"
#include "RtfReader.h"

#include <QColor>
#include <QMimeData>
#include <QTextCursor>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace platform::richtext {

namespace {

constexpr double kLeastContrast = 3; // of WCAG 2.1, success criterion 1.4.11

/// The last is also the type of another kind of text, which is why the content is looked at.
constexpr std::array kRtfTypes{u"text/rtf", u"application/rtf", u"text/richtext"};

/// Relative luminance of WCAG 2.1, 0 to 1.
double luminance(const QColor &colour) {
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// Contrast ratio of WCAG 2.1, 1 to 21.
double contrast(const QColor &one, const QColor &other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

CharacterStyle kept(const CharacterStyle &style, const QColor &ground) {
    CharacterStyle result;
    result.bold = style.bold;
    result.italic = style.italic;
    result.underline = style.underline;
    if (style.foreground != 0 && contrast(QColor(style.foreground), ground) >= kLeastContrast) {
        result.foreground = style.foreground;
    }
    return result;
}

ParagraphStyle kept(const ParagraphStyle &style) {
    ParagraphStyle result;
    result.list = style.list;
    // Of an item the margin is the level of its list.
    result.left = style.list == ListKind::None ? 0 : style.left;
    return result;
}

RichContent kept(RichContent content, const QColor &ground) {
    for (CharacterStyle &style : content.characterStyles) {
        style = kept(style, ground);
    }
    for (ParagraphStyle &style : content.paragraphStyles) {
        style = kept(style);
    }
    return content;
}

qsizetype lengthOf(const RichContent &content) {
    return content.text.size() + qsizetype(content.paragraphs.size());
}

std::optional<RichContent> formatted(const QMimeData &data) {
    if (data.hasHtml()) {
        if (RichContent content = readHtml(data.html()); !content.text.isEmpty()) {
            return content;
        }
    }
    for (const char16_t *type : kRtfTypes) {
        const QString source = QString::fromLatin1(data.data(QStringView(type).toString()));
        if (!isRtf(source)) {
            continue;
        }
        if (RichContent content = readRtf(source); !content.text.isEmpty()) {
            return content;
        }
    }
    return std::nullopt;
}

} // namespace

bool holdsFiles(const QMimeData &data) {
    const QList<QUrl> places = data.urls();
    return std::any_of(places.begin(), places.end(), [](const QUrl &place) { return place.isLocalFile(); });
}

bool holdsText(const QMimeData &data) {
    if (holdsFiles(data)) {
        return false;
    }
    return data.hasText() || data.hasHtml() ||
           std::any_of(kRtfTypes.begin(), kRtfTypes.end(),
                       [&](const char16_t *type) { return data.hasFormat(QStringView(type).toString()); });
}

bool paste(QTextCursor &cursor, const QMimeData &data, const QColor &ground, qsizetype longest) {
    const std::optional<RichContent> content = formatted(data);
    const RichContent plain = content ? RichContent() : readPlain(data.text());
    if (lengthOf(content ? *content : plain) > longest) {
        return false;
    }
    if (content) {
        insert(cursor, kept(*content, ground));
    } else if (!plain.text.isEmpty()) {
        insertPlain(cursor, plain);
    }
    return true;
}

} // namespace platform::richtext
