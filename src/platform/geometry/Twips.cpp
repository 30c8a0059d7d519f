#include "Twips.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace platform::geometry {

int Twips::pixels() const {
    return qRound(m_value / twipsPerPixel());
}

Twips IntegerHalf(Twips length) {
    return Twips(static_cast<int>(std::nearbyint(static_cast<double>(length.value()))) / 2);
}

QRect Rectangle::pixels() const {
    return {QPoint(left.pixels(), top.pixels()), QPoint(right().pixels() - 1, bottom().pixels() - 1)};
}

double twipsPerPixel() {
    static const double factor = [] {
        const QScreen *screen = QGuiApplication::primaryScreen();
        if (screen == nullptr) {
            return kTwipsPerPixel;
        }
        const QSize room = screen->availableSize();
        return std::max({kTwipsPerPixel, static_cast<double>(kWindowSize.width.value()) / room.width(),
                         static_cast<double>(kWindowSize.height.value()) / room.height()});
    }();
    return factor;
}

} // namespace platform::geometry
