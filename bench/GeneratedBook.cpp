#include "GeneratedBook.h"

#include "BareBook.h"
#include "RecipeTexts.h"

#include "store/Livre.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSaveFile>

#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <random>
#include <stdexcept>

namespace bench {

namespace {

constexpr int kLines = 8;
constexpr int kManyLines = 12;
/// Recipes with many lines lie this far apart.
constexpr int kStep = 100;
/// Texts repeat after this many recipes.
constexpr int kTexts = 2000;

struct Lookup {
    const char *table;
    int rows;
};

constexpr std::array kLookups{
    Lookup{"Categorie", 30}, Lookup{"DureeReal", 25}, Lookup{"Verre", 12},  Lookup{"Realisation", 20},
    Lookup{"VIN", 25},       Lookup{"Quantite", 60},  Lookup{"Mesure", 40},
};

void bindText(const Statement &statement, int parameter, const QByteArray &text) {
    sqlite3_bind_text(statement.get(), parameter, text.constData(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

void runAgain(const Statement &statement) {
    step(statement);
    sqlite3_reset(statement.get());
}

void insertLookup(sqlite3 *book, const QByteArray &table, int rows) {
    const QByteArray sql = "INSERT INTO " + table + " (N" + table + ", " + table + ") VALUES (?, ?)";
    const Statement insert = prepare(book, sql.constData());
    for (int number = 1; number <= rows; ++number) {
        sqlite3_bind_int(insert.get(), 1, number);
        bindText(insert, 2, lookupText(number));
        runAgain(insert);
    }
}

void insertRecipes(sqlite3 *book, int recipes) {
    const Statement insert =
        prepare(book, "INSERT INTO Cocktails VALUES (?, ?, ?, ?, '', ?, ?, ?, ?, ?, ?, ?)");
    for (int number = 1; number <= recipes; ++number) {
        int parameter = 0;
        const auto bind = [&](int value) { sqlite3_bind_int(insert.get(), ++parameter, value); };
        bind(number);
        bindText(insert, ++parameter, recipeTitle(number));
        bind(number % 30 + 1); // Categorie
        bind(number % 12 + 1); // Verre
        bind(number % 20 + 1); // Realisation
        bindText(insert, ++parameter, recipeRtf(2 * (number % kTexts)));
        bindText(insert, ++parameter, recipeRtf(2 * (number % kTexts) + 1));
        bind(number % 5);      // Cout
        bind(number % 6);      // difficulte
        bind(number % 25 + 1); // VIN
        bind(number % 25 + 1); // DureeReal
        runAgain(insert);
    }
}

void insertLines(sqlite3 *book, int recipes, int ingredients) {
    const Statement insert =
        prepare(book, "INSERT INTO Ingre (Numero, NIngre, NQuantite, NMesure) VALUES (?, ?, ?, ?)");
    std::minstd_rand random;
    for (int recipe = 1; recipe <= recipes; ++recipe) {
        for (int line = 0; line < (recipe % kStep == 0 ? kManyLines : kLines); ++line) {
            sqlite3_bind_int(insert.get(), 1, recipe);
            sqlite3_bind_int(insert.get(), 2, std::uniform_int_distribution(1, ingredients)(random));
            sqlite3_bind_int(insert.get(), 3, std::uniform_int_distribution(1, 60)(random));
            sqlite3_bind_int(insert.get(), 4, std::uniform_int_distribution(1, 40)(random));
            runAgain(insert);
        }
    }
}

void fill(sqlite3 *connection, const GeneratedBook &book) {
    execute(connection, "PRAGMA synchronous = OFF; PRAGMA cache_size = -262144; BEGIN");
    for (const Lookup &lookup : kLookups) {
        insertLookup(connection, lookup.table, lookup.rows);
    }
    insertLookup(connection, "Ingredient", book.ingredients);
    insertRecipes(connection, book.recipes);
    insertLines(connection, book.recipes, book.ingredients);
    execute(connection, "COMMIT");
}

void writeTitles(sqlite3 *connection, const QString &path) {
    useFrenchOrder(connection);
    QSaveFile file(path);
    file.open(QIODevice::WriteOnly);
    const Statement titles = prepare(connection, "SELECT Recette FROM Cocktails ORDER BY Recette");
    while (step(titles)) {
        file.write(reinterpret_cast<const char *>(sqlite3_column_text(titles.get(), 0)));
        file.write("\n");
    }
    if (!file.commit()) {
        throw std::runtime_error(file.errorString().toStdString());
    }
}

bool isCurrent(const QString &file) {
    const QFileInfo program(QCoreApplication::applicationFilePath());
    return QFileInfo(file).lastModified() > program.lastModified();
}

} // namespace

QString GeneratedBook::name() const {
    return QString::number(recipes) + QStringLiteral(" recipes");
}

QString GeneratedBook::path() const {
    return folder + QStringLiteral("/db.mdb");
}

QString GeneratedBook::titles() const {
    return folder + QStringLiteral("/titles.txt");
}

int GeneratedBook::recipeOfTwelveLines(int index) const {
    const int within = kStep * (index % (kTexts / kStep)) + kStep;
    return within + index * kTexts % recipes / kTexts * kTexts;
}

GeneratedBook generateBook(const QString &below, int recipes, int ingredients) {
    GeneratedBook book{below + u'/' + QString::number(recipes), recipes, ingredients};
    // The list of titles is written last: where it is, the book is complete.
    if (isCurrent(book.titles())) {
        return book;
    }
    std::fprintf(stderr, "Making a book of %d recipes ...\n", recipes);
    QDir(book.folder).removeRecursively();
    QDir().mkpath(book.folder + QStringLiteral("/translations"));
    QFile::link(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_fr.qm"),
                book.folder + QStringLiteral("/translations/qtbase_fr.qm"));
    store::CreerLivre(book.path());
    const Connection connection = BareBook(book.path()).open();
    fill(connection.get(), book);
    writeTitles(connection.get(), book.titles());
    return book;
}

} // namespace bench
