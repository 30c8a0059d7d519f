#include "Composition.h"

#include "Caracteres.h"

#include <algorithm>
#include <cmath>

namespace sheets {

namespace {

using platform::geometry::Extent;
using platform::geometry::Rectangle;
using platform::geometry::Twips;

// Device pixels.
constexpr qint32 kHautTitre = 100;
constexpr qint32 kSousTitre = 100;
constexpr qint32 kSousTitrePhoto = 30;
constexpr qint32 kApresPhoto = 250;
constexpr qint32 kEntreCouples = 100;
constexpr qint32 kAvantCategorie = 65;
constexpr qint32 kAvantIngredients = 250;
constexpr qint32 kEntreColonnes = 10;
constexpr qint32 kRetraitIngredient = 30;
constexpr qint32 kAvantTexte = 100;

/// A label's line is taller than its place and rises into the gap above, which is that high at least.
constexpr qint32 kDepassement = kSousTitrePhoto;

qint32 Arrondi(double pixels) {
    return static_cast<qint32>(std::nearbyint(pixels));
}

/// Composes the pages block by block; each starts from where m_rect was left.
class Compositeur {
public:
    Compositeur(const Mesures &mesures, Papier papier, const Metrique &metrique)
        : m_mesures(mesures),
          m_papier(papier),
          m_metrique(metrique),
          m_rapport(papier.largeur / static_cast<double>(mesures.largeur.value())),
          m_marge(Arrondi(Pixels(mesures.libelle[0].left))) {}

    std::vector<Page> Composer() {
        OuvrirPage();
        m_haut = m_rect.bottom + kSousTitre;
        PlacerPhoto();
        PlacerColonne();
        PlacerIngredients();
        PlacerDesc(3, Champ::Prepa, m_mesures.prepa);
        PlacerDuree();
        PlacerDesc(5, Champ::Deco, m_mesures.deco);
        if (!m_restes.empty()) {
            TournerPage();
        }
        return m_pages;
    }

private:
    /// What is left of a text for the following pages.
    struct Reste {
        int libelle;
        Champ champ;
        Twips largeur;
        qsizetype debut;
    };

    double Pixels(Twips longueur) const { return m_rapport * static_cast<double>(longueur.value()); }

    Rectangle PlaceLibelle(int index) const { return m_mesures.libelle.at(static_cast<std::size_t>(index)); }

    qint32 HautDuLibelle(int index) const {
        return std::max(Arrondi(Pixels(PlaceLibelle(index).height)), m_metrique.libelle - kDepassement);
    }

    void Noter(Champ champ, int index, const Morceau &morceau = {}) {
        m_pages.back().blocs.push_back({champ, index, m_rect, morceau});
    }

    /// The lower edge of a place that starts at the top of m_rect.
    qint32 Bas(Twips hauteur, qint32 auMoins) const {
        return std::max(Arrondi(m_rect.top + Pixels(hauteur)), m_rect.top + auMoins);
    }

    void Placer(Champ champ, int index, Extent taille) {
        m_rect.right = Arrondi(m_rect.left + Pixels(taille.width));
        m_rect.bottom = Bas(taille.height, m_metrique.valeur);
        Noter(champ, index);
    }

    void PlacerLibelle(int index, bool suite = false) {
        const Rectangle place = PlaceLibelle(index);
        m_rect.right = Arrondi(m_rect.left + Pixels(place.width));
        m_rect.bottom = Bas(place.height, m_metrique.libelle - kDepassement);
        Noter(Champ::Libelle, index);
        m_pages.back().blocs.back().suite = suite;
    }

    void PlacerTitre() {
        m_rect.left = Arrondi(Pixels(m_mesures.recette.left));
        m_rect.top = kHautTitre;
        // The right margin is twice the left one.
        m_rect.right = m_papier.largeur - 2 * m_rect.left;
        m_rect.bottom = Bas(m_mesures.recette.height, m_metrique.titre);
        Noter(Champ::Recette, 0);
    }

    void OuvrirPage() {
        m_pages.emplace_back();
        PlacerTitre();
    }

    bool PageNeuve() const { return m_pages.back().blocs.size() == 1; }

    bool Tient(qint32 hauteur) const { return m_rect.bottom + hauteur <= m_papier.hauteur; }

    /// A new page; what is left of a text comes first.
    void TournerPage() {
        OuvrirPage();
        while (!m_restes.empty()) {
            PlacerReste();
        }
    }

    /// Goes to a new page where a height has no room on this one.
    void Reserver(qint32 hauteur) {
        if (!Tient(hauteur) && !PageNeuve()) {
            TournerPage();
        }
    }

    void PlacerPhoto() {
        m_rect.left = Arrondi(Pixels(m_mesures.cadrePhoto.left));
        m_rect.top = m_rect.bottom + kSousTitrePhoto;
        // The frame's left is not added here; the column beside it starts from this edge.
        m_rect.right = Arrondi(Pixels(m_mesures.cadrePhoto.width));
        m_rect.bottom = Arrondi(m_rect.top + Pixels(m_mesures.cadrePhoto.height));
        const qint32 largeur = Arrondi(Pixels(m_mesures.photo.width));
        const qint32 hauteur = Arrondi(Pixels(m_mesures.photo.height));
        const qint32 gauche = m_rect.left + (m_rect.right - m_rect.left - largeur) / 2;
        const qint32 haut = m_rect.top + (m_rect.bottom - m_rect.top - hauteur) / 2;
        m_pages.back().photo = {gauche, haut, gauche + largeur, haut + hauteur};
    }

    /// A label and its value below it, from the corner where m_rect stands.
    void PlacerCouple(int libelle, Champ champ, Extent taille) {
        PlacerLibelle(libelle);
        m_rect.top = m_rect.bottom;
        Placer(champ, 0, taille);
    }

    /// The values right of the photo: three pairs side by side, then three below each other.
    void PlacerColonne() {
        m_rect.left = m_rect.right + kApresPhoto;
        const qint32 colonne = m_rect.left;
        // The first pair stands higher than the two others: its top is the photo's.
        PlacerCouple(8, Champ::Cout, m_mesures.cout);
        PlacerCoupleSuivant(9, Champ::Diff, m_mesures.diff);
        PlacerCoupleSuivant(10, Champ::Teneur, m_mesures.teneur);
        const qint32 largeur = m_rect.right - colonne;
        PlacerCatego(7, 1, colonne, largeur);
        PlacerCatego(1, 2, colonne, largeur);
        PlacerCatego(2, 3, colonne, largeur);
    }

    void PlacerCoupleSuivant(int libelle, Champ champ, Extent taille) {
        m_rect.left = m_rect.right + kEntreCouples;
        m_rect.top = m_haut;
        PlacerCouple(libelle, champ, taille);
    }

    void PlacerCatego(int libelle, int data, qint32 gauche, qint32 largeur) {
        m_rect.left = gauche;
        m_rect.top = m_rect.bottom + kAvantCategorie;
        PlacerLibelle(libelle);
        m_rect.top = m_rect.bottom;
        m_rect.right = m_rect.left + largeur;
        m_rect.bottom = Bas(m_mesures.data.at(static_cast<std::size_t>(data)).height, m_metrique.valeur);
        Noter(Champ::Data, data);
    }

    void PlacerIngredients() {
        const qint32 ligne = std::max(Arrondi(Pixels(m_mesures.ingre.height)), m_metrique.valeur) + 1;
        // On paper wider than Letter a tall photo ends below the values beside it.
        const qint32 sousPhoto = m_pages.back().photo.bottom + kDepassement;
        m_rect.bottom = std::max(m_rect.bottom + kAvantIngredients, sousPhoto);
        if (Tient(HautDuLibelle(0) + ligne)) {
            TitrerIngredients(false);
        } else {
            TournerVersIngredients(false);
        }
        for (int i = 0; i < m_mesures.lignes; ++i) {
            if (!Tient(ligne)) {
                TournerVersIngredients(true);
            }
            PlacerInfo(i);
        }
    }

    void TitrerIngredients(bool suite) {
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom;
        PlacerLibelle(0, suite);
    }

    void TournerVersIngredients(bool suite) {
        TournerPage();
        m_rect.bottom += kAvantTexte;
        TitrerIngredients(suite);
    }

    void PlacerInfo(int ligne) {
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom;
        Placer(Champ::Qte, ligne, m_mesures.qte);
        m_rect.left = m_rect.right + kEntreColonnes;
        Placer(Champ::Mesure, ligne, m_mesures.mesure);
        m_rect.left = m_rect.right + kEntreColonnes;
        m_rect.right = Arrondi(m_rect.left + Pixels(m_mesures.ingre.width) - kRetraitIngredient);
        m_rect.bottom = Bas(m_mesures.ingre.height, m_metrique.valeur);
        Noter(Champ::Ingre, ligne);
    }

    void PlacerDuree() {
        const qint32 valeur = std::max(Arrondi(Pixels(m_mesures.data[0].height)), m_metrique.valeur);
        Reserver(kAvantTexte + HautDuLibelle(4) + valeur + 1);
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom + kAvantTexte;
        PlacerCouple(4, Champ::DureeReal, m_mesures.data[0]);
    }

    void PlacerDesc(int libelle, Champ champ, Extent taille) {
        const qint32 entete = kAvantTexte + HautDuLibelle(libelle);
        Reserver(entete + m_metrique.valeur);
        const qint32 place = m_papier.hauteur - m_rect.bottom - entete;
        const bool entamee = place < Arrondi(Pixels(taille.height));
        if (entamee && !PageNeuve() && !Choisir(champ, taille, place).dernier) {
            TournerPage();
        }
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom + kAvantTexte;
        PlacerLibelle(libelle);
        PlacerTexte(libelle, champ, taille);
    }

    void PlacerTexte(int libelle, Champ champ, Extent taille) {
        m_rect.top = m_rect.bottom;
        m_rect.right = Arrondi(m_rect.left + Pixels(taille.width));
        m_rect.bottom = Arrondi(m_rect.top + Pixels(taille.height));
        const Morceau morceau = Choisir(champ, taille, m_papier.hauteur - m_rect.top);
        m_rect.bottom = std::min(std::max(m_rect.bottom, m_rect.top + morceau.hauteur), m_papier.hauteur);
        Noter(champ, 0, morceau);
        if (!morceau.dernier) {
            m_restes.push_back({libelle, champ, taille.width, morceau.fin});
        }
    }

    /// As much of a text as fits into its place, in the largest size in which all of it does, or in the smallest one.
    /// The place ends with the room on the page. There is nothing below Deco: its place goes down to the end.
    Morceau Choisir(Champ champ, Extent taille, qint32 place) const {
        const qint32 propre = Arrondi(Pixels(taille.height));
        const int largeur = Arrondi(Pixels(taille.width));
        const int hauteur = champ == Champ::Deco ? place : std::min(propre, place);
        Morceau morceau;
        TailleQuiTient(kPointsCorps, [&](double points) {
            morceau = m_metrique.couper(champ, points, 0, largeur, hauteur);
            return morceau.dernier;
        });
        if (!morceau.dernier) {
            morceau = m_metrique.couper(champ, kPointsMin, 0, largeur, hauteur);
        }
        return morceau;
    }

    /// As much as the page holds of what is left of a text, below its label.
    void PlacerReste() {
        Reste &reste = m_restes.front();
        if (!Tient(kAvantTexte + HautDuLibelle(reste.libelle) + m_metrique.valeur) && !PageNeuve()) {
            OuvrirPage();
        }
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom + kAvantTexte;
        PlacerLibelle(reste.libelle, true);
        m_rect.top = m_rect.bottom;
        m_rect.right = Arrondi(m_rect.left + Pixels(reste.largeur));
        const Morceau morceau = m_metrique.couper(reste.champ, kPointsMin, reste.debut,
                                                  m_rect.right - m_rect.left, m_papier.hauteur - m_rect.top);
        m_rect.bottom = m_rect.top + morceau.hauteur;
        Noter(reste.champ, 0, morceau);
        reste.debut = morceau.fin;
        if (morceau.dernier) {
            m_restes.erase(m_restes.begin());
        } else {
            OuvrirPage();
        }
    }

    const Mesures &m_mesures;
    Papier m_papier;
    const Metrique &m_metrique;
    double m_rapport; // device pixels per twip
    qint32 m_marge;   // left of the ingredients and of what follows
    Rect m_rect{};
    qint32 m_haut = 0; // of the second and third pair
    std::vector<Reste> m_restes;
    std::vector<Page> m_pages;
};

} // namespace

std::vector<Page> Composer(const Mesures &mesures, Papier papier, const Metrique &metrique) {
    return Compositeur(mesures, papier, metrique).Composer();
}

} // namespace sheets
