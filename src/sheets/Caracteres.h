#pragma once

#include <algorithm>

namespace sheets {

/// Sizes of the sheet's writing, on screen and on paper, in points.
inline constexpr double kPointsTitre = 14;
inline constexpr double kPointsLibelle = 9.75;
inline constexpr double kPointsValeur = 8.25;
inline constexpr double kPointsCorps = 9;

/// Nothing is set smaller to make it fit.
inline constexpr double kPointsMin = 7;

/// The largest size, from the one given down to kPointsMin in half points, at which a text fits; kPointsMin when it
/// fits at none. The test takes a size in points.
template <class Test>
double TailleQuiTient(double points, Test tient) {
    while (points > kPointsMin && !tient(points)) {
        points = std::max(kPointsMin, points - 0.5);
    }
    return points;
}

} // namespace sheets
