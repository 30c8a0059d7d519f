#include "AjusterPhoto.h"

#include <stdexcept>

namespace pictures {

using platform::controls::Extent;
using platform::controls::IntegerHalf;
using platform::controls::Rectangle;
using platform::controls::Twips;

namespace {

double Quotient(Twips a, Twips b) {
    return static_cast<double>(a.value()) / static_cast<double>(b.value());
}

/// Fits by the height or by the width, whichever decides, less its margin.
Rectangle Placer(const Rectangle &cadre, Extent naturelle, Extent marges) {
    if (naturelle.width == Twips() || naturelle.height == Twips()) {
        throw std::domain_error("Division par zéro");
    }
    Rectangle place;
    if (Quotient(cadre.height, cadre.width) < Quotient(naturelle.height, naturelle.width)) {
        place.height = cadre.height - marges.height;
        // From the full height: the picture comes out a little wider than its proportions.
        place.width = Quotient(naturelle.width, naturelle.height) * cadre.height;
    } else {
        place.width = cadre.width - marges.width;
        place.height = Quotient(naturelle.height, naturelle.width) * place.width;
    }
    place.left = cadre.left + IntegerHalf(cadre.width - place.width);
    place.top = cadre.top + IntegerHalf(cadre.height - place.height);
    return place;
}

} // namespace

Rectangle PlaceDansCadre(Extent cadre, Extent naturelle) {
    return Placer({{}, {}, cadre.width, cadre.height}, naturelle, {Twips(400), Twips(400)});
}

Rectangle PlacePhotoScan(const Rectangle &cadre, Extent naturelle) {
    return Placer(cadre, naturelle, {Twips(50), Twips(50)});
}

Rectangle PlaceNumerisation(const Rectangle &cadre, Extent naturelle) {
    return Placer(cadre, naturelle, {Twips(10), Twips()});
}

void AjusterPhoto(Extent cadre, platform::controls::Image &photo) {
    photo.SetPlace(PlaceDansCadre(cadre, photo.NaturalSize()));
}

void MontrerPhoto(Extent cadre, platform::controls::Image &photo, const QImage &image) {
    photo.hide();
    photo.SetPicture(image);
    AjusterPhoto(cadre, photo);
    photo.show();
}

} // namespace pictures
