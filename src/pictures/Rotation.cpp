#include "Rotation.h"

#include "Entiers.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pictures {

using platform::surface::Surface;

namespace {

constexpr double kQuart = 3.14159265359 / 2;

struct Point {
    int x, y;
};

/// The memory of a surface; a pixel type of const QRgb reads only.
template <typename Pixel>
struct Memoire {
    Pixel *pixels;
    int largeur, hauteur;

    /// Null for a point outside. Only such a point can lie beyond 16 bits.
    Pixel *En(Point point) const {
        if (static_cast<unsigned>(point.x) < static_cast<unsigned>(largeur) &&
            static_cast<unsigned>(point.y) < static_cast<unsigned>(hauteur)) {
            return pixels + std::ptrdiff_t{point.y} * largeur + point.x;
        }
        VerifierEntier16(point.x);
        VerifierEntier16(point.y);
        return nullptr;
    }
};

struct Centres {
    Point source, destination;
};

Point Centre(const Surface &surface) {
    return {Entier16(surface.width()) / 2, Entier16(surface.height()) / 2};
}

/// Where the source is read for the point (i, j) of the destination's first quadrant, from the centre.
Point Tourne(int i, int j, float angle) {
    const auto a = static_cast<float>(i == 0 ? kQuart : std::atan(static_cast<double>(j) / i));
    // The rounded radius, rounded again after the product, is what gives a turned photograph its grain.
    const int r = Entier16(std::sqrt(static_cast<double>(j * j + i * i)));
    const double somme = static_cast<double>(a) + static_cast<double>(angle);
    return {Entier16(r * std::cos(somme)), Entier16(r * std::sin(somme))};
}

/// One step: what lies i from the centre in the four quadrants.
void TournerUnPas(const Memoire<const QRgb> &source, const Memoire<QRgb> &destination, Centres centres, int i,
                  int dernier, float angle) {
    const auto [c, d] = centres;
    for (int j = 0; j <= dernier; ++j) {
        const auto [x, y] = Tourne(i, j, angle);
        const std::array lus{source.En({c.x + x, c.y + y}), source.En({c.x - x, c.y - y}),
                             source.En({c.x + y, c.y - x}), source.En({c.x - y, c.y + x})};
        const std::array<Point, 4> cibles{
            {{d.x + i, d.y + j}, {d.x - i, d.y - j}, {d.x + j, d.y - i}, {d.x - j, d.y + i}}};
        // On the axes several of the four are the same point: the last one written stays.
        for (std::size_t n = 0; n < lus.size(); ++n) {
            QRgb *const cible = lus[n] == nullptr ? nullptr : destination.En(cibles[n]);
            if (cible != nullptr) {
                *cible = *lus[n];
            }
        }
    }
}

} // namespace

void Rotation(const Surface &source, Surface &destination, float angle, const SuiviRotation &suivi) {
    const Centres centres{Centre(source), Centre(destination)};
    const int dernier = std::max(centres.destination.x, centres.destination.y) - 1;
    for (int i = 0; i <= dernier; ++i) {
        if (dernier == 0) {
            throw std::domain_error("Division par zéro");
        }
        suivi.avancement(static_cast<double>(i) / dernier);
        // Taken anew for each step: the events run at its end may have given a surface another picture.
        const Memoire<const QRgb> lue{source.points(), source.width(), source.height()};
        const Memoire<QRgb> ecrite{destination.points(), destination.width(), destination.height()};
        TournerUnPas(lue, ecrite, centres, i, dernier, angle);
        suivi.finDePas();
    }
}

void TournerUnQuart(const Surface &source, Surface &destination, float angle, const SuiviRotation &suivi) {
    destination.clear(source.height(), source.width());
    Rotation(source, destination, angle, suivi);
}

} // namespace pictures
