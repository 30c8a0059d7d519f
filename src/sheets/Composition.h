#pragma once

#include "platform/geometry/Twips.h"

#include <QtGlobal>
#include <array>
#include <functional>
#include <vector>

namespace sheets {

/// A rectangle of the printed page, in device pixels from the corner of the printable area. Right and bottom are
/// edges, not last pixels.
struct Rect {
    qint32 left, top, right, bottom;

    friend bool operator==(const Rect &, const Rect &) = default;
};

/// Places and sizes of the sheet's controls, in twips.
struct Mesures {
    using Rectangle = platform::geometry::Rectangle;
    using Extent = platform::geometry::Extent;

    platform::geometry::Twips largeur; ///< inner width of the window
    Rectangle recette, cadrePhoto;
    Extent photo;                      ///< nothing where there is no picture
    std::array<Rectangle, 11> libelle; ///< there is none of index 6
    Extent cout, diff, teneur;
    std::array<Extent, 4> data;
    int lignes = 0; ///< ingredient rows
    Extent qte, mesure, ingre;
    Extent prepa, deco;
};

/// What a block of the page shows. DureeReal stands on the page alone: the sheet repeats the cooking time there.
enum class Champ { Recette, Libelle, Cout, Diff, Teneur, Data, Qte, Mesure, Ingre, Prepa, DureeReal, Deco };

/// A part of one of the two texts, Prepa and Deco, that is in whole lines.
struct Morceau {
    qsizetype debut = 0, fin = 0; ///< characters; the last one is before fin
    double points = 0;            ///< size of the writing
    qint32 hauteur = 0;           ///< device pixels
    bool dernier = true;          ///< nothing comes after it
};

/// The paper: its printable area in device pixels.
struct Papier {
    int largeur, hauteur;
};

/// The writing: how much room it takes on the paper, in device pixels.
struct Metrique {
    qint32 titre, libelle, valeur; ///< height of a line

    /// The part of a text that begins at a character and fits into a width and a height; at least a line.
    std::function<Morceau(Champ champ, double points, qsizetype debut, int largeur, int hauteur)> couper;
};

/// A text of the page and its rectangle; the index counts labels, Data or ingredient rows.
struct Bloc {
    Champ champ;
    int index;
    Rect rect;
    Morceau morceau{};  ///< of Prepa and Deco
    bool suite = false; ///< a label above what began on a page before
};

/// A page: the texts from top to bottom, the first one in the box of the title, and the place of the photo, which is
/// empty where there is none.
struct Page {
    std::vector<Bloc> blocs;
    Rect photo;
};

/// Lays the sheet out. One factor takes the window's width to the printable one; distances that the factor does not
/// touch are device pixels, and everything is rounded to nearest, ties to even. A place is as tall as a line of its
/// writing at least. The two texts are set smaller, down to kPointsMin, to fit into their places; Deco first takes the
/// room down to the end of the page. What does not fit goes on, below the title, on following pages.
std::vector<Page> Composer(const Mesures &mesures, Papier papier, const Metrique &metrique);

} // namespace sheets
