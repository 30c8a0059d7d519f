#include "MiseAJour.h"

#include "Schema.h"

#include "platform/database/DatabaseError.h"
#include "platform/database/Transaction.h"

#include <QStringList>

namespace store {

namespace {

using platform::database::Database;
using platform::database::DatabaseError;

/// The columns of a table or an index, in their order; none where it does not exist.
QStringList Colonnes(Database &livre, QStringView question, QStringView nom) {
    QStringList noms;
    auto lignes = livre.OpenRecordset(u"PRAGMA " + question + u"(" + nom + u")");
    for (; !lignes.AtEnd(); lignes.MoveNext()) {
        noms.append(lignes.Fields(u"name").Text());
    }
    return noms;
}

/// Columns are reached by their place, so those that are there must be ours. Behind them there may be others.
void CompleterTable(Database &livre, const Table &table) {
    const QStringList presentes = Colonnes(livre, u"table_info", table.nom);
    if (presentes.isEmpty()) {
        livre.Execute(CreationDeTable(table));
        return;
    }
    for (qsizetype place = 0; const Champ &champ : table.champs) {
        if (place >= presentes.size()) {
            livre.Execute(AjoutDeChamp(table, champ));
        } else if (champ.nom.compare(presentes[place], Qt::CaseInsensitive) != 0) {
            throw DatabaseError(u"La table « " + table.nom + u" » de ce livre a une colonne inattendue : « " +
                                presentes[place] + u" ».");
        }
        ++place;
    }
}

void CompleterIndex(Database &livre, const Index &index) {
    QStringList attendues;
    for (const QStringView nom : index.champs) {
        attendues.append(nom.toString());
    }
    if (Colonnes(livre, u"index_info", index.nom) != attendues) {
        livre.Execute(u"DROP INDEX IF EXISTS " + index.nom);
        livre.Execute(CreationDIndex(index));
    }
}

} // namespace

void MettreAJour(Database &livre) {
    if (livre.UserVersion() > kVersionDuLivre) {
        throw DatabaseError("Ce livre a été enregistré par une version plus récente de Savorel, que celle-ci "
                            "ne sait pas lire.");
    }
    if (Colonnes(livre, u"table_info", kCocktails.nom).isEmpty()) {
        throw DatabaseError(u"Ce fichier n'est pas un livre de recettes : il n'a pas de table « " +
                            kCocktails.nom + u" ».");
    }
    platform::database::Transaction transaction(livre);
    for (const Table *table : kTables) {
        CompleterTable(livre, *table);
    }
    for (const Index &index : kIndex) {
        CompleterIndex(livre, index);
    }
    livre.SetUserVersion(kVersionDuLivre);
    transaction.commit();
}

} // namespace store
