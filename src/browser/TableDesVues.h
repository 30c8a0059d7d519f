#pragma once

#include "Vues.h"

#include "store/Schema.h"
#include "store/Vocabulaires.h"

#include <array>
#include <optional>
#include <span>

namespace browser {

/// One sort view: the table of its rows, header and count text, what its button does in the words of a status line, and the
/// column of a recipe that refers to a row. A view of a fixed vocabulary has no table, and its rows cannot be renamed; the
/// recipes themselves and the ingredients have no column.
struct Vue {
    const store::Table *table = nullptr;
    QStringView entete, suffixe, phrase;
    std::optional<store::ChampRecette> champ{};
    std::span<const QStringView> vocabulaire{};
};

// The last slot of Cout holds no class.
inline constexpr std::span<const QStringView> kCouts = std::span(store::Cout).first(5);

inline constexpr std::array<Vue, kNombreDeVues> kVues{
    Vue{&store::kCocktails, u" Liste des Recettes ", u" Recette(s) ...",
        u"Liste de Recettes triée par ordre alphabétique "},
    Vue{&store::kCategorie, u" Liste des Durées de Cuisson ", u" Durée(s)  de Cuisson ...",
        u"Liste de Recettes triée par Durée de Cuisson", store::ChampRecette::NCategorie},
    Vue{&store::kVerre, u" Liste des Nombres de Personnes", u" Nombre(s) de Personnes ...",
        u"Liste de Recettes triée par Nombre de Personnes", store::ChampRecette::Nverre},
    Vue{nullptr, u"  Coûts ", u"", u"Liste de Recettes triée par Cout ", store::ChampRecette::Cout, kCouts},
    Vue{nullptr, u" Niveaux de difficulté", u"", u"Liste de Recettes triée par Difficulté",
        store::ChampRecette::difficulte, store::Difficulte},
    Vue{&store::kRealisation, u" Types de Plats", u"", u"Liste de Recettes triée par Types de Plats",
        store::ChampRecette::Nreal},
    Vue{&store::kIngredient, u" Liste des Ingrédients", u" Ingrédient(s) ...", u"Liste de Ingrédients"},
    Vue{&store::kDureeReal, u" Durée de Réalisation", u" Durée(s) de Réalisation ...",
        u"Liste de Recettes triée par Durée de Réalisation", store::ChampRecette::NDureeReal},
};

/// The view of that number; null for a number that is no view.
constexpr const Vue *VueNumero(int vue) {
    return vue >= 0 && vue < kNombreDeVues ? &kVues[static_cast<std::size_t>(vue)] : nullptr;
}

} // namespace browser
