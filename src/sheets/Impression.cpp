#include "Impression.h"

#include "Caracteres.h"
#include "Composition.h"
#include "FicheAlbum.h"

#include "platform/controls/Fonts.h"
#include "store/Textes.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace sheets {

namespace {

using namespace platform::controls;

constexpr int kTrait = 3; // device pixels, of the title's box

/// A text of the page with what it takes from its control.
struct Ecriture {
    QString texte;
    QColor couleur;
    QFont fonte; ///< bold, italic and underline of it count
    double points;
    bool reductible = true; ///< set smaller where it does not fit
};

template <class Controle>
Ecriture EcritureDe(const Controle &controle, double points) {
    return {controle.Caption(), controle.palette().color(controle.foregroundRole()), controle.font(), points};
}

// The boxes are light on dark; paper is not.
Ecriture EcritureDuCorps(const RichTextBox &corps) {
    return {corps.Text(), Qt::black, {}, kPointsCorps};
}

Ecriture EcritureDe(const FicheAlbum &fiche, const Bloc &bloc) {
    switch (bloc.champ) {
    case Champ::Recette:
        return EcritureDe(fiche.Recette, kPointsTitre);
    case Champ::Libelle: {
        Ecriture libelle = EcritureDe(fiche.Libelle(bloc.index), kPointsLibelle);
        libelle.reductible = false;
        return libelle;
    }
    case Champ::Cout:
        return EcritureDe(fiche.Cout, kPointsValeur);
    case Champ::Diff:
        return EcritureDe(fiche.Diff, kPointsValeur);
    case Champ::Teneur:
        return EcritureDe(fiche.Teneur, kPointsValeur);
    case Champ::Data:
        return EcritureDe(fiche.Data(bloc.index), kPointsValeur);
    case Champ::Qte:
        return EcritureDe(fiche.Qte(bloc.index), kPointsValeur);
    case Champ::Mesure:
        return EcritureDe(fiche.Mesure(bloc.index), kPointsValeur);
    case Champ::Ingre:
        return EcritureDe(fiche.Ingre(bloc.index), kPointsValeur);
    case Champ::Prepa:
        return EcritureDuCorps(fiche.Prepa);
    case Champ::Deco:
        return EcritureDuCorps(fiche.Deco);
    case Champ::DureeReal: {
        Ecriture duree = EcritureDe(fiche.Data(0), kPointsValeur);
        duree.texte = fiche.DureeReal;
        return duree;
    }
    }
    return {};
}

QFont PoliceImprimante() {
    QFont police = interfaceFont(Face::Verdana, kPointsValeur);
    // Spaced letters are not drawn as ligatures, which a search in the file would not find; this is too little to see.
    police.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
    return police;
}

/// Gives the printer colour, weight, size, slant and underline of a text; the typeface stays the printer's.
void SetupFontPrinter(QPainter &feuille, const Ecriture &ecriture, double points) {
    feuille.setPen(ecriture.couleur);
    QFont fonte = feuille.font();
    fonte.setBold(ecriture.fonte.bold());
    fonte.setPointSizeF(points);
    fonte.setItalic(ecriture.fonte.italic());
    fonte.setUnderline(ecriture.fonte.underline());
    feuille.setFont(fonte);
}

/// On paper narrower than a sheet of A4 the rectangles shrink but not the writing, and lines would run into each
/// other: there it shrinks with them.
double PointsSurPapier(double points, const QPaintDevice &papier) {
    constexpr double kPleineLargeur = 7.5; // inches; A4 and Letter have more between their margins
    const double largeur = papier.width() / static_cast<double>(papier.logicalDpiX());
    const double demis = std::floor(2 * points * largeur / kPleineLargeur) / 2;
    return largeur >= kPleineLargeur ? points : std::clamp(demis, kPointsMin, points);
}

/// Half a dot stays free, so that the dots do not touch the text of the next column.
QString PointillesDe(int largeur, const QFontMetricsF &metrique) {
    const auto nombre = static_cast<qsizetype>(largeur / metrique.horizontalAdvance(QLatin1Char('.')) - 0.5);
    return QStringLiteral(".").repeated(nombre);
}

Qt::Alignment Alignement(Champ champ, bool tient) {
    switch (champ) {
    case Champ::Recette:
        return Qt::AlignHCenter | (tient ? Qt::AlignVCenter : Qt::AlignTop);
    case Champ::Libelle:
        // Its line is taller than its place, and rises into the gap above rather than hang into its value.
        return Qt::AlignLeft | Qt::AlignBottom;
    default:
        return Qt::AlignLeft | Qt::AlignTop;
    }
}

void DessinerTexte(QPainter &feuille, const Bloc &bloc, Ecriture ecriture) {
    const QRect place(QPoint(bloc.rect.left, bloc.rect.top),
                      QSize(bloc.rect.right - bloc.rect.left, bloc.rect.bottom - bloc.rect.top));
    const auto tientA = [&](double points) {
        SetupFontPrinter(feuille, ecriture, points);
        const QRectF pris = feuille.boundingRect(QRectF(place), Qt::TextWordWrap, ecriture.texte);
        return pris.height() <= place.height() && pris.width() <= place.width();
    };
    double points = PointsSurPapier(ecriture.points, *feuille.device());
    SetupFontPrinter(feuille, ecriture, points);
    if (ecriture.texte == store::LignePointillee) {
        ecriture.texte = PointillesDe(place.width(), QFontMetricsF(feuille.font(), feuille.device()));
        ecriture.reductible = false;
    }
    if (ecriture.reductible) {
        points = TailleQuiTient(points, tientA);
    }
    const auto alignement = static_cast<int>(Alignement(bloc.champ, tientA(points)));
    feuille.drawText(place, alignement | Qt::TextWordWrap | Qt::TextDontClip, ecriture.texte);
}

void DessinerPhoto(QPainter &feuille, const QImage &photo, const Rect &place) {
    if (photo.isNull()) {
        return;
    }
    const QRect cible(QPoint(place.left, place.top),
                      QSize(place.right - place.left, place.bottom - place.top));
    feuille.setRenderHint(QPainter::SmoothPixmapTransform);
    // A file holds no more points than the paper shows.
    const bool grande = photo.width() > cible.width() && photo.height() > cible.height();
    feuille.drawImage(
        cible, grande ? photo.scaled(cible.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : photo);
}

Extent TailleDe(const auto &controle) {
    return {controle.Width(), controle.Height()};
}

} // namespace

Mesures MesuresDe(const FicheAlbum &fiche) {
    Mesures mesures{.largeur = FicheAlbum::kLargeurInterieure,
                    .recette = fiche.Recette.Place(),
                    .cadrePhoto = fiche.CadrePhoto.Place(),
                    .photo = TailleDe(fiche.Photo),
                    .libelle = {},
                    .cout = TailleDe(fiche.Cout),
                    .diff = TailleDe(fiche.Diff),
                    .teneur = TailleDe(fiche.Teneur),
                    .data = {},
                    .lignes = fiche.Qte.Count(),
                    .qte = TailleDe(fiche.Qte(0)),
                    .mesure = TailleDe(fiche.Mesure(0)),
                    .ingre = TailleDe(fiche.Ingre(0)),
                    .prepa = TailleDe(fiche.Prepa),
                    .deco = TailleDe(fiche.Deco)};
    for (const int index : {0, 1, 2, 3, 4, 5, 7, 8, 9, 10}) {
        mesures.libelle.at(static_cast<std::size_t>(index)) = fiche.Libelle(index).Place();
    }
    for (int index = 0; index < fiche.Data.Count(); ++index) {
        mesures.data.at(static_cast<std::size_t>(index)) = TailleDe(fiche.Data(index));
    }
    return mesures;
}

void Imprimer(const FicheAlbum &fiche, QPainter &feuille) {
    const Page page = Composer(MesuresDe(fiche), feuille.device()->width());
    feuille.setFont(PoliceImprimante());
    const Rect &titre = page.blocs.front().rect;
    feuille.setPen(QPen(Qt::black, kTrait));
    feuille.drawRect(titre.left, titre.top, titre.right - titre.left, titre.bottom - titre.top);
    DessinerPhoto(feuille, fiche.Photo.Picture(), page.photo);
    for (const Bloc &bloc : page.blocs) {
        DessinerTexte(feuille, bloc, EcritureDe(fiche, bloc));
    }
}

} // namespace sheets
