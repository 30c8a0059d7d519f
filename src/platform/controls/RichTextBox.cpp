#include "RichTextBox.h"

#include "Fonts.h"
#include "Skin.h"

#include "platform/richtext/RichText.h"

#include <QMouseEvent>
#include <QSignalBlocker>

namespace platform::controls {

namespace {

constexpr Twips kMargin{120};
const QColor kDarkGround(30, 42, 68);
const QColor kDarkSelection(77, 108, 166);

} // namespace

RichTextEdit::RichTextEdit(QWidget *parent) : QTextEdit(parent) {
    setFont(interfaceFont(Face::Verdana, 9));
    setTabChangesFocus(true);
    document()->setDocumentMargin(kMargin.pixels());
    colourScrollBar(*this, kDarkGround.lighter(150));
    SetDefaultColor(Qt::white);
    connect(this, &QTextEdit::textChanged, this, &RichTextEdit::Change);
}

void RichTextEdit::SetDefaultColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, kDarkGround);
    colours.setColor(QPalette::Text, colour);
    colours.setColor(QPalette::Highlight, kDarkSelection);
    colours.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colours);
    paintFocusFrame(*this, hasFocus());
}

void RichTextEdit::focusInEvent(QFocusEvent *event) {
    QTextEdit::focusInEvent(event);
    paintFocusFrame(*this, true);
}

void RichTextEdit::focusOutEvent(QFocusEvent *event) {
    QTextEdit::focusOutEvent(event);
    paintFocusFrame(*this, false);
}

QString RichTextEdit::TextRTF() const {
    return richtext::toRtf(*document());
}

void RichTextEdit::SetTextRTF(const QString &text) {
    const QSignalBlocker quiet(this);
    richtext::load(*document(), text);
    moveCursor(QTextCursor::Start);
}

void RichTextEdit::Select(int start, int length) {
    QTextCursor cursor(document());
    const int last = document()->characterCount() - 1;
    cursor.setPosition(qMin(start, last));
    cursor.setPosition(qMin(start + length, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void RichTextEdit::SetSelColor(const QColor &colour) {
    setTextColor(colour);
}

void RichTextEdit::SetSelBold(bool bold) {
    setFontWeight(bold ? QFont::Bold : QFont::Normal);
}

void RichTextEdit::mouseReleaseEvent(QMouseEvent *event) {
    QTextEdit::mouseReleaseEvent(event);
    Q_EMIT Clicked();
}

} // namespace platform::controls
