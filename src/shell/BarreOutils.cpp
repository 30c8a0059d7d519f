#include "BarreOutils.h"

#include "Commandes.h"
#include "Fenetres.h"

#include "platform/dialogs/MessageBox.h"
#include "platform/webview/LoadEngine.h"
#include "store/Programme.h"

namespace shell {

namespace {

using namespace platform::controls;
using browser::Outil;

/// The window of a tool; null, with a message, where what it needs is not there.
ToolWindow *FenetrePossible(Fenetres &fenetres, Outil outil) {
    try {
        return &fenetres.Fenetre(outil);
    } catch (const platform::webview::WebViewError &obstacle) {
        platform::dialogs::Message(
            &fenetres.Principale, store::TitreProgramme.toString(),
            QStringLiteral("Le navigateur de la création facile n'est pas disponible.\n\n") +
                QString::fromUtf8(obstacle.what()) +
                QStringLiteral("\n\nEn attendant, « Création manuelle » permet de saisir une recette."),
            platform::dialogs::Icon::Exclamation);
        return nullptr;
    }
}

/// The main window makes room for a tool window that takes its place, and comes back after it.
void OuvrirOutil(Fenetres &fenetres, const Commande &commande) {
    ToolWindow *fenetre = FenetrePossible(fenetres, commande.outil);
    if (fenetre == nullptr) {
        return;
    }
    if (commande.preparer != nullptr) {
        commande.preparer(*fenetre);
    }
    if (commande.remplace) {
        fenetres.Principale.hide();
    }
    fenetre->ShowModal();
    if (commande.remplace) {
        fenetres.Principale.show();
    }
    fenetres.Principale.RevenirALaListe();
    fenetres.Oublier(commande.outil);
}

/// What a press of the tool does; noted first, so that its window comes back when it is minimised.
void Executer(Fenetres &fenetres, Outil outil) {
    fenetres.Pop.FenetreOuverte = static_cast<int>(outil);
    const Commande &commande = CommandeDe(outil);
    if (commande.agir != nullptr) {
        commande.agir(fenetres);
    } else {
        OuvrirOutil(fenetres, commande);
    }
}

// Black under the pointer, blue at rest.
void Survoler(Panel &panneau, const Ribbon &outil) {
    panneau.setToolTip(outil.toolTip());
    panneau.SetForeColor(Qt::black);
}

void BrancherOutil(browser::Frmmain &frm, int index) {
    Ribbon &outil = frm.Outils(index);
    Panel &panneau = frm.LBtn(index);
    const auto entrer = [&panneau, &outil] { Survoler(panneau, outil); };
    const auto sortir = [&panneau] { panneau.SetForeColor(Qt::blue); };
    QObject::connect(&outil, &Ribbon::Entered, &panneau, entrer);
    QObject::connect(&panneau, &Panel::Entered, &panneau, entrer);
    QObject::connect(&outil, &Ribbon::Exited, &panneau, sortir);
    QObject::connect(&panneau, &Panel::Exited, &panneau, sortir);
    QObject::connect(&panneau, &Panel::Clicked, &outil, [&outil] { outil.SetValue(true); });
}

} // namespace

void BrancherBarreOutils(Fenetres &fenetres) {
    browser::Frmmain &frm = fenetres.Principale;
    for (int index = 0; index < frm.Outils.Count(); ++index) {
        BrancherOutil(frm, index);
    }
    QObject::connect(&frm, &browser::Frmmain::OutilPresse, &frm,
                     [&fenetres](int index) { Executer(fenetres, static_cast<Outil>(index)); });
    QObject::connect(&frm, &browser::Frmmain::CreationDemandee, &frm,
                     [&fenetres] { Executer(fenetres, Outil::CreationManuelle); });
}

} // namespace shell
