#include "PreviewArea.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace platform::scandialogs {

namespace {

const QRectF kWhole(0, 0, 1, 1);
constexpr double kSmallest = 0.01; // of the glass; less is a click
constexpr QSize kLeastSize(300, 360);
constexpr QRgb kVeil = qRgba(0, 0, 0, 90);

QRectF scaled(const QRectF &part, const QRectF &whole) {
    return {whole.left() + part.left() * whole.width(), whole.top() + part.top() * whole.height(),
            part.width() * whole.width(), part.height() * whole.height()};
}

} // namespace

PreviewArea::PreviewArea(QWidget *parent) : QWidget(parent) {
    setMinimumSize(kLeastSize);
    setCursor(Qt::CrossCursor);
}

void PreviewArea::setGlass(QSizeF glass) {
    m_glass = glass.isEmpty() ? QSizeF(1, 1) : glass;
    update();
}

void PreviewArea::setPreview(const QImage &preview) {
    m_preview = preview;
    update();
}

QRectF PreviewArea::glassOnWidget() const {
    const QSizeF shown = m_glass.scaled(size(), Qt::KeepAspectRatio);
    return {(width() - shown.width()) / 2, (height() - shown.height()) / 2, shown.width(), shown.height()};
}

QPointF PreviewArea::onGlass(QPointF point) const {
    const QRectF glass = glassOnWidget();
    return {std::clamp((point.x() - glass.left()) / glass.width(), 0.0, 1.0),
            std::clamp((point.y() - glass.top()) / glass.height(), 0.0, 1.0)};
}

void PreviewArea::paintEvent(QPaintEvent * /*event*/) {
    const QRectF glass = glassOnWidget();
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(glass, Qt::white);
    painter.drawImage(glass, m_preview);
    if (m_selection != kWhole) {
        const QRectF chosen = scaled(m_selection, glass);
        painter.setClipRegion(QRegion(glass.toRect()) - chosen.toRect());
        painter.fillRect(glass, QColor::fromRgba(kVeil));
        painter.setClipping(false);
        painter.setPen(QPen(palette().highlight(), 2));
        painter.drawRect(chosen);
    }
    painter.setPen(palette().mid().color());
    painter.drawRect(glass.adjusted(0, 0, -1, -1));
}

void PreviewArea::mousePressEvent(QMouseEvent *event) {
    m_start = onGlass(event->position());
}

void PreviewArea::mouseMoveEvent(QMouseEvent *event) {
    m_selection = QRectF(m_start, onGlass(event->position())).normalized();
    update();
}

void PreviewArea::mouseReleaseEvent(QMouseEvent *event) {
    m_selection = QRectF(m_start, onGlass(event->position())).normalized();
    if (m_selection.width() < kSmallest || m_selection.height() < kSmallest) {
        m_selection = kWhole;
    }
    update();
}

} // namespace platform::scandialogs
