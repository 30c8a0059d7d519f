#pragma once

#include "platform/surface/Surface.h"

namespace pictures {

/// Gives the destination the source's size and picture with left and right exchanged.
/// @throws std::overflow_error for a source of more than 32,767 pixels in a direction
void MiroirHorizontal(const platform::surface::Surface &source, platform::surface::Surface &destination);

/// The same with top and bottom exchanged.
void MiroirVertical(const platform::surface::Surface &source, platform::surface::Surface &destination);

} // namespace pictures
