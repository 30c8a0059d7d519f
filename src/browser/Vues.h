#pragma once

#include "store/Schema.h"

#include <QString>

namespace browser {

class Frmmain;

/// Number of sort views.
inline constexpr int kNombreDeVues = 8;

/// The view of the ingredients, whose recipes are found through the lines.
inline constexpr int kVueIngredients = 6;

/// Stored instead of a view while a first view is being loaded.
inline constexpr int kVueAucune = 99;

/// The view stored in the settings: 0 to 7, or kVueAucune.
/// Throws platform::settings::ConversionError for a stored text that is no number.
int VueCourante();
void EnregistrerVue(int vue);

/// The press of Bouton(vue): makes the view current, if it is another one.
void PresserBouton(Frmmain &frm, int vue);

/// Makes a view current: loads its rows into Liste and shows the first one. Throws DatabaseError.
void TrierListe(Frmmain &frm, int vue);

/// What ChargerListe loads: the table, or none for the fixed vocabulary of the view; the header above the list and the text
/// after the count.
struct Rubrique {
    const store::Table *table = nullptr;
    QStringView entete, suffixe;
};

/// Fills Liste with the rows of a view, selects and highlights the first one. Throws DatabaseError.
void ChargerListe(Frmmain &frm, const Rubrique &rubrique, int vue);

/// Acts on the selected row of Liste: shows the recipe, or the recipes of the group in LFilms. The same row
/// is not acted on twice. Throws DatabaseError.
void ListeHaute(Frmmain &frm);

/// Loads LFilms with the recipes of the group selected in Liste.
void ChargerRecettesVue(Frmmain &frm, int vue);
/// Those whose column holds the number of the selected row.
void ChargerRecettesCritere(Frmmain &frm, store::ChampRecette champ);
/// Those with a line of the selected ingredient.
void ChargerRecettesIngredient(Frmmain &frm);

/// The user's actions in the two lists.
void ClicListe(Frmmain &frm);
void FlecheListe(Frmmain &frm);
void ClicFilms(Frmmain &frm);
/// Selects the neighbour of the row that names the recipe shown, 1 below or -1 above it, which must exist, and shows its
/// recipe as if the user had chosen it. Throws DatabaseError.
void AllerAuVoisin(Frmmain &frm, int pas);
/// Stores the new text of a row edited in place, if it differs.
void RenommerListe(Frmmain &frm, int index, const QString &texte);
void RenommerFilms(Frmmain &frm, int index, const QString &texte);

} // namespace browser
