#pragma once

#include "platform/controls/Picture.h"

namespace pictures {

/// Where a picture of a natural size stands in a frame, relative to the frame, in twips: as large as the
/// frame allows with a margin of 400 in the direction that decides. Throws std::domain_error for a picture
/// without size.
platform::controls::Rectangle PlaceDansCadre(platform::controls::Extent cadre,
                                             platform::controls::Extent naturelle);

/// Where the picture of the workshop stands: over its frame, beside which it lies on the window, so from the
/// frame's own position; 50 less than the frame allows in the direction that decides. Throws as above.
platform::controls::Rectangle PlacePhotoScan(const platform::controls::Rectangle &cadre,
                                             platform::controls::Extent naturelle);

/// The same for a picture just scanned, which takes the whole height, or the width less 10.
platform::controls::Rectangle PlaceNumerisation(const platform::controls::Rectangle &cadre,
                                                platform::controls::Extent naturelle);

/// Fits the control of a picture into its frame.
void AjusterPhoto(platform::controls::Extent cadre, platform::controls::Image &photo);

/// Shows a picture, which must not be null, in its frame.
void MontrerPhoto(platform::controls::Extent cadre, platform::controls::Image &photo, const QImage &image);

} // namespace pictures
