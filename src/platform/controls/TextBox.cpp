#include "TextBox.h"

#include "Fonts.h"
#include "LineInput.h"
#include "SkinnedWindow.h"

#include <QKeyEvent>
#include <QPainter>

namespace platform::controls {

namespace {

constexpr int kMargin = 3; // pixels that keep the text clear of the focus ring

} // namespace

LineBox::LineBox(QWidget *parent) : QLineEdit(parent) {
    setFont(interfaceFont(Face::Verdana, 8.25));
    setTextMargins(kMargin, 0, kMargin, 0);
    new LineInput(*this);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, kPaper);
    colours.setColor(QPalette::Text, kInk);
    setPalette(colours);
}

void LineBox::paintEvent(QPaintEvent *event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    paintFocusRing(painter, *this);
}

void LineBox::focusInEvent(QFocusEvent *event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        Q_EMIT Entered();
    }
}

void LineBox::mousePressEvent(QMouseEvent *event) {
    QLineEdit::mousePressEvent(event);
    // The press that brings the keyboard has been reported already, and what was opened then may have taken it.
    if (hasFocus()) {
        Q_EMIT Entered();
    }
}

void LineBox::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        Q_EMIT Entered();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace platform::controls
