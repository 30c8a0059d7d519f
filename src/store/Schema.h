#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <span>

/// The book described once: its tables, their columns in their order, its indexes. The schema of a new book, what an
/// older one lacks, the conversion of Jet files, look-ups, choice lists and sort views all follow from here.
namespace store {

struct Table;

/// What a column holds. A key is the number of its row.
enum class Sorte { Cle, Nombre, Texte };

/// A column. Its place in its table is part of the format: new ones come at the end.
struct Champ {
    QStringView nom;
    Sorte sorte = Sorte::Nombre;
    /// The table whose row a number names, if it names one.
    const Table *reference = nullptr;
};

/// How a new recipe writes a text that a table lacks. One whose apostrophes were doubled is not found again by the text
/// itself, and so gets another row each time.
enum class Apostrophes { Doublees, Simples };

/// A table. All but Ingre begin with a number, the key, and a text; in a table of texts, the text has its name.
struct Table {
    QStringView nom;
    std::span<const Champ> champs;
    Apostrophes apostrophes = Apostrophes::Doublees;

    constexpr QStringView Cle() const { return champs[0].nom; }

    constexpr QStringView Texte() const { return champs[1].nom; }
};

namespace champs {
inline constexpr std::array kCategorie{Champ{u"NCategorie", Sorte::Cle}, Champ{u"Categorie", Sorte::Texte}};
inline constexpr std::array kDureeReal{Champ{u"NDureeReal", Sorte::Cle}, Champ{u"DureeReal", Sorte::Texte}};
// The last three columns hold no information.
inline constexpr std::array kVerre{
    Champ{u"NVerre", Sorte::Cle},   Champ{u"Verre", Sorte::Texte},  Champ{u"Verre2", Sorte::Texte},
    Champ{u"Verre3", Sorte::Texte}, Champ{u"Verre4", Sorte::Texte},
};
inline constexpr std::array kRealisation{Champ{u"NRealisation", Sorte::Cle},
                                         Champ{u"Realisation", Sorte::Texte}};
inline constexpr std::array kVin{Champ{u"NVIN", Sorte::Cle}, Champ{u"VIN", Sorte::Texte}};
inline constexpr std::array kIngredient{Champ{u"NIngredient", Sorte::Cle},
                                        Champ{u"Ingredient", Sorte::Texte}};
inline constexpr std::array kQuantite{Champ{u"NQuantite", Sorte::Cle}, Champ{u"Quantite", Sorte::Texte}};
inline constexpr std::array kMesure{Champ{u"NMesure", Sorte::Cle}, Champ{u"Mesure", Sorte::Texte}};
} // namespace champs

/// Cooking times.
inline constexpr Table kCategorie{u"Categorie", champs::kCategorie};
/// Preparation times.
inline constexpr Table kDureeReal{u"DureeReal", champs::kDureeReal};
/// Numbers of persons.
inline constexpr Table kVerre{u"Verre", champs::kVerre};
/// Dish types.
inline constexpr Table kRealisation{u"Realisation", champs::kRealisation};
/// Wine advice.
inline constexpr Table kVin{u"VIN", champs::kVin};
inline constexpr Table kIngredient{u"Ingredient", champs::kIngredient, Apostrophes::Simples};
inline constexpr Table kQuantite{u"Quantite", champs::kQuantite};
inline constexpr Table kMesure{u"Mesure", champs::kMesure, Apostrophes::Simples};

/// The columns of a recipe, in their order.
enum class ChampRecette {
    Numero,
    Recette,
    NCategorie,
    Nverre,
    Photo,
    Nreal,
    preparation,
    Deco,
    Cout,
    difficulte,
    Teneur,
    NDureeReal,
};

namespace champs {
inline constexpr std::array kCocktails{
    Champ{u"Numero", Sorte::Cle},
    Champ{u"Recette", Sorte::Texte},
    Champ{u"NCategorie", Sorte::Nombre, &store::kCategorie},
    Champ{u"Nverre", Sorte::Nombre, &store::kVerre},
    Champ{u"Photo", Sorte::Texte},
    Champ{u"Nreal", Sorte::Nombre, &store::kRealisation},
    Champ{u"preparation", Sorte::Texte},
    Champ{u"Deco", Sorte::Texte},
    Champ{u"Cout", Sorte::Nombre},
    Champ{u"difficulte", Sorte::Nombre},
    Champ{u"Teneur", Sorte::Nombre, &store::kVin},
    Champ{u"NDureeReal", Sorte::Nombre, &store::kDureeReal},
};
inline constexpr std::array kIngre{
    Champ{u"Numero", Sorte::Nombre},
    Champ{u"NIngre", Sorte::Nombre, &store::kIngredient},
    Champ{u"NQuantite", Sorte::Nombre, &store::kQuantite},
    Champ{u"NMesure", Sorte::Nombre, &store::kMesure},
};
} // namespace champs

/// The recipes.
inline constexpr Table kCocktails{u"Cocktails", champs::kCocktails};
/// The lines of the recipes.
inline constexpr Table kIngre{u"Ingre", champs::kIngre};

inline constexpr std::array kTables{&kCocktails,   &kIngre, &kCategorie,  &kDureeReal, &kVerre,
                                    &kRealisation, &kVin,   &kIngredient, &kQuantite,  &kMesure};

/// The place of a column of a recipe among the others, from 0.
constexpr int Position(ChampRecette champ) {
    return static_cast<int>(champ);
}

constexpr const Champ &Description(ChampRecette champ) {
    return champs::kCocktails.at(static_cast<std::size_t>(champ));
}

static_assert(champs::kCocktails.size() == Position(ChampRecette::NDureeReal) + 1,
              "ChampRecette and its descriptions go together");

/// An index, on these columns of a table. A text in it is compared byte by byte.
struct Index {
    QStringView nom;
    const Table *table;
    std::span<const QStringView> champs;
};

namespace champs {
/// All of a recipe but its picture and its long texts: lists and searches walk the index, not the pages of the texts.
constexpr bool EnListe(const Champ &champ) {
    return champ.sorte != Sorte::Texte || &champ == &kCocktails[Position(ChampRecette::Recette)];
}

inline constexpr auto kCocktailsListe = [] {
    std::array<QStringView, std::ranges::count_if(kCocktails, EnListe)> noms;
    auto suivant = noms.begin();
    for (const Champ &champ : kCocktails) {
        if (EnListe(champ)) {
            *suivant++ = champ.nom;
        }
    }
    return noms;
}();
inline constexpr std::array<QStringView, 1> kIngreRecette{u"Numero"};
inline constexpr std::array<QStringView, 2> kIngreIngredient{u"NIngre", u"Numero"};
} // namespace champs

inline constexpr std::array kIndex{
    Index{u"CocktailsListe", &kCocktails, champs::kCocktailsListe},
    Index{u"IngreRecette", &kIngre, champs::kIngreRecette},
    Index{u"IngreIngredient", &kIngre, champs::kIngreIngredient},
};

/// The version of the books that this program makes: the number of columns in all tables and indexes. They are only ever
/// added to, so a book with a lower version lacks something, and one with a higher version is of a newer program.
inline constexpr int kVersionDuLivre = [] {
    std::size_t colonnes = 0;
    for (const Table *table : kTables) {
        colonnes += table->champs.size();
    }
    for (const Index &index : kIndex) {
        colonnes += index.champs.size();
    }
    return static_cast<int>(colonnes);
}();

/// The statement that makes a table, without rows.
QString CreationDeTable(const Table &table);
/// The statement that adds a column to the end of a table.
QString AjoutDeChamp(const Table &table, const Champ &champ);
QString CreationDIndex(const Index &index);

} // namespace store
