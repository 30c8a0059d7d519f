#include "Described.h"

#include <QHash>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

using namespace Qt::StringLiterals;

namespace {

void describeLength(QString &result, const char *name, qreal pixels) {
    if (pixels != 0) {
        result += QLatin1String(name) + QString::number(qRound(pixels * 15)) + u' ';
    }
}

QString described(const QTextBlock &block) {
    static const QHash<int, QString> alignments{
        {Qt::AlignRight, u"right "_s}, {Qt::AlignHCenter, u"centre "_s}, {Qt::AlignJustify, u"justified "_s}};
    static const QHash<int, QString> lists{{QTextListFormat::ListDisc, u"bullet "_s},
                                           {QTextListFormat::ListDecimal, u"number "_s},
                                           {QTextListFormat::ListLowerAlpha, u"letter "_s},
                                           {QTextListFormat::ListUpperRoman, u"ROMAN "_s}};
    const QTextBlockFormat format = block.blockFormat();
    QString result = alignments.value(int(format.alignment()));
    if (block.textList() != nullptr) {
        result += lists.value(block.textList()->format().style());
    }
    describeLength(result, "li", format.leftMargin());
    describeLength(result, "ri", format.rightMargin());
    describeLength(result, "fi", format.textIndent());
    describeLength(result, "sb", format.topMargin());
    describeLength(result, "sa", format.bottomMargin());
    for (const QTextOption::Tab &tab : format.tabPositions()) {
        describeLength(result, tab.type == QTextOption::RightTab ? "rtab" : "tab", tab.position);
    }
    return result.trimmed();
}

/// What a format sets, and nothing of what it leaves to the document.
QString described(const QTextCharFormat &format) {
    QString result;
    for (const QString &family : format.fontFamilies().toStringList()) {
        result += family + u' ';
    }
    if (format.hasProperty(QTextFormat::FontPointSize)) {
        result += QString::number(format.fontPointSize()) + u"pt "_s;
    }
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
        result += format.foreground().color().name() + u' ';
    }
    if (format.hasProperty(QTextFormat::BackgroundBrush)) {
        result += u"on "_s + format.background().color().name() + u' ';
    }
    result += format.hasProperty(QTextFormat::FontWeight) ? u"bold "_s : QString();
    result += format.hasProperty(QTextFormat::FontItalic) ? u"italic "_s : QString();
    result += format.underlineStyle() != QTextCharFormat::NoUnderline ? u"underline "_s : QString();
    result += format.hasProperty(QTextFormat::FontStrikeOut) ? u"strike "_s : QString();
    return result.trimmed();
}

} // namespace

QString onOneLine(QString text) {
    return text.replace(u'\n', u'|').replace(QChar::LineSeparator, u'/');
}

QString described(const QTextDocument &document) {
    QStringList blocks;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString paragraph = described(block);
        QString text = paragraph.isEmpty() ? QString() : u'<' + paragraph + u'>';
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QString format = described(part.fragment().charFormat());
            const QString run = part.fragment().text();
            text += format.isEmpty() ? run : u'[' + format + u':' + run + u']';
        }
        const QString mark = described(block.charFormat());
        blocks += mark.isEmpty() ? text : text + u'[' + mark + u']';
    }
    return onOneLine(blocks.join(u'|'));
}
