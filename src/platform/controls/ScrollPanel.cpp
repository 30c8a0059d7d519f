#include "ScrollPanel.h"

#include "Skin.h"

#include <QMouseEvent>
#include <QScrollBar>

namespace platform::controls {

ScrollArea::ScrollArea(QWidget *parent) : QScrollArea(parent), m_content(new QWidget(this)) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(m_content);
    setFocusPolicy(Qt::NoFocus);
}

void ScrollArea::SetScrollableHeight(Twips height) {
    if (height != m_height) {
        m_height = height;
        fitContent();
    }
}

void ScrollArea::ScrollToTop() {
    verticalScrollBar()->setValue(0);
}

void ScrollArea::SetBackColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour);
    setPalette(colours);
    m_content->setAutoFillBackground(true);
    colourScrollBar(*this, colour);
}

void ScrollArea::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    fitContent();
}

void ScrollArea::mousePressEvent(QMouseEvent * /*event*/) {
    Q_EMIT Clicked();
}

void ScrollArea::fitContent() {
    m_content->resize(viewport()->width(), qMax(m_height.pixels(), viewport()->height()));
}

} // namespace platform::controls
