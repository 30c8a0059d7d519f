#include "BareBook.h"
#include "Measure.h"
#include "RecipeTexts.h"
#include "Scenarios.h"

#include "platform/controls/RichTextBox.h"
#include "store/AccesBase.h"
#include "store/Programme.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>

#include <sqlite3.h>

namespace bench {

namespace {

using platform::controls::RichTextBox;

constexpr platform::controls::ControlRow kRow{"Saisie", 0, 0, 9000, 6000};
constexpr int kTurns = 100;
constexpr double kRatioGoal = 2;
constexpr double kFrame = 1000.0 / 60; // ms

void type(RichTextBox &box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_E, Qt::NoModifier, QStringLiteral("e"));
    QCoreApplication::sendEvent(&box, &press);
}

void store(const RichTextBox &box, int number) {
    store::ModifierChamp(number, store::ChampRecette::preparation, box.TextRTF());
}

/// Locks and keeps its journal as the program does, which waits for the disk as often.
void storeBare(const BareBook &book, int number, const QByteArray &text) {
    const Connection connection = book.open();
    execute(connection.get(), "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = TRUNCATE;"
                              "BEGIN EXCLUSIVE; COMMIT");
    const Statement update =
        prepare(connection.get(), "UPDATE Cocktails SET preparation = ? WHERE Numero = ?");
    sqlite3_bind_text(update.get(), 1, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
    sqlite3_bind_int(update.get(), 2, number);
    step(update);
    execute(connection.get(), "PRAGMA locking_mode = NORMAL; PRAGMA journal_mode = DELETE");
}

} // namespace

void measureKeyStroke(const GeneratedBook &book, Report &report) {
    store::DefinirDossierProgramme(book.folder);
    const BareBook bare(book.path());
    const int number = book.recipes / 2;
    QWidget window;
    RichTextBox box(&window, kRow);
    box.SetTextRTF(QString::fromLatin1(longRecipeRtf()));
    box.Select(static_cast<int>(box.Text().size()) / 2, 0);
    window.show();
    QCoreApplication::processEvents();
    const QString size = QString::number(box.Text().size()) + QStringLiteral(" characters");

    const QByteArray text = box.TextRTF().toLatin1();
    const auto typeAndPaint = [&box] {
        type(box);
        QCoreApplication::processEvents();
    };
    const Times typed = alternate(
        typeAndPaint, [] {}, kTurns);
    report.add({QStringLiteral("key stroke, painted"), size, typed.ours, 0, Goal::Milliseconds, kFrame});

    const auto typeAndStore = [&] {
        type(box);
        store(box, number);
    };
    const Times stored = alternate(
        typeAndStore, [&] { storeBare(bare, number, text); }, kTurns);
    report.add(
        {QStringLiteral("key stroke, stored"), size, stored.ours, stored.bare, Goal::Ratio, kRatioGoal});
    // The book is used again by the next run.
    storeBare(bare, number, recipeRtf(number));
}

} // namespace bench
