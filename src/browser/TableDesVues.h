#pragma once

#include "Vues.h"

#include "store/Vocabulaires.h"

#include <array>
#include <span>

namespace browser {

/// One sort view: the table of its rows and its key, header and count text, the column of Cocktails that refers to a
/// row, and what its button does in the words of a status line. A view of a fixed vocabulary has no table, and its rows
/// cannot be renamed; the recipes themselves and the ingredients have no column.
struct Vue {
    QStringView table, cle, entete, suffixe, colonne, phrase;
    std::span<const QStringView> vocabulaire{};
};

// The last slot of Cout has never held a class.
inline constexpr std::span<const QStringView> kCouts = std::span(store::Cout).first(5);

inline constexpr std::array<Vue, kNombreDeVues> kVues{
    Vue{u"Cocktails", u"Numero", u" Liste des Recettes ", u" Recette(s) ...", u"",
        u"Liste de Recettes triée par ordre alphabétique "},
    Vue{u"Categorie", u"NCategorie", u" Liste des Durées de Cuisson ", u" Durée(s)  de Cuisson ...",
        u"NCategorie", u"Liste de Recettes triée par Durée de Cuisson"},
    Vue{u"Verre", u"NVerre", u" Liste des Nombres de Personnes", u" Nombre(s) de Personnes ...", u"NVerre",
        u"Liste de Recettes triée par Nombre de Personnes"},
    Vue{u"", u"", u"  Coûts ", u"", u"Cout", u"Liste de Recettes triée par Cout ", kCouts},
    Vue{u"", u"", u" Niveaux de difficulté", u"", u"Difficulte", u"Liste de Recettes triée par Difficulté",
        store::Difficulte},
    Vue{u"Realisation", u"NRealisation", u" Types de Plats", u"", u"NReal",
        u"Liste de Recettes triée par Types de Plats"},
    Vue{u"Ingredient", u"NIngredient", u" Liste des Ingrédients", u" Ingrédient(s) ...", u"",
        u"Liste de Ingrédients"},
    Vue{u"DureeReal", u"NDureeReal", u" Durée de Réalisation", u" Durée(s) de Réalisation ...", u"NDureeReal",
        u"Liste de Recettes triée par Durée de Réalisation"},
};

/// The view of that number; null for a number that is no view.
constexpr const Vue *VueNumero(int vue) {
    return vue >= 0 && vue < kNombreDeVues ? &kVues[static_cast<std::size_t>(vue)] : nullptr;
}

} // namespace browser
