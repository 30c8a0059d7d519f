// bench [RESULT.json]: measures what the program must be fast at against bare loops over the C interface of
// the database, on generated books, and prints a table. Fails when a goal is missed.

#include "Scenarios.h"
#include "Start.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

/// A folder in memory where the system has one, as the folder of a user's session is.
QString folderTemplate() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/bench-XXXXXX");
}

/// Settings and locks of the measured windows go to folders of their own, and no display is needed.
void isolate(const QTemporaryDir &settings, const QTemporaryDir &session) {
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", session.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    // Offscreen has no window masks, and says so for every window.
    qputenv("QT_LOGGING_RULES", "default.warning=false");
}

bool measureAll(const QString &resultFile) {
    const QString books = QCoreApplication::applicationDirPath() + QStringLiteral("/books");
    const bench::GeneratedBook small = bench::generateBook(books, 2'000, 400);
    const bench::GeneratedBook large = bench::generateBook(books, 20'000, 5'000);
    bench::Report report;
    // First, while this process is small and quick to fork.
    bench::measureStart(large, report);
    for (const bench::GeneratedBook &book : {small, large}) {
        bench::measureDatabase(book, report);
        bench::measureCreation(book, report);
    }
    for (const bench::GeneratedBook &book : {small, large}) {
        bench::measureList(book, report);
    }
    bench::measureIngredients(large, report);
    bench::measureRecipe(small, large, report);
    bench::measureChoices(large, report);
    bench::measureSearch(large, report);
    bench::measureSheet(large, report);
    bench::measureKeyStroke(large, report);
    bench::measureTurn(report);
    bench::measureImport(report);
    report.writeJson(resultFile);
    return report.allReached();
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc == 4 && qstrcmp(argv[1], bench::kStartCommand) == 0) {
        return bench::start(argc, argv, QString::fromUtf8(argv[2]), QString::fromUtf8(argv[3]));
    }
    const QTemporaryDir settings;
    const QTemporaryDir session(folderTemplate());
    isolate(settings, session);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    try {
        return measureAll(argc > 1 ? QString::fromUtf8(argv[1]) : QStringLiteral("bench.json"))
                   ? EXIT_SUCCESS
                   : EXIT_FAILURE;
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
