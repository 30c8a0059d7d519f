#include "BareBook.h"
#include "Measure.h"
#include "OpenWindow.h"
#include "Scenarios.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "search/FrmFind.h"
#include "store/AccesBase.h"

#include <QKeyEvent>

#include <sqlite3.h>

namespace bench {

namespace {

constexpr int kTurns = 15;
constexpr double kSearchGoal = 2;
constexpr double kShownGoal = 20;      // ms
constexpr double kBroughtUpGoal = 100; // ms

/// A view whose rows are groups, so that bringing up a recipe loads another one.
constexpr int kGroups = 4;

/// The numbers and titles in the order of the search; gives the bytes of the titles.
int walk(const BareBook &book) {
    const Connection connection = book.open();
    const Statement rows =
        prepare(connection.get(), "SELECT Numero, Recette FROM Cocktails INDEXED BY CocktailsListe "
                                  "WHERE Numero > 0 ORDER BY Numero DESC");
    int bytes = 0;
    while (step(rows)) {
        bytes += static_cast<int>(sqlite3_column_int64(rows.get(), 0) > 0);
        bytes += sqlite3_column_text(rows.get(), 1) != nullptr ? sqlite3_column_bytes(rows.get(), 1) : 0;
    }
    return bytes;
}

void press(QWidget &control, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &event);
}

/// The first word of a title in the middle of the list.
QString titleWord(const browser::Frmmain &frm) {
    return frm.Liste.Text(frm.Liste.Count() / 2).section(u' ', 0, 0);
}

} // namespace

void measureSearch(const GeneratedBook &book, Report &report) {
    OpenWindow main(book);
    browser::Frmmain &frm = main.window();
    search::FrmFind &find = main.searchWindow();
    const QString word = titleWord(frm);
    const BareBook bare(book.path());

    const QString query = QStringLiteral("Select * From Cocktails where Numero > 0    order by Numero desc");
    const Times read =
        alternate([&] { store::ChargerResultats(query, false, word); }, [&] { walk(bare); }, kTurns);
    report.add({QStringLiteral("search read"), book.name(), read.ours, read.bare, Goal::Ratio, kSearchGoal});

    find.show();
    find.Choix(1).SetValue(true);
    find.Saisie.SetText(word);
    OpenWindow::paint();
    const auto enter = [&find] {
        press(find.Saisie, Qt::Key_Return);
        OpenWindow::paint();
    };
    const Times listed = alternate(
        enter, [] {}, kTurns, OpenWindow::paint);
    report.add({QStringLiteral("search, Enter to results painted"), book.name(), listed.ours, 0,
                Goal::Milliseconds, kShownGoal});

    const auto showGroups = [&frm] { frm.Bouton(kGroups).SetValue(true); };
    const auto bringUp = [&find] {
        press(find.Liste, Qt::Key_Return);
        OpenWindow::paint();
    };
    find.Liste.Select(find.Liste.Count() / 2);
    const Times broughtUp = alternate(
        bringUp, [] {}, kTurns, showGroups);
    report.add({QStringLiteral("result brought up in the main window"), book.name(), broughtUp.ours, 0,
                Goal::Milliseconds, kBroughtUpGoal});
}

} // namespace bench
