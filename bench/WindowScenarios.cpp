#include "BareBook.h"
#include "Measure.h"
#include "OpenWindow.h"
#include "Scenarios.h"

#include "browser/Fiche.h"
#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "store/Programme.h"
#include "store/Schema.h"
#include "store/Textes.h"

#include <QCoreApplication>
#include <QStringListModel>

#include <sqlite3.h>

#include <vector>

namespace bench {

namespace {

constexpr int kListTurns = 15;
constexpr int kRecipeTurns = 40;
constexpr int kSheetTurns = 200;
constexpr double kListGoal = 2;
constexpr double kRecipeGoal = 10; // ms
constexpr double kClickGoal = 5;   // ms
constexpr double kChoicesGoal = 10;
constexpr double kSheetGoal = 40; // ms, between two recipes while the button is held down
// Two medians of the same work differ by about this much on a busy machine.
constexpr double kNoGrowth = 1.25;

/// The rows of a list as a plain program would hold them: the numbers beside a model of the texts.
struct BareList {
    std::vector<qint64> numbers;
    QStringListModel model;
};

void loadBare(const BareBook &book, const char *sql, BareList &list) {
    const Connection connection = book.open();
    useFrenchOrder(connection.get());
    const Statement rows = prepare(connection.get(), sql);
    list.numbers.clear();
    QStringList texts;
    while (step(rows)) {
        list.numbers.push_back(sqlite3_column_int64(rows.get(), 0));
        texts.append(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(rows.get(), 1)),
                                       sqlite3_column_bytes(rows.get(), 1)));
    }
    list.model.setStringList(texts);
}

Times loadList(browser::Frmmain &frm, const BareBook &book, const browser::Rubrique &heading, int view,
               const char *sql) {
    BareList list;
    return alternate([&] { browser::ChargerListe(frm, heading, view); }, [&] { loadBare(book, sql, list); },
                     kListTurns, OpenWindow::paint);
}

/// Shows recipes of the large book (ours) and of the small one (bare) in turns, until they are painted.
/// @param show takes the index of a recipe of twelve lines and the book
Times showRecipes(const GeneratedBook &small, const GeneratedBook &large,
                  const std::function<void(int, const GeneratedBook &)> &show) {
    int index = 0;
    const auto showIn = [&](const GeneratedBook &book) {
        store::DefinirDossierProgramme(book.folder);
        show(index++ / 2, book);
        OpenWindow::paint();
    };
    return alternate([&] { showIn(large); }, [&] { showIn(small); }, kRecipeTurns);
}

} // namespace

void measureList(const GeneratedBook &book, Report &report) {
    OpenWindow main(book);
    // Left to itself the engine would sort through the whole table, with its long texts.
    const Times times =
        loadList(main.window(), BareBook(book.path()), {&store::kCocktails, {}, {}}, 0,
                 "SELECT Numero, Recette FROM Cocktails INDEXED BY CocktailsListe ORDER BY Recette");
    report.add({QStringLiteral("list of recipes loaded"), book.name(), times.ours, times.bare, Goal::Ratio,
                kListGoal});
}

void measureIngredients(const GeneratedBook &book, Report &report) {
    OpenWindow main(book);
    const Times times = loadList(main.window(), BareBook(book.path()), {&store::kIngredient, {}, {}}, 6,
                                 "SELECT NIngredient, Ingredient FROM Ingredient ORDER BY Ingredient");
    const QString size = QString::number(book.ingredients) + QStringLiteral(" ingredients");
    report.add(
        {QStringLiteral("list of ingredients loaded"), size, times.ours, times.bare, Goal::Ratio, kListGoal});
}

void measureRecipe(const GeneratedBook &small, const GeneratedBook &large, Report &report) {
    OpenWindow main(large);
    browser::Frmmain &frm = main.window();
    const Times shown = showRecipes(small, large, [&frm](int index, const GeneratedBook &book) {
        browser::ChargerRecette(frm, book.recipeOfTwelveLines(index));
    });
    const QString name = QStringLiteral("recipe loaded and painted");
    report.add({name, small.name(), shown.bare, 0, Goal::Milliseconds, kRecipeGoal});
    report.add({name, large.name(), shown.ours, 0, Goal::Milliseconds, kRecipeGoal});
    report.add({name, QStringLiteral("large against small"), shown.ours, shown.bare, Goal::Ratio, kNoGrowth});

    // The numbers of the small book are also rows of the list, which holds the large one.
    const Times clicked = showRecipes(small, large, [&](int index, const GeneratedBook & /*book*/) {
        const QString key = store::CleDeListe(small.recipeOfTwelveLines(index));
        frm.Liste.Select(frm.Liste.IndexOfKey(key));
        frm.Volet.Retenir({});
        browser::ListeHaute(frm);
    });
    const QString click = QStringLiteral("row chosen: recipe and its choice lists");
    report.add({click, small.name(), clicked.bare, 0, Goal::Milliseconds, kClickGoal});
    report.add({click, large.name(), clicked.ours, 0, Goal::Milliseconds, kClickGoal});
    report.add(
        {click, QStringLiteral("large against small"), clicked.ours, clicked.bare, Goal::Ratio, kNoGrowth});
}

void measureChoices(const GeneratedBook &book, Report &report) {
    OpenWindow main(book);
    browser::Frmmain &frm = main.window();
    std::vector<double> turns;
    for (int turn = 0; turn < kRecipeTurns; ++turn) {
        frm.Liste.Select(turn + 1);
        browser::ListeHaute(frm);
        OpenWindow::paint();
        turns.push_back(milliseconds([&frm] {
            frm.Ingre(0).SetValue(true);
            frm.LIngre.showPopup();
            OpenWindow::paint();
        }));
        frm.LIngre.hidePopup();
    }
    const QString size = QString::number(book.ingredients) + QStringLiteral(" ingredients");
    report.add({QStringLiteral("choice list of a line opened, painted"), size, median(turns), 0,
                Goal::Milliseconds, kChoicesGoal});
}

void measureSheet(const GeneratedBook &book, Report &report) {
    OpenWindow main(book);
    main.window().hide();
    sheets::FicheAlbum &sheet = main.sheet();
    sheet.ChargerFiche();
    sheet.show();
    std::vector<double> turns;
    turns.reserve(kSheetTurns);
    for (int turn = 0; turn < kSheetTurns; ++turn) {
        turns.push_back(milliseconds([&sheet] {
            sheet.Navi(1).SetValue(true);
            OpenWindow::paint();
        }));
    }
    report.add({QStringLiteral("sheet of the next recipe, painted"), book.name(), median(turns), 0,
                Goal::Milliseconds, kSheetGoal});
}

} // namespace bench
