#pragma once

#include "platform/surface/Surface.h"

#include <functional>

namespace pictures {

/// What the caller learns while a picture turns.
struct SuiviRotation {
    /// At the beginning of each step: how much is done, from 0 to 1.
    std::function<void(double)> avancement;
    /// At the end of each step; may run the event loop and change both surfaces, even their sizes. False stops the
    /// turn.
    std::function<bool()> finDePas;
};

// A quarter turn, with the two-digit value of pi that gives a turned photograph its grain.
inline constexpr float kQuartGauche = static_cast<float>(3.14 / 2);
inline constexpr float kQuartDroite = static_cast<float>(-3.14 / 2);

/// Turns the source around its centre into the destination, counter-clockwise for a positive angle in radians.
/// Points that the source does not have leave those of the destination as they are.
/// @return false for a turn that was stopped; the destination is then half drawn
/// @throws std::overflow_error for a surface of more than 32,767 pixels in a direction, or when a coordinate
///         gets there on the way; the destination may then be half drawn
/// @throws std::domain_error when the larger side of the destination is 2 or 3
bool Rotation(const platform::surface::Surface &source, platform::surface::Surface &destination, float angle,
              const SuiviRotation &suivi);

/// Gives the destination the sides of the source exchanged, all background, and turns the source into it.
/// @return, throws: as Rotation does
bool TournerUnQuart(const platform::surface::Surface &source, platform::surface::Surface &destination,
                    float angle, const SuiviRotation &suivi);

} // namespace pictures
