#pragma once

#include "Textes.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <concepts>
#include <vector>

namespace store {

/// Any control that takes lines of text.
template <typename L>
concept ListeDeChoix = requires(L &liste, const QStringList &textes) {
    liste.Clear();
    liste.AddItems(textes);
};

/// A row of the search window's result list.
struct Resultat {
    QString cle;
    QString texte;
};

/// Any list of rows with key, text and icon.
template <typename L, typename Icone>
concept ListeDeResultats = requires(L &liste, const QString &texte, const Icone &icone) {
    liste.Clear();
    liste.AddItem(texte, texte, icone);
};

/// The query of all rows of a table in the order of a column.
QString RequeteListe(QStringView table, QStringView ordre);

/// The texts of a table in the order of a column: trimmed, without empty ones and without those that hold one
/// of the tags <B>, </B>, <I>, </I>. `vide` tells whether the table has no row at all.
struct Choix {
    QStringList textes;
    bool vide = true;
};

Choix LireChoix(const QString &table, const QString &ordre);

/// The texts at a position in the order of a column: trimmed, without those that hold a tag; blank ones stay.
QStringList LireListeSimple(const QString &table, const QString &ordre, int position);

/// The rows of a query whose text begins with the filter (`enTete`) or holds it, whatever the case, without
/// those that hold "</". An empty filter keeps every row when `enTete`, and none when not.
std::vector<Resultat> LireResultats(const QString &requete, bool enTete, const QString &filtre);

/// Fills a choice list with the texts of a table and a closing dotted line, by which the user chooses no
/// value. A table without rows leaves it empty.
template <ListeDeChoix L>
void ChargerCombo(L &liste, const QString &table, const QString &ordre) {
    liste.Clear();
    const Choix choix = LireChoix(table, ordre);
    if (!choix.vide) {
        liste.AddItems(choix.textes + QStringList(LignePointillee.toString()));
    }
}

/// Adds the texts of a table to a list, which is not cleared.
template <ListeDeChoix L>
void ChargerListeSimple(const QString &table, const QString &ordre, int position, L &liste) {
    liste.AddItems(LireListeSimple(table, ordre, position));
}

/// Fills the result list of the search window: AddItem(key, text, icon) for each row of LireResultats.
template <typename Icone, ListeDeResultats<Icone> L>
void ChargerResultats(const QString &requete, L &liste, const Icone &icone, bool enTete,
                      const QString &filtre) {
    liste.Clear();
    for (const Resultat &ligne : LireResultats(requete, enTete, filtre)) {
        liste.AddItem(ligne.cle, ligne.texte, icone);
    }
}

/// Gives a row of a lookup table another text: writes the key into column 0 and the text into column 1.
/// @throws DatabaseError when no row has the key
void ModifierLibelle(const QString &table, qint64 cle, const QString &texte, const QString &colonneCle);

/// Writes one column of a row. An empty value becomes a single blank, in the caller's variable too.
/// @throws DatabaseError when no row has the key
void ModifierChamp(const QString &table, qint64 cle, QVariant &valeur, const QString &colonneCle,
                   int position);

/// ModifierChamp on the key Numero of Cocktails, NVerre of any other table; the empty text does nothing.
void ModifierSiRenseigne(QVariant &valeur, const QString &table, qint64 cle, int position);

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

/// Deletes all rows whose column has the value.
void SupprimerFiches(const QString &table, qint64 valeur, const QString &colonne);

/// Appends a row to a lookup table under the next number, whether the text is there already or not.
void AjouterFiche(const QString &texte, const QString &table, const QString &colonneCle);

/// Finds the number of a text in the lookup table whose text column bears its name, or makes a row for it;
/// the dotted line is never found and makes a row with a blank. The empty text leaves `numero` as it is.
void RechercherNumero(const QString &texte, qint64 &numero, const QString &table, const QString &colonneCle);

} // namespace store
