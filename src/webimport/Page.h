#pragma once

#include "Ingredients.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace webimport {

/// The partner's site, a setting of the build.
struct SitePartenaire {
    QString accueil; ///< address of the home page, without closing slash
    QString hote;    ///< word by which an address of the site is known
};

/// What a page is read from.
struct PageCapturee {
    QString texte;   ///< the page as page-ancienne.js writes it, read back from the temporary file
    QString adresse; ///< the browser's address
    SitePartenaire site;
};

/// What of the reading of a page outlives it, for as long as the program runs.
struct MemoireImport {
    bool methodeOuverte = false; ///< a page of the second layout ended inside its method
};

/// What a page gives to a control.
struct ChampPage {
    QString texte;
    std::optional<QString> infobulle; ///< not set: the control keeps the one it has

    void MontrerInfobulle() { infobulle = texte; }
};

/// The elements of Liste in the import window.
enum IndiceListe { ListeCout, ListeDifficulte, ListeVin, ListeCuisson, ListePersonnes, ListeTypeDePlat };

/// The elements of Saisie.
enum IndiceSaisie { SaisieMethode, SaisieComplements };

/// What a page gives to the controls of the import window that bear these names; a field for which the page
/// has nothing is empty.
struct ChampsPage {
    ChampPage TitreRecette;
    ChampPage calorie; ///< second line of the title cell
    ChampPage DReal;
    std::array<ChampPage, 6> Liste;
    std::array<ChampPage, 2> Saisie;
    QString NomPhoto;                    ///< address of the picture
    std::vector<LigneIngredient> Lignes; ///< row n of Ingre, Qte and Qte2; with none, row 0 is empty
};

/// Whether a page holds a recipe of the partner's site.
bool EstPageDeRecette(QStringView innerHTML);

/// Whether a page is read by ExtrairePageDebutFin; ExtrairePageCommentee takes whatever remains.
bool EstPageDebutFin(QStringView innerHTML);

} // namespace webimport
