#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace store {

/// An ingredient line as it is typed.
struct LigneSaisie {
    QString quantite, mesure, ingredient;

    bool Vide() const { return quantite.isEmpty() && mesure.isEmpty() && ingredient.isEmpty(); }

    bool operator==(const LigneSaisie &) const = default;
};

/// The fields of a new recipe, as its window holds them.
struct RecetteSaisie {
    QString titre;
    QString cout, difficulte, vin, dureeCuisson, personnes, plat, dureeReal;
    QString preparation, complements; ///< rich texts
    std::vector<LigneSaisie> lignes;

    bool operator==(const RecetteSaisie &) const = default;
};

/// What differs between the windows in which recipes are created.
struct ModeDeCreation {
    bool dureeSansBalises;   ///< each <B> and </B> of the preparation time becomes a blank
    bool vinSansApostrophes; ///< the apostrophes of the wine advice go; otherwise a new row has them doubled
    bool echecsIgnores;      ///< from the picture on, each statement that fails is passed over
};

inline constexpr ModeDeCreation kSaisieManuelle{
    .dureeSansBalises = true, .vinSansApostrophes = false, .echecsIgnores = true};
inline constexpr ModeDeCreation kImport{
    .dureeSansBalises = false, .vinSansApostrophes = true, .echecsIgnores = false};

/// The texts of lines that got a row of their own, in the order of their making.
struct TextesNouveaux {
    QStringList quantites, mesures, ingredients;
};

/// Stores a recipe under the next number, with its lines, and makes the rows that its texts lack. The book is open
/// from the beginning to the end. Title and preparation time come back in `saisie` as the fields hold them afterwards.
/// @param enregistrerPhoto gets the name meant for the picture file and gives the one to store; it may throw, and must
/// not open the book
/// @throws DatabaseError; in a mode that ignores failures only until the picture
TextesNouveaux EnregistrerRecette(RecetteSaisie &saisie, const ModeDeCreation &mode,
                                  const std::function<QString(const QString &nom)> &enregistrerPhoto);

} // namespace store
