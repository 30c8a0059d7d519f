#include "Reduction.h"

#include "Commandes.h"
#include "Fenetres.h"

#include "platform/database/DatabaseError.h"
#include "platform/settings/Conversion.h"
#include "platform/webview/LoadEngine.h"

#include <QGuiApplication>

namespace shell {

namespace {

using platform::controls::SkinnedWindow;

// Wayland tells no program that its window was minimised or brought back.
bool AnnonceLeRetour() {
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

void RouvrirFenetre(Fenetres &fenetres) {
    if (const Commande *commande = CommandeDuRetour(fenetres.Pop.FenetreOuverte)) {
        fenetres.Fenetre(commande->outil).ShowModal();
        fenetres.Oublier(commande->outil);
        fenetres.Principale.RevenirALaListe();
    }
}

/// A window that was minimised while it was open, and that the table does not bring back, is closed: its opener waits.
void FermerLesOubliees(Fenetres &fenetres) {
    for (SkinnedWindow *fenetre : fenetres.Faites()) {
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
