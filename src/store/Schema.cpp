#include "Schema.h"

#include <QStringList>

namespace store {

namespace {

/// Every text column is declared COLLATE NOCASE, in whose place the program puts the French collation; other tools compare
/// with their own NOCASE. Nothing in the file may depend on that rule, or they would corrupt it: an index on a text must
/// be COLLATE BINARY.
QString Declaration(const Champ &champ) {
    switch (champ.sorte) {
    case Sorte::Cle:
        return champ.nom + u" INTEGER PRIMARY KEY";
    case Sorte::Nombre:
        return champ.nom + u" INTEGER";
    case Sorte::Texte:
        break;
    }
    return champ.nom + u" TEXT COLLATE NOCASE";
}

} // namespace

QString CreationDeTable(const Table &table) {
    QStringList declarations;
    for (const Champ &champ : table.champs) {
        declarations.append(Declaration(champ));
    }
    return u"CREATE TABLE " + table.nom + u" (" + declarations.join(QStringLiteral(", ")) + u")";
}

QString AjoutDeChamp(const Table &table, const Champ &champ) {
    return u"ALTER TABLE " + table.nom + u" ADD COLUMN " + Declaration(champ);
}

QString CreationDIndex(const Index &index) {
    QStringList colonnes;
    for (const QStringView nom : index.champs) {
        const bool texte = std::ranges::any_of(index.table->champs, [nom](const Champ &champ) {
            return champ.nom == nom && champ.sorte == Sorte::Texte;
        });
        colonnes.append(texte ? nom + u" COLLATE BINARY" : nom.toString());
    }
    return u"CREATE INDEX " + index.nom + u" ON " + index.table->nom + u" (" +
           colonnes.join(QStringLiteral(", ")) + u")";
}

} // namespace store
