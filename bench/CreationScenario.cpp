#include "BareBook.h"
#include "Measure.h"
#include "RecipeTexts.h"
#include "Scenarios.h"

#include "store/CreationRecette.h"
#include "store/Programme.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace bench {

namespace {

constexpr int kTurns = 15;
constexpr int kLines = 11;
constexpr double kGoal = 2;

void bindText(const Statement &statement, int parameter, const QByteArray &text) {
    sqlite3_bind_text(statement.get(), parameter, text.constData(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

/// A recipe whose texts no book holds.
store::RecetteSaisie newRecipe(int turn) {
    const QString mark = QStringLiteral(" neuf %1").arg(turn);
    store::RecetteSaisie recipe{.titre = QStringLiteral("Recette") + mark,
                                .cout = QStringLiteral("Cher"),
                                .difficulte = QStringLiteral("Facile"),
                                .vin = QStringLiteral("Vin") + mark,
                                .dureeCuisson = QStringLiteral("Cuisson") + mark,
                                .personnes = QStringLiteral("Personnes") + mark,
                                .plat = QStringLiteral("Plat") + mark,
                                .dureeReal = QStringLiteral("Préparation") + mark,
                                .preparation = QString::fromUtf8(recipeRtf(0)),
                                .complements = QString::fromUtf8(recipeRtf(1)),
                                .lignes = {}};
    for (int line = 0; line < kLines; ++line) {
        const QString text = mark + QStringLiteral(" ligne %1").arg(line);
        recipe.lignes.push_back({QStringLiteral("Quantité") + text, QStringLiteral("Mesure") + text,
                                 QStringLiteral("Ingrédient") + text});
    }
    return recipe;
}

int next(sqlite3 *book, const QByteArray &table, const QByteArray &key) {
    const Statement maximum = prepare(book, QByteArray("SELECT max(" + key + ") FROM " + table).constData());
    step(maximum);
    return sqlite3_column_int(maximum.get(), 0) + 1;
}

/// Looks the text up and makes its row.
int findOrAdd(sqlite3 *book, const QByteArray &table, const QString &text) {
    const QByteArray words = text.toUtf8();
    const QByteArray key = "N" + table;
    const Statement found = prepare(
        book, QByteArray("SELECT " + key + " FROM " + table + " WHERE " + table + " = ?").constData());
    bindText(found, 1, words);
    if (step(found)) {
        return sqlite3_column_int(found.get(), 0);
    }
    const int number = next(book, table, key);
    const Statement insert = prepare(
        book, QByteArray("INSERT INTO " + table + " (" + key + ", " + table + ") VALUES (?, ?)").constData());
    sqlite3_bind_int(insert.get(), 1, number);
    bindText(insert, 2, words);
    step(insert);
    return number;
}

void saveBare(const BareBook &bare, const store::RecetteSaisie &recipe) {
    const Connection connection = bare.open();
    sqlite3 *book = connection.get();
    useFrenchOrder(book);
    const int number = next(book, "Cocktails", "Numero");
    const Statement insert =
        prepare(book, "INSERT INTO Cocktails VALUES (?, ?, ?, ?, 'photo.jpg', ?, ?, ?, 3, 2, ?, ?)");
    sqlite3_bind_int(insert.get(), 1, number);
    bindText(insert, 2, recipe.titre.toUtf8());
    sqlite3_bind_int(insert.get(), 3, findOrAdd(book, "Categorie", recipe.dureeCuisson));
    sqlite3_bind_int(insert.get(), 9, findOrAdd(book, "DureeReal", recipe.dureeReal));
    sqlite3_bind_int(insert.get(), 4, findOrAdd(book, "Verre", recipe.personnes));
    sqlite3_bind_int(insert.get(), 5, findOrAdd(book, "Realisation", recipe.plat));
    bindText(insert, 6, recipe.preparation.toUtf8());
    bindText(insert, 7, recipe.complements.toUtf8());
    sqlite3_bind_int(insert.get(), 8, findOrAdd(book, "VIN", recipe.vin));
    step(insert);
    const Statement clear = prepare(book, "DELETE FROM Ingre WHERE Numero = ?");
    sqlite3_bind_int(clear.get(), 1, number);
    step(clear);
    const Statement line =
        prepare(book, "INSERT INTO Ingre (Numero, NQuantite, NMesure, NIngre) VALUES (?, ?, ?, ?)");
    std::for_each(recipe.lignes.crbegin(), recipe.lignes.crend(), [&](const store::LigneSaisie &typed) {
        sqlite3_bind_int(line.get(), 1, number);
        sqlite3_bind_int(line.get(), 2, findOrAdd(book, "Quantite", typed.quantite));
        sqlite3_bind_int(line.get(), 3, findOrAdd(book, "Mesure", typed.mesure));
        sqlite3_bind_int(line.get(), 4, findOrAdd(book, "Ingredient", typed.ingredient));
        step(line);
        sqlite3_reset(line.get());
    });
}

} // namespace

void measureCreation(const GeneratedBook &book, Report &report) {
    // Copies, since the others measure the book as it was made.
    const QTemporaryDir folder(book.folder + QStringLiteral("/creation-XXXXXX"));
    const QString copy = folder.filePath(QStringLiteral("nu.mdb"));
    store::DefinirDossierProgramme(folder.path());
    QFile::copy(book.path(), store::CheminBase());
    QFile::copy(book.path(), copy);
    const BareBook bare(copy);
    int oursTurn = 0;
    int bareTurn = 0;
    const Times save = alternate(
        [&] {
            store::RecetteSaisie recipe = newRecipe(++oursTurn);
            store::EnregistrerRecette(recipe, store::kSaisieManuelle,
                                      [](const QString &name) { return name; });
        },
        [&] { saveBare(bare, newRecipe(++bareTurn)); }, kTurns);
    report.add({QStringLiteral("recipe of 11 new lines saved"), book.name(), save.ours, save.bare,
                Goal::Ratio, kGoal});
}

} // namespace bench
