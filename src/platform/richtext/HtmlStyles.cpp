#include "HtmlStyles.h"

#include <algorithm>
#include <array>

namespace platform::richtext {

namespace {

template <typename Value>
void take(Value &value, const Value &other) {
    if (other) {
        value = other;
    }
}

void readWeight(HtmlStyle &style, QStringView value) {
    constexpr int semiBold = 600;
    bool isNumber = false;
    const int weight = value.toInt(&isNumber);
    style.bold = isNumber ? weight >= semiBold : value.startsWith(u"bold");
}

void readSlant(HtmlStyle &style, QStringView value) {
    style.italic = value == u"italic" || value.startsWith(u"oblique");
}

void readDecoration(HtmlStyle &style, QStringView value) {
    style.underline = value.contains(u"underline");
}

void readColour(HtmlStyle &style, QStringView value) {
    style.colour = value.toString();
}

void readWhiteSpace(HtmlStyle &style, QStringView value) {
    style.preserved = value == u"pre" || value == u"pre-wrap" || value == u"break-spaces";
}

void readDisplay(HtmlStyle &style, QStringView value) {
    style.hidden = value == u"none";
}

void readHidden(HtmlStyle &style, QStringView value) {
    style.hidden = value == u"all";
}

/// "l0 level2 lfo1" for an item, "Ignore" for its number or bullet.
void readWordList(HtmlStyle &style, QStringView value) {
    constexpr QStringView level = u"level";
    if (value == u"ignore") {
        style.listMarker = true;
    } else if (const qsizetype at = value.indexOf(level); at >= 0) {
        const QStringView digits = value.mid(at + level.size());
        style.listLevel = std::max(1, digits.left(digits.indexOf(u' ')).toInt());
    }
}

void readLeft(HtmlStyle &style, QStringView value) {
    if (value.endsWith(u"px")) {
        style.left = value.chopped(2).toDouble();
    }
}

void readListIndent(HtmlStyle &style, QStringView value) {
    style.flatList = value == u"0";
}

struct Property {
    QStringView name;
    void (*read)(HtmlStyle &style, QStringView value) = nullptr;
};

/// Those of CSS, of word processors (mso-) and of Qt's own documents (-qt-).
constexpr std::array kProperties{
    Property{u"font-weight", readWeight},
    Property{u"font-style", readSlant},
    Property{u"text-decoration", readDecoration},
    Property{u"text-decoration-line", readDecoration},
    Property{u"color", readColour},
    Property{u"white-space", readWhiteSpace},
    Property{u"display", readDisplay},
    Property{u"mso-hide", readHidden},
    Property{u"mso-list", readWordList},
    Property{u"margin-left", readLeft},
    Property{u"-qt-list-indent", readListIndent},
};

QString withoutComments(QStringView source) {
    QString result;
    for (qsizetype start = 0; (start = source.indexOf(u"/*")) >= 0;) {
        result += source.left(start);
        const qsizetype end = source.indexOf(u"*/", start + 2);
        source = end < 0 ? QStringView() : source.mid(end + 2);
    }
    result += source;
    // Style elements may stand in comment marks, which hide their rules from programs that do not know them.
    return result.remove(QStringLiteral("<!--")).remove(QStringLiteral("-->"));
}

bool isSimple(QStringView selector) {
    return !selector.isEmpty() && selector.count(u'.') <= 1 &&
           std::all_of(selector.begin(), selector.end(),
                       [](QChar c) { return c.isLetterOrNumber() || c == u'.' || c == u'-' || c == u'_'; });
}

} // namespace

void HtmlStyle::add(const HtmlStyle &other) {
    take(bold, other.bold);
    take(italic, other.italic);
    take(underline, other.underline);
    take(preserved, other.preserved);
    take(hidden, other.hidden);
    take(listLevel, other.listLevel);
    take(listMarker, other.listMarker);
    take(left, other.left);
    take(flatList, other.flatList);
    if (!other.colour.isEmpty()) {
        colour = other.colour;
    }
}

HtmlStyle readDeclarations(QStringView source) {
    HtmlStyle style;
    for (const QStringView declaration : source.tokenize(u';')) {
        const qsizetype colon = declaration.indexOf(u':');
        const QStringView name = declaration.left(std::max<qsizetype>(colon, 0)).trimmed();
        const auto *property =
            std::find_if(kProperties.begin(), kProperties.end(), [name](const Property &each) {
                return each.name.compare(name, Qt::CaseInsensitive) == 0;
            });
        if (property != kProperties.end()) {
            const QString value = declaration.mid(colon + 1).toString().toLower();
            const QStringView plain = QStringView(value).left(value.indexOf(u'!')).trimmed();
            property->read(style, plain);
        }
    }
    return style;
}

void StyleSheet::read(QStringView source) {
    const QString rules = withoutComments(source);
    for (const QStringView rule : QStringView(rules).tokenize(u'}')) {
        const qsizetype brace = rule.lastIndexOf(u'{');
        if (brace < 0) {
            continue;
        }
        const HtmlStyle style = readDeclarations(rule.mid(brace + 1));
        for (const QStringView selector : rule.left(brace).tokenize(u',')) {
            if (isSimple(selector.trimmed())) {
                m_rules[selector.trimmed().toString().toLower()].add(style);
            }
        }
    }
}

HtmlStyle StyleSheet::styleOf(const QString &tag, const QString &classes) const {
    HtmlStyle style;
    if (m_rules.isEmpty()) {
        return style;
    }
    style.add(m_rules.value(tag));
    const QString names = classes.toLower();
    for (const QStringView name : QStringView(names).tokenize(u' ', Qt::SkipEmptyParts)) {
        style.add(m_rules.value(u'.' + name.toString()));
        style.add(m_rules.value(tag + u'.' + name.toString()));
    }
    return style;
}

} // namespace platform::richtext
