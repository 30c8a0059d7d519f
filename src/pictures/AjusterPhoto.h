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

/// Fits a picture control into its frame. The picture has been given to imageTemp before, whose unstretched
/// size is its natural size.
void AjusterPhoto(platform::controls::Extent cadre, platform::controls::Image &photo,
                  const platform::controls::PictureBox &imageTemp);

/// Shows a picture, which must not be null, in its frame; imageTemp gets the same one.
void MontrerPhoto(platform::controls::Extent cadre, platform::controls::Image &photo,
                  platform::controls::PictureBox &imageTemp, const QImage &image);

} // namespace pictures
