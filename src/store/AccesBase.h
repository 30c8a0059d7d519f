#pragma once

#include "Textes.h"

#include "Schema.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

namespace store {

/// A row of the search window's result list.
struct Resultat {
    QString cle;
    QString texte;
};

/// The query of all rows of a table in the order of their texts.
QString RequeteListe(const Table &table);

/// What a choice list offers: the texts of a table in their order, trimmed, without empty ones and without those that
/// hold one of the tags <B>, </B>, <I>, </I>; and a closing dotted line, by which the user chooses no value. Nothing for a
/// table without rows.
QStringList ChargerCombo(const Table &table);

/// The texts of a table in their order: trimmed, without those that hold a tag; blank ones stay.
QStringList ChargerListeSimple(const Table &table);

/// The rows of a query whose text begins with the filter (`enTete`) or holds it, whatever the case, without
/// those that hold "</". An empty filter keeps every row when `enTete`, and none when not.
std::vector<Resultat> ChargerResultats(const QString &requete, bool enTete, const QString &filtre);

/// Gives a row another text: writes the key into column 0 and the text into column 1.
/// @throws DatabaseError when no row has the key
void ModifierLibelle(const Table &table, qint64 cle, const QString &texte);

/// Writes one column of a recipe. An empty value becomes a single blank.
/// @throws DatabaseError when there is no such recipe
void ModifierChamp(qint64 recette, ChampRecette champ, const QVariant &valeur);

/// ModifierChamp, but the empty text does nothing.
void ModifierSiRenseigne(qint64 recette, ChampRecette champ, const QString &valeur);

/// What an ingredient line refers to: rows of Quantite, Mesure and Ingredient.
struct LigneIngre {
    qint64 quantite;
    qint64 mesure;
    qint64 ingredient;

    friend bool operator==(const LigneIngre &, const LigneIngre &) = default;
};

/// Puts one line of a recipe in the place of another. It becomes the newest line, and so the first one; if
/// the recipe has such a line already, the old one just goes.
void RemplacerLigneIngre(qint64 recette, const LigneIngre &ancienne, const LigneIngre &nouvelle);

/// Deletes all rows of a table whose first column has the value.
void SupprimerFiches(const Table &table, qint64 valeur);

/// Appends a row to a table of texts under the next number, whether the text is there already or not. A blank goes into
/// the columns behind it.
void AjouterFiche(const QString &texte, const Table &table);

/// Finds the number of a text in a table of texts, or makes a row for it; the dotted line is never found and makes a row
/// with a blank. Nothing for the empty text.
std::optional<qint64> RechercherNumero(const QString &texte, const Table &table);

} // namespace store
