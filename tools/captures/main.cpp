// captures PROGRAM-FOLDER PICTURES: saves pictures of the windows, for the documents: the eight sort
// views as vue-0.png to vue-7.png, three recipes as recette-1.png to recette-3.png, and the tool windows. It works
// on a copy of the folder, to which it adds the browser of the import, and with settings of its own.
#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/desktop/SingleInstance.h"
#include "platform/webview/Engine.h"
#include "search/FrmFind.h"
#include "sheets/FicheAlbum.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"
#include "shell/Patch.h"
#include "store/Programme.h"
#include "webimport/facile/Facile.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace {

using browser::Frmmain;
using browser::Outil;

/// A screen with room for a whole window; the default one of the offscreen platform would shrink it.
constexpr auto kScreens = R"({"screens": [{"name": "captures", "x": 0, "y": 0, "width": 1600, "height": 1200,
    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

void configureScreen(const QString &configuration) {
    QFile file(configuration);
    if (!file.open(QFile::WriteOnly) || file.write(kScreens) < 0) {
        throw std::runtime_error("The configuration of the screen cannot be written.");
    }
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + configuration.toUtf8());
}

void save(QWidget &frm, const QString &picture) {
    QCoreApplication::processEvents();
    constexpr int kSmallest = 0; // the "quality" of a PNG is how little it is compressed
    if (!frm.grab().save(picture, "PNG", kSmallest)) {
        throw std::runtime_error("Cannot write " + picture.toStdString());
    }
}

void press(Frmmain &frm, int view) {
    frm.Bouton(view).SetValue(true);
}

void choose(Frmmain &frm, int row) {
    frm.Liste.Select(row);
    browser::ClicListe(frm);
}

/// Chooses the group with the most recipes, so that both lists show something.
void chooseLargestGroup(Frmmain &frm) {
    int best = 1;
    int most = 0;
    for (int row = 1; row <= frm.Liste.Count(); ++row) {
        choose(frm, row);
        if (frm.LFilms.Count() > most) {
            most = frm.LFilms.Count();
            best = row;
        }
    }
    // From the top, so that the list scrolls no further than it must.
    choose(frm, 1);
    choose(frm, best);
}

void captureViews(Frmmain &frm, const QString &pictures) {
    for (int view = 0; view < browser::kNombreDeVues; ++view) {
        press(frm, view);
        if (view > 0) {
            chooseLargestGroup(frm);
        }
        save(frm, QStringLiteral("%1/vue-%2.png").arg(pictures).arg(view));
    }
}

/// Shows the recipe of a row of view 0, scrolled so that the control stands where the detail begins.
void captureRecipe(Frmmain &frm, int row, const QWidget &top, const QString &picture) {
    choose(frm, row);
    QCoreApplication::processEvents();
    frm.Scroll(0).verticalScrollBar()->setValue(top.y() - frm.CadrePhoto.y());
    save(frm, picture);
}

void captureRecipes(Frmmain &frm, const QString &pictures) {
    press(frm, 0);
    const int last = frm.Liste.Count();
    captureRecipe(frm, 2, frm.CadrePhoto, pictures + QStringLiteral("/recette-1.png"));
    captureRecipe(frm, last / 2, frm.Libelle(0), pictures + QStringLiteral("/recette-2.png"));
    captureRecipe(frm, last, frm.Libelle(3), pictures + QStringLiteral("/recette-3.png"));
}

/// The tool windows as they open, each alone.
void captureTools(shell::Fenetres &fenetres, const QString &pictures) {
    fenetres.FenetreDe<sheets::FicheAlbum>(Outil::Fiches).ChargerFiche();
    auto &recherche = fenetres.FenetreDe<search::FrmFind>(Outil::Recherche);
    recherche.Saisie.SetText(QStringLiteral("p"));
    recherche.Creer.SetValue(true);
    shell::Patch patch(fenetres.Principale);
    const std::array<std::pair<const char *, QWidget *>, 6> windows{
        {{"creation", &fenetres.Fenetre(Outil::CreationManuelle)},
         {"fiche", &fenetres.Fenetre(Outil::Fiches)},
         {"atelier", &fenetres.Fenetre(Outil::Acquisition)},
         {"recherche", &recherche},
         {"accueil", &fenetres.Fenetre(Outil::APropos)},
         {"affichage", &patch}}};
    for (const auto &[name, window] : windows) {
        window->show();
        QCoreApplication::processEvents();
        save(*window, QStringLiteral("%1/%2.png").arg(pictures, QLatin1String(name)));
        window->hide();
    }
}

/// Lets the program run until something holds, and a moment longer, in which the browser paints.
template <class Condition>
void waitFor(Condition holds) {
    constexpr std::chrono::seconds kPatience{30};
    constexpr std::chrono::milliseconds kMoment{1500};
    QElapsedTimer elapsed;
    for (elapsed.start(); !holds(); QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100)) {
        if (elapsed.hasExpired(std::chrono::milliseconds(kPatience).count())) {
            throw std::runtime_error("The page of the import does not come.");
        }
    }
    for (elapsed.start(); !elapsed.hasExpired(kMoment.count());) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    }
}

/// The import on a page of the demonstration site, and with the recipe that it has read there.
void captureImport(shell::Fenetres &fenetres, const QString &pictures) {
    auto &facile = fenetres.FenetreDe<webimport::facile::Facile>(Outil::CreationFacile);
    facile.show();
    facile.Navigateur->navigate(
        QUrl::fromLocalFile(store::DossierProgramme() + QStringLiteral("/facile/langoustines.htm")));
    waitFor([&facile] { return facile.Analyse.isVisible(); });
    save(facile, pictures + QStringLiteral("/import-page.png"));
    facile.Analyse.SetValue(true);
    // Without the folder of this run, in which nobody will find anything.
    facile.NomPhoto.SetText(facile.NomPhoto.Text().section(u'/', -3));
    save(facile, pictures + QStringLiteral("/import-recette.png"));
    facile.hide();
}

void capture(const QTemporaryDir &scratch, const QString &programFolder, const QString &pictures) {
    const QString folder = scratch.filePath(QStringLiteral("programme"));
    std::filesystem::copy(programFolder.toStdString(), folder.toStdString(),
                          std::filesystem::copy_options::recursive);
    std::filesystem::copy(SAVOREL_MOTEUR, folder.toStdString());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, scratch.path());
    store::DefinirDossierProgramme(folder);
    shell::PreparerApplication();

    const platform::desktop::SingleInstance instance(store::TitreProgramme.toString());
    shell::Fenetres fenetres;
    shell::ChargerFrmmain(fenetres, instance);
    Frmmain &frm = fenetres.Principale;
    captureViews(frm, pictures);
    captureRecipes(frm, pictures);
    captureTools(fenetres, pictures);
    captureImport(fenetres, pictures);
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc != 3) {
        std::fputs("usage: captures PROGRAM-FOLDER PICTURES\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        const QTemporaryDir scratch;
        configureScreen(scratch.filePath(QStringLiteral("screens.json")));
        // Here the running program notes its presence: it may be running meanwhile.
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(scratch.path()));
        const QApplication application(argc, argv);
        capture(scratch, QFile::decodeName(argv[1]), QFile::decodeName(argv[2]));
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "captures: %s\n", failure.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
