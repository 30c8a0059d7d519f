#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

namespace pictures {

inline void VerifierEntier16(double valeur) {
    // Written so that a number that is none fails as well.
    if (!(valeur >= std::numeric_limits<std::int16_t>::min() &&
          valeur <= std::numeric_limits<std::int16_t>::max())) {
        throw std::overflow_error("Dépassement de capacité");
    }
}

/// The nearest 16-bit integer, of two the even one.
/// @throws std::overflow_error beyond 16 bits
inline std::int16_t Entier16(double valeur) {
    const double arrondi = std::nearbyint(valeur);
    VerifierEntier16(arrondi);
    return static_cast<std::int16_t>(arrondi);
}

} // namespace pictures
