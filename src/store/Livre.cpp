#include "Livre.h"

#include "CollationFrancaise.h"
#include "CopieFichier.h"
#include "Programme.h"

#include "platform/database/CreateDatabase.h"
#include "platform/database/DatabaseError.h"

#include <QFile>

namespace store {

namespace {

QString connexion() {
    return QStringLiteral(";pwd =PoivreEtSel4");
}

/// The columns are reached by their place, so their order is part of the format.
///
/// Every text column is declared COLLATE NOCASE, in whose place the program puts the French collation; other
/// tools compare with their own NOCASE. Nothing in the file may depend on that rule, or they would corrupt
/// it: an index on a text must be COLLATE BINARY.
///
/// The index on Cocktails holds all but the texts of the recipes: lists and searches walk it alone, and not
/// the pages of the long texts.
QString schema() {
    return QStringLiteral(R"(
CREATE TABLE Cocktails (
    Numero INTEGER PRIMARY KEY,
    Recette TEXT COLLATE NOCASE,
    NCategorie INTEGER,
    Nverre INTEGER,
    Photo TEXT COLLATE NOCASE,
    Nreal INTEGER,
    preparation TEXT COLLATE NOCASE,
    Deco TEXT COLLATE NOCASE,
    Cout INTEGER,
    difficulte INTEGER,
    Teneur INTEGER,
    NDureeReal INTEGER
);
CREATE INDEX CocktailsListe ON Cocktails
    (Numero, Recette COLLATE BINARY, NCategorie, Nverre, Nreal, Cout, difficulte, Teneur, NDureeReal);

CREATE TABLE Ingre (Numero INTEGER, NIngre INTEGER, NQuantite INTEGER, NMesure INTEGER);
CREATE INDEX IngreRecette ON Ingre (Numero);
CREATE INDEX IngreIngredient ON Ingre (NIngre, Numero);

CREATE TABLE Categorie (NCategorie INTEGER PRIMARY KEY, Categorie TEXT COLLATE NOCASE);
CREATE TABLE DureeReal (NDureeReal INTEGER PRIMARY KEY, DureeReal TEXT COLLATE NOCASE);
CREATE TABLE Verre (
    NVerre INTEGER PRIMARY KEY,
    Verre TEXT COLLATE NOCASE,
    Verre2 TEXT COLLATE NOCASE,
    Verre3 TEXT COLLATE NOCASE,
    Verre4 TEXT COLLATE NOCASE
);
CREATE TABLE Realisation (NRealisation INTEGER PRIMARY KEY, Realisation TEXT COLLATE NOCASE);
CREATE TABLE VIN (NVIN INTEGER PRIMARY KEY, VIN TEXT COLLATE NOCASE);
CREATE TABLE Ingredient (NIngredient INTEGER PRIMARY KEY, Ingredient TEXT COLLATE NOCASE);
CREATE TABLE Quantite (NQuantite INTEGER PRIMARY KEY, Quantite TEXT COLLATE NOCASE);
CREATE TABLE Mesure (NMesure INTEGER PRIMARY KEY, Mesure TEXT COLLATE NOCASE);
)");
}

} // namespace

platform::database::Database OuvrirLivre() {
    try {
        return OuvrirLivre(CheminBase());
    } catch (const platform::database::DatabaseError &echec) {
        const QString copie = CheminAvantRestauration();
        if (!QFile::exists(copie)) {
            throw;
        }
        throw platform::database::DatabaseError(
            QString::fromUtf8(echec.what()) +
            QStringLiteral("\rLe livre d'avant la dernière restauration est dans ") + copie +
            QLatin1Char('.'));
    }
}

platform::database::Database OuvrirLivre(const QString &chemin) {
    return platform::database::OpenDatabase(chemin, true, false, connexion(), CollationFrancaise);
}

void PreparerCle() {
    platform::database::PrepareKey(CheminBase(), connexion());
}

void CreerLivre(const QString &chemin) {
    platform::database::CreateDatabase(chemin, connexion(), schema());
}

} // namespace store
