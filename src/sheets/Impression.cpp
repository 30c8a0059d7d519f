#include "Impression.h"

#include "Caracteres.h"
#include "Composition.h"
#include "FicheAlbum.h"
#include "TexteImprime.h"

#include "platform/controls/Fonts.h"
#include "store/Textes.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace sheets {

namespace {

using namespace platform::controls;

constexpr int kTrait = 3; // device pixels, of the title's box

// Inches. Paper narrower than the first gets a page of A4, scaled; on a printable area smaller than the two last the
// labels would not fit into their places: it gets one of that size, scaled.
constexpr double kPleineLargeur = 7.5;
constexpr double kLargeurA4 = 210 / 25.4;
constexpr double kLargeurMin = 5;
constexpr double kHauteurMin = 4;

/// A text of one line with what it takes from its control.
struct Ecriture {
    QString texte;
    QColor couleur;
    QFont fonte; ///< bold, italic and underline of it count
    double points;
};

template <class Controle>
Ecriture EcritureDe(const Controle &controle, double points) {
    return {controle.Caption(), controle.palette().color(controle.foregroundRole()), controle.font(), points};
}

Ecriture EcritureDe(const FicheAlbum &fiche, const Bloc &bloc) {
    switch (bloc.champ) {
    case Champ::Recette:
        return EcritureDe(fiche.Recette, kPointsTitre);
    case Champ::Libelle: {
        Ecriture libelle = EcritureDe(fiche.Libelle(bloc.index), kPointsLibelle);
        libelle.texte += bloc.suite ? QStringLiteral(" (suite)") : QString();
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
    case Champ::DureeReal: {
        Ecriture duree = EcritureDe(fiche.Data(0), kPointsValeur);
        duree.texte = fiche.DureeReal;
        return duree;
    }
    case Champ::Prepa:
    case Champ::Deco:
        break; // TexteImprime draws them
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
void SetupFontPrinter(QPainter &feuille, const Ecriture &ecriture) {
    feuille.setPen(ecriture.couleur);
    QFont fonte = feuille.font();
    fonte.setBold(ecriture.fonte.bold());
    fonte.setPointSizeF(ecriture.points);
    fonte.setItalic(ecriture.fonte.italic());
    fonte.setUnderline(ecriture.fonte.underline());
    feuille.setFont(fonte);
}

/// Half a dot stays free, so that the dots do not touch the text of the next column.
QString PointillesDe(double largeur, const QFontMetricsF &metrique) {
    const auto nombre = static_cast<qsizetype>(largeur / metrique.horizontalAdvance(QLatin1Char('.')) - 0.5);
    return QStringLiteral(".").repeated(std::max(nombre, qsizetype{0}));
}

Qt::Alignment Alignement(Champ champ) {
    switch (champ) {
    case Champ::Recette:
        return Qt::AlignCenter;
    case Champ::Libelle:
        // Its line is taller than its place, and rises into the gap above rather than hang into its value.
        return Qt::AlignLeft | Qt::AlignBottom;
    default:
        return Qt::AlignLeft | Qt::AlignTop;
    }
}

QRect CadreDe(const Rect &place) {
    return {QPoint(place.left, place.top), QSize(place.right - place.left, place.bottom - place.top)};
}

/// The text as it fits into a place. A label has room beside its place.
QString TexteQuiTient(const Bloc &bloc, const QString &texte, const QFontMetricsF &metrique) {
    const double largeur = bloc.rect.right - bloc.rect.left;
    if (bloc.champ == Champ::Libelle) {
        return texte;
    }
    return texte == store::LignePointillee ? PointillesDe(largeur, metrique)
                                           : metrique.elidedText(texte, Qt::ElideRight, largeur);
}

void DessinerLigne(QPainter &feuille, const Bloc &bloc, const Ecriture &ecriture) {
    SetupFontPrinter(feuille, ecriture);
    const QFontMetricsF metrique(feuille.font(), feuille.device());
    feuille.drawText(CadreDe(bloc.rect),
                     static_cast<int>(Alignement(bloc.champ)) | Qt::TextSingleLine | Qt::TextDontClip,
                     TexteQuiTient(bloc, ecriture.texte, metrique));
}

void DessinerPhoto(QPainter &feuille, const QImage &photo, const Rect &place) {
    if (photo.isNull()) {
        return;
    }
    const QRect cible = CadreDe(place);
    feuille.setRenderHint(QPainter::SmoothPixmapTransform);
    // A file holds no more points than the paper shows.
    const bool grande = photo.width() > cible.width() && photo.height() > cible.height();
    feuille.drawImage(
        cible, grande ? photo.scaled(cible.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : photo);
}

Extent TailleDe(const auto &controle) {
    return {controle.Width(), controle.Height()};
}

/// By how much a page is made smaller as a whole to fit onto a paper. The paper's own width decides, not its margins.
double EchelleDuPapier(const QPagedPaintDevice &papier) {
    const double pouce = papier.logicalDpiX();
    const double largeur = papier.pageLayout().fullRect(QPageLayout::Inch).width();
    const double papierEtroit = largeur < kPleineLargeur ? largeur / kLargeurA4 : 1;
    return std::min(
        {papierEtroit, papier.width() / (kLargeurMin * pouce), papier.height() / (kHauteurMin * pouce)});
}

/// Draws a sheet on a paper that has the resolution of the composition.
class Imprimeur {
public:
    Imprimeur(const FicheAlbum &fiche, QPainter &feuille)
        : m_fiche(fiche),
          m_feuille(feuille),
          m_prepa(fiche.Prepa.Text(), PoliceImprimante(), *feuille.device()),
          m_deco(fiche.Deco.Text(), PoliceImprimante(), *feuille.device()) {
        m_feuille.setFont(PoliceImprimante());
    }

    Metrique MetriqueDuPapier() const {
        return {.titre = HauteurDeLigne(m_fiche.Recette.font(), kPointsTitre),
                .libelle = HauteurDeLigne(m_fiche.Libelle(0).font(), kPointsLibelle),
                .valeur = HauteurDeLigne(m_fiche.Cout.font(), kPointsValeur),
                .couper = [this](Champ champ, double points, qsizetype debut, int largeur, int hauteur) {
                    return Texte(champ).Couper(points, debut, largeur, hauteur);
                }};
    }

    void Dessiner(const Page &page) {
        m_feuille.setPen(QPen(Qt::black, kTrait));
        m_feuille.drawRect(CadreDe(page.blocs.front().rect));
        DessinerPhoto(m_feuille, m_fiche.Photo.Picture(), page.photo);
        for (const Bloc &bloc : page.blocs) {
            if (bloc.champ == Champ::Prepa || bloc.champ == Champ::Deco) {
                // The boxes are light on dark; paper is not.
                m_feuille.setPen(Qt::black);
                Texte(bloc.champ).Dessiner(m_feuille, bloc.morceau, bloc.rect);
            } else {
                DessinerLigne(m_feuille, bloc, EcritureDe(m_fiche, bloc));
            }
        }
    }

private:
    const TexteImprime &Texte(Champ champ) const { return champ == Champ::Prepa ? m_prepa : m_deco; }

    qint32 HauteurDeLigne(const QFont &modele, double points) const {
        QFont fonte = PoliceImprimante();
        fonte.setBold(modele.bold());
        fonte.setPointSizeF(points);
        return static_cast<qint32>(std::ceil(QFontMetricsF(fonte, m_feuille.device()).height()));
    }

    const FicheAlbum &m_fiche;
    QPainter &m_feuille;
    TexteImprime m_prepa, m_deco;
};

} // namespace

Mesures MesuresDe(const FicheAlbum &fiche) {
    Mesures mesures{.largeur = FicheAlbum::kLargeurInterieure,
                    .recette = fiche.Recette.Place(),
                    .cadrePhoto = fiche.CadrePhoto.Place(),
                    .photo = fiche.Photo.Picture().isNull() ? Extent() : TailleDe(fiche.Photo),
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

void Imprimer(const FicheAlbum &fiche, QPainter &feuille, QPagedPaintDevice &papier) {
    const double echelle = EchelleDuPapier(papier);
    feuille.scale(echelle, echelle);
    Imprimeur imprimeur(fiche, feuille);
    const Papier place{static_cast<int>(papier.width() / echelle),
                       static_cast<int>(papier.height() / echelle)};
    const std::vector<Page> pages = Composer(MesuresDe(fiche), place, imprimeur.MetriqueDuPapier());
    for (const Page &page : pages) {
        if (&page != &pages.front() && !papier.newPage()) {
            throw platform::dialogs::PrintError("L'impression a échoué.");
        }
        imprimeur.Dessiner(page);
    }
}

} // namespace sheets
