#include "Markup.h"

#include <QRegularExpression>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace Qt::StringLiterals;

namespace {

// Pixels of the document.
constexpr int kBelowParagraph = 8;
constexpr int kBelowBullet = 3;

enum class Kind { Plain, Step, Bullet };

struct Paragraph {
    Kind kind = Kind::Plain;
    SourceText source; ///< joined lines, without the mark of the bullet
};

/// Length of "12. " at the start of a line, or 0.
qsizetype stepMarkLength(const QString &line) {
    static const QRegularExpression mark(u"^\\d+\\. "_s);
    return mark.match(line).capturedLength();
}

void checkStep(const SourceText &line, int expected) {
    if (line.text.section(u'.', 0, 0).toInt() != expected) {
        throw SourceError(line, u"step %1 is expected here"_s.arg(expected));
    }
}

std::vector<Paragraph> split(const std::vector<SourceText> &lines) {
    std::vector<Paragraph> paragraphs;
    int steps = 0;
    bool goesOn = false;
    for (const SourceText &line : lines) {
        const bool bullet = line.text.startsWith(u"- ");
        const bool step = stepMarkLength(line.text) > 0;
        if (step) {
            checkStep(line, ++steps);
        }
        if (bullet) {
            paragraphs.push_back({Kind::Bullet, {line.text.mid(2), line.file, line.line}});
        } else if (step) {
            paragraphs.push_back({Kind::Step, line});
        } else if (!goesOn && !line.text.isEmpty()) {
            paragraphs.push_back({Kind::Plain, line});
        } else if (!line.text.isEmpty()) {
            paragraphs.back().source.text += u' ' + line.text;
        }
        goesOn = !line.text.isEmpty();
    }
    return paragraphs;
}

/// Inserts a text with its marks for bold and italic.
void insertMarked(QTextCursor &cursor, const SourceText &source) {
    static const QRegularExpression mark(u"\\*\\*?"_s);
    const QString text = typeset(source.text);
    QTextCharFormat format;
    qsizetype from = 0;
    for (auto marks = mark.globalMatch(text); marks.hasNext();) {
        const QRegularExpressionMatch match = marks.next();
        cursor.insertText(text.mid(from, match.capturedStart() - from), format);
        from = match.capturedEnd();
        if (match.capturedLength() == 2) {
            format.setFontWeight(format.fontWeight() == QFont::Bold ? QFont::Normal : QFont::Bold);
        } else {
            format.setFontItalic(!format.fontItalic());
        }
    }
    if (format.fontWeight() == QFont::Bold || format.fontItalic()) {
        throw SourceError(source, u"a * or ** of this paragraph is not closed"_s);
    }
    cursor.insertText(text.mid(from), format);
}

/// The number of a step stands out, so that the cook finds the place again.
void insertStep(QTextCursor &cursor, SourceText source) {
    const qsizetype length = stepMarkLength(source.text);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    cursor.insertText(source.text.left(length - 1) + QChar::Nbsp, bold);
    source.text = source.text.mid(length);
    insertMarked(cursor, source);
}

} // namespace

QString typeset(const QString &text) {
    static const QRegularExpression beforeSign(u" (?=[:;!?»%])"_s);
    static const QRegularExpression beforeUnit(
        u"(?<=\\d) (?=(g|kg|cl|dl|l|mm|cm|h|°C|minutes?|heures?|jours?|mois)\\b)"_s,
        QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression afterHour(u"(?<=\\d\\x{A0}h) (?=\\d)"_s);
    const QString noBreak(QChar::Nbsp);
    QString result = text;
    result.replace(u'\'', u'’');
    result.replace(beforeUnit, noBreak).replace(afterHour, noBreak).replace(beforeSign, noBreak);
    result.replace(u"« "_s, u"«"_s + noBreak);
    return result;
}

void renderMarkup(const std::vector<SourceText> &lines, QTextDocument &document) {
    QTextCursor cursor(&document);
    QTextList *list = nullptr;
    bool first = true;
    for (const Paragraph &paragraph : split(lines)) {
        if (!first) {
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        }
        first = false;
        const bool bullet = paragraph.kind == Kind::Bullet;
        if (!bullet) {
            list = nullptr;
        } else if (list == nullptr) {
            list = cursor.createList(QTextListFormat::ListDisc);
        } else {
            list->add(cursor.block());
        }
        QTextBlockFormat distance;
        distance.setBottomMargin(bullet ? kBelowBullet : kBelowParagraph);
        cursor.mergeBlockFormat(distance);
        if (paragraph.kind == Kind::Step) {
            insertStep(cursor, paragraph.source);
        } else {
            insertMarked(cursor, paragraph.source);
        }
    }
}
