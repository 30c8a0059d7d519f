#include "Surface.h"

#include <QPainter>

#include <new>

namespace platform::surface {

namespace {

QImage filled(int width, int height, QRgb colour) {
    QImage picture(width, height, QImage::Format_RGB32);
    if (picture.isNull() && width > 0 && height > 0) {
        throw std::bad_alloc();
    }
    picture.fill(colour);
    return picture;
}

} // namespace

Surface::Surface(QRgb background) : m_background(background) {}

void Surface::setPicture(const QImage &picture) {
    if (picture.hasAlphaChannel()) {
        m_picture = filled(picture.width(), picture.height(), m_background);
        QPainter(&m_picture).drawImage(0, 0, picture);
    } else {
        m_picture = picture.convertToFormat(QImage::Format_RGB32);
    }
    // A ratio that came with the picture would make drawing count in other pixels than ours.
    m_picture.setDevicePixelRatio(1);
}

void Surface::clear(int width, int height) {
    m_picture = filled(width, height, m_background);
}

void Surface::copyMirrored(const Surface &source, Qt::Orientation direction) {
    m_picture = source.m_picture.mirrored(direction == Qt::Horizontal, direction == Qt::Vertical);
}

} // namespace platform::surface
