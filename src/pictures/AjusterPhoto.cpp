#include "AjusterPhoto.h"

#include <stdexcept>

namespace pictures {

using platform::controls::Extent;
using platform::controls::IntegerHalf;
using platform::controls::Rectangle;
using platform::controls::Twips;

namespace {

constexpr Twips kMarge{400};

double Quotient(Twips a, Twips b) {
    return static_cast<double>(a.value()) / static_cast<double>(b.value());
}

} // namespace

Rectangle PlaceDansCadre(Extent cadre, Extent naturelle) {
    if (naturelle.width == Twips() || naturelle.height == Twips()) {
        throw std::domain_error("Division par zéro");
    }
    Rectangle place;
    if (Quotient(cadre.height, cadre.width) < Quotient(naturelle.height, naturelle.width)) {
        place.height = cadre.height - kMarge;
        // From the full height: the picture comes out a little wider than its proportions.
        place.width = Quotient(naturelle.width, naturelle.height) * cadre.height;
    } else {
        place.width = cadre.width - kMarge;
        place.height = Quotient(naturelle.height, naturelle.width) * place.width;
    }
    place.left = IntegerHalf(cadre.width - place.width);
    place.top = IntegerHalf(cadre.height - place.height);
    return place;
}

void AjusterPhoto(Extent cadre, platform::controls::Image &photo,
                  const platform::controls::PictureBox &imageTemp) {
    photo.SetPlace(PlaceDansCadre(cadre, imageTemp.NaturalSize()));
}

void MontrerPhoto(Extent cadre, platform::controls::Image &photo, platform::controls::PictureBox &imageTemp,
                  const QImage &image) {
    photo.hide();
    photo.SetPicture(image);
    imageTemp.SetPicture(image);
    AjusterPhoto(cadre, photo, imageTemp);
    photo.show();
}

} // namespace pictures
