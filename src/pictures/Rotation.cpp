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

/// Where the source is read for the points (i, j) of the destination's first quadrant, from the centre: by an
/// angle in 32 bits and a radius that is rounded, and rounded again after the product, which gives a turned
/// photograph its grain.
class Tour {
public:
    explicit Tour(float angle)
        : m_angle(static_cast<double>(angle)), m_cosinus(std::cos(m_angle)), m_sinus(std::sin(m_angle)) {}

    Point Lu(int i, int j) const {
        const double rayon = std::sqrt(static_cast<double>(j * j + i * i));
        const double arrondi = std::nearbyint(rayon);
        // The sum of angles without an angle. The 32 bits move a point by less than 0.002 pixels, 32,767 being
        // the largest radius; only the few points that lie near the middle between two are worth the exact way.
        const double part = arrondi / rayon;
        const double x = part * (i * m_cosinus - j * m_sinus);
        const double y = part * (i * m_sinus + j * m_cosinus);
        const double entierX = std::nearbyint(x);
        const double entierY = std::nearbyint(y);
        if (std::abs(x - entierX) < kSur && std::abs(y - entierY) < kSur && arrondi <= kPlusGrandRayon) {
            return {static_cast<int>(entierX), static_cast<int>(entierY)};
        }
        return Exactement(i, j);
    }

private:
    static constexpr double kSur = 0.49;
    // Below it no product gets beyond 16 bits.
    static constexpr double kPlusGrandRayon = 32'767;

    Point Exactement(int i, int j) const {
        const auto a = static_cast<float>(i == 0 ? kQuart : std::atan(static_cast<double>(j) / i));
        const int r = Entier16(std::sqrt(static_cast<double>(j * j + i * i)));
        const double somme = static_cast<double>(a) + m_angle;
        return {Entier16(r * std::cos(somme)), Entier16(r * std::sin(somme))};
    }

    double m_angle, m_cosinus, m_sinus;
};

/// One step: what lies i from the centre in the four quadrants.
void TournerUnPas(const Memoire<const QRgb> &source, const Memoire<QRgb> &destination, Centres centres, int i,
                  int dernier, const Tour &tour) {
    const auto [c, d] = centres;
    for (int j = 0; j <= dernier; ++j) {
        const auto [x, y] = tour.Lu(i, j);
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

bool Rotation(const Surface &source, Surface &destination, float angle, const SuiviRotation &suivi) {
    const Centres centres{Centre(source), Centre(destination)};
    const int dernier = std::max(centres.destination.x, centres.destination.y) - 1;
    const Tour tour(angle);
    for (int i = 0; i <= dernier; ++i) {
        if (dernier == 0) {
            throw std::domain_error("Division par zéro");
        }
        suivi.avancement(static_cast<double>(i) / dernier);
        // Taken again at each step: the events run at its end may have given a surface another picture.
        const Memoire<const QRgb> lue{source.points(), source.width(), source.height()};
        const Memoire<QRgb> ecrite{destination.points(), destination.width(), destination.height()};
        TournerUnPas(lue, ecrite, centres, i, dernier, tour);
        if (!suivi.finDePas()) {
            return false;
        }
    }
    return true;
}

bool TournerUnQuart(const Surface &source, Surface &destination, float angle, const SuiviRotation &suivi) {
    destination.clear(source.height(), source.width());
    return Rotation(source, destination, angle, suivi);
}

} // namespace pictures
