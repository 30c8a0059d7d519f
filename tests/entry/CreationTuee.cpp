// Kills a process that saves a recipe at each of its waits for the disk, of which every commit has some, and looks
// after each kill whether the book opens and what it holds is whole.

#include "Lignes.h"

#include "store/CreationRecette.h"
#include "store/Programme.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Waits for the disk that are left before the kill; none is counted below zero.
int &waitsLeft() {
    static int left = -1;
    return left;
}

int waitFor(long call, int file) {
    if (waitsLeft() >= 0 && waitsLeft()-- == 0) {
        std::raise(SIGKILL);
    }
    return static_cast<int>(syscall(call, file));
}

} // namespace

// The engine's calls come here, since a program's own functions go before those of the libraries.
extern "C" int fdatasync(int file) {
    return waitFor(SYS_fdatasync, file);
}

extern "C" int fsync(int file) {
    return waitFor(SYS_fsync, file);
}

namespace {

/// Every text is new, so each makes a row.
void save() {
    store::RecetteSaisie recipe{.titre = u"Soupe"_qs,
                                .cout = u"Cher"_qs,
                                .difficulte = u"Facile"_qs,
                                .vin = u"Chinon"_qs,
                                .dureeCuisson = u"10 mn"_qs,
                                .personnes = u"4 personnes"_qs,
                                .plat = u"Entrée"_qs,
                                .dureeReal = u"20 mn"_qs,
                                .preparation = QString(10'000, u'p'),
                                .complements = u"c"_qs,
                                .lignes = {{u"1"_qs, u"l"_qs, u"Eau"_qs}, {u"2"_qs, u"g"_qs, u"Sel"_qs}}};
    store::EnregistrerRecette(recipe, store::kSaisieManuelle, [](const QString & /*name*/) {});
}

/// Saves in a process of its own, which dies at one of its waits; true when it came to the end before.
bool saveAndDie(int wait) {
    const pid_t child = fork();
    if (child == 0) {
        waitsLeft() = wait;
        save();
        _exit(EXIT_SUCCESS);
    }
    int state = 0;
    waitpid(child, &state, 0);
    return WIFEXITED(state);
}

/// What each table may hold: nothing, or its rows from the first to one of them.
bool isWhole() {
    const std::pair<QString, QStringList> tables[]{
        {u"Categorie"_qs, {u"1|10 mn"_qs}},
        {u"DureeReal"_qs, {u"1|20 mn"_qs}},
        {u"Verre"_qs, {u"1|4 personnes"_qs}},
        {u"Realisation"_qs, {u"1|Entrée"_qs}},
        {u"VIN"_qs, {u"1|Chinon"_qs}},
        {u"Quantite"_qs, {u"1|2"_qs, u"2|1"_qs}},
        {u"Mesure"_qs, {u"1|g"_qs, u"2|l"_qs}},
        {u"Ingredient"_qs, {u"1|Sel"_qs, u"2|Eau"_qs}},
        {u"Ingre"_qs, {u"1|1|1|1"_qs, u"1|2|2|2"_qs}},
        {u"Cocktails"_qs, {u"1|Soupe|1|1|Soupe.jpg|1|"_qs + QString(10'000, u'p') + u"|c|3|2|1|1"}},
    };
    for (const auto &[table, rows] : tables) {
        const int columns = table == u"Cocktails" ? 12 : table == u"Ingre" ? 4 : 2;
        const QStringList found = rowsOf(u"SELECT * From "_qs + table, columns);
        if (found != rows.mid(0, found.size())) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(table), qPrintable(found.join(u", ")));
            return false;
        }
    }
    return true;
}

/// Lines are never stored before their recipe and their texts.
bool isInOrder() {
    const auto count = [](const QString &table) { return rowsOf(u"SELECT * From "_qs + table, 1).size(); };
    const auto lines = count(u"Ingre"_qs);
    return (lines == 0 || count(u"Cocktails"_qs) == 1) && count(u"Ingredient"_qs) >= lines &&
           count(u"VIN"_qs) >= count(u"Cocktails"_qs);
}

} // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    store::DefinirDossierProgramme(folder.path());
    const QString fresh = folder.filePath(u"vide.mdb"_qs);
    store::CreerLivre(fresh);
    for (int wait = 0;; ++wait) {
        QFile::remove(store::CheminBase());
        QFile::remove(store::CheminBase() + u"-journal"_qs);
        QFile::copy(fresh, store::CheminBase());
        store::OuvrirLivre(); // derives the key here, once for all children
        const bool ended = saveAndDie(wait);
        if (!isWhole() || !isInOrder()) {
            std::fprintf(stderr, "killed at wait %d\n", wait);
            return EXIT_FAILURE;
        }
        if (ended) {
            std::printf("%d kills\n", wait);
            // 13 commits of one wait at least.
            return wait > 13 ? EXIT_SUCCESS : EXIT_FAILURE;
        }
    }
}
