#pragma once

#include <QImage>

namespace platform::surface {

/// An off-screen picture to draw on, of 32-bit pixels without transparency.
class Surface {
public:
    /// An empty surface of no size, with the colour that it is cleared to.
    explicit Surface(QRgb background = qRgb(255, 255, 255));

    int width() const { return m_picture.width(); }

    int height() const { return m_picture.height(); }

    const QImage &picture() const { return m_picture; }

    /// Takes a picture and its size; what shines through it is the background. A null one leaves no size.
    void setPicture(const QImage &picture);

    /// Gives the surface a size, in pixels, all of it background.
    /// @throws std::bad_alloc when there is no memory for it
    void clear(int width, int height);

    /// Takes the size and picture of another surface in one block copy, with left and right (horizontal) or top
    /// and bottom (vertical) exchanged.
    void copyMirrored(const Surface &source, Qt::Orientation direction);

    /// The points in rows of width() without gaps; valid until the surface changes its picture or size.
    const QRgb *points() const { return reinterpret_cast<const QRgb *>(m_picture.constBits()); }

    QRgb *points() { return reinterpret_cast<QRgb *>(m_picture.bits()); }

private:
    QRgb m_background;
    QImage m_picture; // QImage::Format_RGB32, or null
};

} // namespace platform::surface
