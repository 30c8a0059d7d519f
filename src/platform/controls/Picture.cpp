#include "Picture.h"

#include <QMouseEvent>
#include <QPainter>

namespace platform::controls {

PictureBox::PictureBox(QWidget *parent) : QWidget(parent) {}

void PictureBox::SetPicture(const QImage &picture) {
    m_picture = picture;
    m_scaled = {};
    update();
}

Extent PictureBox::NaturalSize() const {
    return {Twips(m_picture.width() * kTwipsPerPixel), Twips(m_picture.height() * kTwipsPerPixel)};
}

void PictureBox::paintEvent(QPaintEvent * /*event*/) {
    if (m_picture.isNull() || size().isEmpty()) {
        return;
    }
    const QSize wanted = size() * devicePixelRatio();
    if (m_scaled.size() != wanted) {
        m_scaled =
            QPixmap::fromImage(m_picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(devicePixelRatio());
    }
    QPainter(this).drawPixmap(0, 0, m_scaled);
}

void PictureBox::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT Pressed();
    }
    event->ignore();
}

} // namespace platform::controls
