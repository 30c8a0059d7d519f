#include "BareBook.h"
#include "Measure.h"
#include "Scenarios.h"

#include "platform/database/Database.h"
#include "store/AccesBase.h"
#include "store/Livre.h"
#include "store/Programme.h"

#include <QVariant>

#include <sqlite3.h>

namespace bench {

namespace {

constexpr int kReadTurns = 400;
// Each waits for the disk several times.
constexpr int kChangeTurns = 100;
constexpr double kGoal = 1.5;

void readOurs(int number) {
    auto base = store::OuvrirLivre();
    auto row = base.OpenRecordset(QStringLiteral("SELECT * From Cocktails where Numero = ") +
                                  QString::number(number));
    [[maybe_unused]] const QString title = row.Fields(1).Text();
}

void readBare(const BareBook &book, int number) {
    const Connection connection = book.open();
    const Statement row = prepare(connection.get(), "SELECT * FROM Cocktails WHERE Numero = ?");
    sqlite3_bind_int(row.get(), 1, number);
    step(row);
    [[maybe_unused]] const QString title =
        QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(row.get(), 1)));
}

void changeOurs(int number, int cost) {
    store::ModifierChamp(number, store::ChampRecette::Cout, cost);
}

void changeBare(const BareBook &book, int number, int cost) {
    const Connection connection = book.open();
    const Statement update = prepare(connection.get(), "UPDATE Cocktails SET Cout = ? WHERE Numero = ?");
    sqlite3_bind_int(update.get(), 1, cost);
    sqlite3_bind_int(update.get(), 2, number);
    step(update);
}

} // namespace

void measureDatabase(const GeneratedBook &book, Report &report) {
    store::DefinirDossierProgramme(book.folder);
    const BareBook bare(book.path());
    const int number = book.recipes / 2;
    const Times read = alternate([&] { readOurs(number); }, [&] { readBare(bare, number); }, kReadTurns);
    report.add(
        {QStringLiteral("open, read one row, close"), book.name(), read.ours, read.bare, Goal::Ratio, kGoal});

    // Each call finds another value than the one it writes: the journal and the syncs are the engine's
    // defaults.
    int turn = 0;
    const auto nextCost = [&turn] { return ++turn % 5; };
    const Times change = alternate([&] { changeOurs(number, nextCost()); },
                                   [&] { changeBare(bare, number, nextCost()); }, kChangeTurns);
    report.add({QStringLiteral("open, change one value, close"), book.name(), change.ours, change.bare,
                Goal::Ratio, kGoal});
}

} // namespace bench
