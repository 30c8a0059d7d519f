// Kills a process that saves a recipe at each of its waits for the disk, of which every commit has some, and looks
// after each kill whether the book opens and what it holds is whole.

#include "KilledAtWait.h"
#include "Lignes.h"
#include "LivreEssai.h"

#include "store/CreationRecette.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kCommits = 13;

/// Every text is new, so each makes a row.
void save() {
    store::RecetteSaisie recipe;
    recipe.titre = recipe.vin = recipe.personnes = recipe.plat = u"neuf"_qs;
    recipe.dureeCuisson = recipe.dureeReal = u"10 mn"_qs;
    recipe.preparation = QString(10'000, u'p');
    recipe.lignes = {{u"1"_qs, u"l"_qs, u"Eau"_qs}, {u"2"_qs, u"g"_qs, u"Sel"_qs}};
    store::EnregistrerRecette(recipe, store::kSaisieManuelle, [](const QString &name) { return name; });
}

/// The rows of all tables, those that others refer to first.
QList<QStringList> tables() {
    constexpr std::pair<const char *, int> kTables[]{
        {"Categorie", 2},  {"DureeReal", 2}, {"Verre", 5},  {"Realisation", 2}, {"VIN", 2},
        {"Cocktails", 12}, {"Quantite", 2},  {"Mesure", 2}, {"Ingredient", 2},  {"Ingre", 4}};
    QList<QStringList> all;
    for (const auto &[table, columns] : kTables) {
        all += rowsOf(u"SELECT * From "_qs + QLatin1String(table), columns);
    }
    return all;
}

/// Whether each table holds the first of its rows in the complete book, and refers to none that is not there: the
/// recipe to the tables before it, a line to the recipe and to a row of each table between.
bool isWhole(const QList<QStringList> &book, const QList<QStringList> &complete) {
    for (qsizetype table = 0; table < book.size(); ++table) {
        const qsizetype rows = book[table].size();
        bool whole = book[table] == complete[table].mid(0, rows);
        for (qsizetype other = 0; other < table; ++other) {
            whole = whole && book[other].size() >= std::min(rows, complete[other].size());
        }
        if (!whole) {
            std::fprintf(stderr, "%s\n", qPrintable(book[table].join(u", ")));
            return false;
        }
    }
    return true;
}

} // namespace

int main() {
    const LivreEssai book;
    const QByteArray empty = LivreEssai::bytes();
    save(); // which derives the key for all children, too
    const QList<QStringList> complete = tables();
    int wait = 0;
    for (bool ended = false; !ended; ++wait) {
        ended = survives(empty, [wait] {
            waitsLeft() = wait;
            save();
        });
        const QList<QStringList> left = tables();
        if (!isWhole(left, complete) || (ended && left != complete)) {
            std::fprintf(stderr, "killed at wait %d\n", wait);
            return EXIT_FAILURE;
        }
    }
    std::printf("%d kills\n", wait - 1);
    return wait > kCommits ? EXIT_SUCCESS : EXIT_FAILURE;
}
