#include "Labels.h"

#include "SkinnedWindow.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

namespace platform::controls {

namespace {

constexpr int kFloodInset = 2; // pixels from the edge of a panel to its flood

} // namespace

TextLabel::TextLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void TextLabel::SetForeColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(foregroundRole(), colour);
    setPalette(colours);
}

void TextLabel::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, text().left(width()));
}

void TextLabel::mouseDoubleClickEvent(QMouseEvent * /*event*/) {
    Q_EMIT DoubleClicked();
}

CaptionPanel::CaptionPanel(QWidget *parent) : QWidget(parent) {}

void CaptionPanel::SetCaption(const QString &caption) {
    m_caption = caption;
    update();
}

void CaptionPanel::SetForeColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(foregroundRole(), colour);
    setPalette(colours);
}

void CaptionPanel::SetBackColor(const QColor &colour) {
    m_ground = colour;
    update();
}

void CaptionPanel::SetSquare() {
    m_radius = 0;
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CaptionPanel::SetReachable() {
    setFocusPolicy(Qt::StrongFocus);
}

void CaptionPanel::SetFloodPercent(double percent) {
    const int whole = qBound(0, static_cast<int>(percent), 100);
    if (whole != m_flood) {
        m_flood = whole;
        repaint();
    }
}

void CaptionPanel::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    if (m_ground.alpha() > 0) {
        paintBlock(painter, rect(), m_radius, m_ground, m_ground.darker(106), skinAround(*this).edge);
    }
    if (m_flood > 0) {
        const QColor accent = skinAround(*this).accent;
        const QRect flood(kFloodInset, kFloodInset, (width() - 2 * kFloodInset) * m_flood / 100,
                          height() - 2 * kFloodInset);
        paintBlock(painter, flood, 0, accent.lighter(120), accent, QColor());
    }
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    painter.setOpacity(isEnabled() ? 1.0 : 0.45);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_caption);
    paintFocusRing(painter, *this);
}

void CaptionPanel::mousePressEvent(QMouseEvent *event) {
    // Taken here: passed on, it would begin to move the window.
    event->setAccepted(isEnabled());
}

void CaptionPanel::mouseReleaseEvent(QMouseEvent *event) {
    if (!rect().contains(event->position().toPoint())) {
        return;
    }
    if (event->button() == Qt::LeftButton) {
        Q_EMIT Clicked();
    } else if (event->button() == Qt::RightButton) {
        Q_EMIT RightClicked(event->globalPosition().toPoint());
    }
}

void CaptionPanel::keyPressEvent(QKeyEvent *event) {
    const bool clicks =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (clicks && focusPolicy() != Qt::NoFocus) {
        if (!event->isAutoRepeat()) {
            Q_EMIT Clicked();
        }
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CaptionPanel::contextMenuEvent(QContextMenuEvent *event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        Q_EMIT RightClicked(mapToGlobal(rect().center()));
    }
}

void CaptionPanel::enterEvent(QEnterEvent *event) {
    QWidget::enterEvent(event);
    Q_EMIT Entered();
}

void CaptionPanel::leaveEvent(QEvent *event) {
    QWidget::leaveEvent(event);
    Q_EMIT Exited();
}

} // namespace platform::controls
