#include "Start.h"

#include "BareBook.h"

#include "platform/desktop/SingleInstance.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"
#include "store/Programme.h"

#include <QApplication>
#include <QFile>
#include <QListView>
#include <QStringListModel>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

[[noreturn]] void finish() {
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    const QByteArray text = status.readAll();
    const QByteArray peak = text.mid(text.indexOf("VmHWM:") + 6).split('k').first().trimmed();
    std::puts(peak.constData());
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

/// Ends the process once a widget has been painted and the picture has gone to the screen.
class EndAfterPaint : public QObject {
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override {
        if (event->type() == QEvent::Paint) {
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        }
        return false;
    }

    bool event(QEvent *event) override {
        if (event->type() == QEvent::User) {
            finish();
        }
        return QObject::event(event);
    }
};

/// What the program's main() does.
int startOurs(int argc, char **argv, const QString &folder) {
    const platform::desktop::SingleInstance instance(store::TitreProgramme.toString());
    const QApplication application(argc, argv);
    store::DefinirDossierProgramme(folder);
    shell::PreparerApplication();
    shell::Fenetres windows;
    const browser::Frmmain &frmmain = windows.Principale;
    EndAfterPaint end;
    frmmain.Liste.viewport()->installEventFilter(&end);
    shell::ChargerFrmmain(windows, instance);
    // A start that was broken off leaves no view in the settings, and so no list.
    if (frmmain.Liste.Count() == 0) {
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}

QStringList titlesOfBook(const QString &folder) {
    const Connection book = BareBook(folder + QStringLiteral("/db.mdb")).open();
    useFrenchOrder(book.get());
    const Statement walk = prepare(
        book.get(), "SELECT Numero, Recette FROM Cocktails INDEXED BY CocktailsListe ORDER BY Recette");
    QStringList titles;
    while (step(walk)) {
        titles.append(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(walk.get(), 1))));
    }
    return titles;
}

QStringList titlesOfFile(const QString &folder) {
    QFile file(folder + QStringLiteral("/titles.txt"));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

int startWindow(int argc, char **argv, const QString &folder, QStringList (*read)(const QString &)) {
    const QApplication application(argc, argv);
    QStringListModel titles(read(folder));
    QListView list;
    list.setUniformItemSizes(true);
    list.setModel(&titles);
    list.setFixedSize(platform::controls::kWindowSize.width.pixels(),
                      platform::controls::kWindowSize.height.pixels());
    EndAfterPaint end;
    list.viewport()->installEventFilter(&end);
    list.show();
    return QApplication::exec();
}

} // namespace

int start(int argc, char **argv, const QString &which, const QString &folder) {
    if (which == QLatin1String(kOurs)) {
        return startOurs(argc, argv, folder);
    }
    return startWindow(argc, argv, folder, which == QLatin1String(kBare) ? titlesOfBook : titlesOfFile);
}

} // namespace bench
