#pragma once

#include "platform/geometry/Twips.h"

#include <QtGlobal>
#include <array>
#include <vector>

namespace sheets {

/// A rectangle of the printed page, in device pixels from the corner of the printable area. Right and bottom are
/// edges, not last pixels.
struct Rect {
    qint32 left, top, right, bottom;

    friend bool operator==(const Rect &, const Rect &) = default;
};

/// Places and sizes of the sheet's controls, in twips; all that the printed page depends on.
struct Mesures {
    using Rectangle = platform::geometry::Rectangle;
    using Extent = platform::geometry::Extent;

    platform::geometry::Twips largeur; ///< inner width of the window
    Rectangle recette, cadrePhoto;
    Extent photo;
    std::array<Rectangle, 11> libelle; ///< there is none of index 6
    Extent cout, diff, teneur;
    std::array<Extent, 4> data;
    int lignes = 0; ///< ingredient rows
    Extent qte, mesure, ingre;
    Extent prepa, deco;
};

/// What a block of the page shows. DureeReal stands on the page alone: the sheet repeats the cooking time there.
enum class Champ { Recette, Libelle, Cout, Diff, Teneur, Data, Qte, Mesure, Ingre, Prepa, DureeReal, Deco };

/// A text of the page and the rectangle that it starts in; the index counts labels, Data or ingredient rows.
struct Bloc {
    Champ champ;
    int index;
    Rect rect;

    friend bool operator==(const Bloc &, const Bloc &) = default;
};

/// The page: the texts from top to bottom, the first one in the box of the title, and the place of the photo.
struct Page {
    std::vector<Bloc> blocs;
    Rect photo;
};

/// Lays out the page for a printable width in device pixels. One factor takes the window's width to it; distances
/// that the factor does not touch are device pixels, and everything is rounded to nearest, ties to even. The height
/// of the paper has no say: what ends below it is cut off.
Page Composer(const Mesures &mesures, int largeurPage);

} // namespace sheets
