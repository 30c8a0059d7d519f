#include "Composition.h"

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

qint32 Arrondi(double pixels) {
    return static_cast<qint32>(std::nearbyint(pixels));
}

Extent Taille(const Rectangle &place) {
    return {place.width, place.height};
}

/// Composes the page block by block; each starts from where m_rect was left.
class Compositeur {
public:
    Compositeur(const Mesures &mesures, int largeurPage)
        : m_mesures(mesures),
          m_largeurPage(largeurPage),
          m_rapport(largeurPage / static_cast<double>(mesures.largeur.value())) {}

    Page Composer() {
        PlacerTitre();
        m_haut = m_rect.bottom + kSousTitre;
        PlacerPhoto();
        PlacerColonne();
        PlacerIngredients();
        PlacerDesc(3, Champ::Prepa, m_mesures.prepa);
        PlacerDesc(4, Champ::DureeReal, m_mesures.data[0]);
        PlacerDesc(5, Champ::Deco, m_mesures.deco);
        return m_page;
    }

private:
    double Pixels(Twips longueur) const { return m_rapport * static_cast<double>(longueur.value()); }

    void Noter(Champ champ, int index) { m_page.blocs.push_back({champ, index, m_rect}); }

    void Placer(Champ champ, int index, Extent taille) {
        m_rect.right = Arrondi(m_rect.left + Pixels(taille.width));
        m_rect.bottom = Arrondi(m_rect.top + Pixels(taille.height));
        Noter(champ, index);
    }

    void PlacerLibelle(int index) {
        Placer(Champ::Libelle, index, Taille(m_mesures.libelle.at(static_cast<std::size_t>(index))));
    }

    void PlacerTitre() {
        m_rect.left = Arrondi(Pixels(m_mesures.recette.left));
        m_rect.top = kHautTitre;
        // The right margin is twice the left one.
        m_rect.right = m_largeurPage - 2 * m_rect.left;
        m_rect.bottom = Arrondi(m_rect.top + Pixels(m_mesures.recette.height));
        Noter(Champ::Recette, 0);
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
        m_page.photo = {gauche, haut, gauche + largeur, haut + hauteur};
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
        m_rect.bottom =
            Arrondi(m_rect.top + Pixels(m_mesures.data.at(static_cast<std::size_t>(data)).height));
        Noter(Champ::Data, data);
    }

    void PlacerIngredients() {
        m_rect.left = Arrondi(Pixels(m_mesures.libelle[0].left));
        m_rect.top = m_rect.bottom + kAvantIngredients;
        PlacerLibelle(0);
        m_marge = m_rect.left;
        for (int ligne = 0; ligne < m_mesures.lignes; ++ligne) {
            PlacerInfo(ligne);
        }
    }

    void PlacerInfo(int ligne) {
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom;
        Placer(Champ::Qte, ligne, m_mesures.qte);
        m_rect.left = m_rect.right + kEntreColonnes;
        Placer(Champ::Mesure, ligne, m_mesures.mesure);
        m_rect.left = m_rect.right + kEntreColonnes;
        m_rect.right = Arrondi(m_rect.left + Pixels(m_mesures.ingre.width) - kRetraitIngredient);
        m_rect.bottom = Arrondi(m_rect.top + Pixels(m_mesures.ingre.height));
        Noter(Champ::Ingre, ligne);
    }

    void PlacerDesc(int libelle, Champ champ, Extent taille) {
        m_rect.left = m_marge;
        m_rect.top = m_rect.bottom + kAvantTexte;
        PlacerCouple(libelle, champ, taille);
    }

    const Mesures &m_mesures;
    int m_largeurPage;
    double m_rapport; // device pixels per twip
    Rect m_rect{};
    qint32 m_haut = 0;  // of the second and third pair
    qint32 m_marge = 0; // left of the ingredients and of what follows
    Page m_page{};
};

} // namespace

Page Composer(const Mesures &mesures, int largeurPage) {
    return Compositeur(mesures, largeurPage).Composer();
}

} // namespace sheets
