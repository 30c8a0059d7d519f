#include "Reduction.h"

#include "BarreOutils.h"
#include "Fenetres.h"

#include "platform/database/DatabaseError.h"
#include "platform/settings/Conversion.h"
#include "platform/webview/LoadEngine.h"

#include <QGuiApplication>

#include <array>

namespace shell {

namespace {

using platform::controls::SkinnedWindow;

using Ouverture = SkinnedWindow &(*)(Fenetres &);

/// The window that each value of FenetreOuverte brings back. The values are tools of the toolbar, but the table is off by
/// one from the search on: a backup brings the search window, the search window itself none.
struct Retour {
    int outil;
    Ouverture ouvrir;
};

constexpr std::array kRetours{
    Retour{0, [](Fenetres &fenetres) -> SkinnedWindow & { return fenetres.Creation(); }},
    Retour{1, [](Fenetres &fenetres) -> SkinnedWindow & { return fenetres.Import(); }},
    Retour{2, [](Fenetres &fenetres) -> SkinnedWindow & { return fenetres.Fiches(); }},
    Retour{3, [](Fenetres &fenetres) -> SkinnedWindow & { return fenetres.Atelier(); }},
    Retour{5, [](Fenetres &fenetres) -> SkinnedWindow & { return fenetres.Recherche(); }},
    Retour{8, [](Fenetres &fenetres) -> SkinnedWindow & { return fenetres.Accueil(); }},
};

// Wayland tells no program that its window was minimised or brought back.
bool AnnonceLeRetour() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

void RouvrirFenetre(Fenetres &fenetres) {
    for (const Retour &retour : kRetours) {
        if (retour.outil == fenetres.Pop.FenetreOuverte) {
            retour.ouvrir(fenetres).ShowModal();
            fenetres.OublierCreation();
        }
    }
}

/// A window that was minimised while it was open, and that the table does not bring back, is closed: its opener waits.
void FermerLesOubliees(Fenetres &fenetres) {
    for (SkinnedWindow *fenetre : fenetres.Outils()) {
        if (fenetre->IsModal() && !fenetre->isVisible()) {
            fenetre->Unload();
        }
    }
}

void Restaurer(Fenetres &fenetres) {
    fenetres.Principale.show();
    fenetres.Principale.activateWindow();
    // It has done its part before a window comes back, which may stay open for long.
    fenetres.Pop.hide();
    // Where a window cannot be made, the main window at least has come back.
    try {
        RouvrirFenetre(fenetres);
    } catch (const platform::database::DatabaseError &) {
    } catch (const platform::settings::ConversionError &) {
    } catch (const platform::webview::WebViewError &) {
    }
    FermerLesOubliees(fenetres);
}

} // namespace

void Reduire(Fenetres &fenetres, SkinnedWindow &fenetre) {
    if (!AnnonceLeRetour()) {
        fenetre.showMinimized();
        return;
    }
    fenetres.Pop.CenterOn(fenetre);
    fenetres.Pop.setWindowState(Qt::WindowMinimized);
    fenetre.hide();
    fenetres.Principale.hide();
    fenetres.Pop.setVisible(true);
}

void SuivreEtat(Fenetres &fenetres) {
    if (fenetres.Pop.isMinimized()) {
        fenetres.Principale.hide();
    } else if (fenetres.Pop.isVisible()) {
        Restaurer(fenetres);
    }
}

} // namespace shell
