#include "BarreOutils.h"

#include "Fenetres.h"
#include "OuvrirAdresse.h"
#include "Sauvegarde.h"

#include "platform/dialogs/MessageBox.h"
#include "platform/webview/LoadEngine.h"
#include "store/Configuration.h"
#include "store/Programme.h"

#include <array>

namespace shell {

namespace {

using namespace platform::controls;

constexpr int kOutilCreation = 0;

/// The main window makes room for a tool window, and comes back after it.
void OuvrirOutil(Fenetres &fenetres, SkinnedWindow &fenetre) {
    fenetres.Principale.hide();
    fenetre.ShowModal();
    fenetres.Principale.show();
}

void CreerUneRecette(Fenetres &fenetres) {
    OuvrirOutil(fenetres, fenetres.Creation());
    fenetres.OublierCreation();
}

// Its picture is gone with the window.
void OuvrirAtelier(Fenetres &fenetres) {
    OuvrirOutil(fenetres, fenetres.Atelier());
    fenetres.OublierAtelier();
}

void OuvrirFiches(Fenetres &fenetres) {
    fenetres.Fiches().ChargerFiche();
    OuvrirOutil(fenetres, fenetres.Fiches());
}

/// The one tool that needs what may not be there.
void OuvrirImport(Fenetres &fenetres) {
    webimport::facile::Facile *fenetre = nullptr;
    try {
        fenetre = &fenetres.Import();
    } catch (const platform::webview::WebViewError &obstacle) {
        platform::dialogs::Message(
            &fenetres.Principale, store::TitreProgramme.toString(),
            QStringLiteral("Le navigateur de la création facile n'est pas disponible.\n\n") +
                QString::fromUtf8(obstacle.what()),
            platform::dialogs::Icon::Exclamation);
        return;
    }
    OuvrirOutil(fenetres, *fenetre);
}

using Action = void (*)(Fenetres &);

/// What each tool does; a tool without an action is disabled.
constexpr std::array<Action, 11> kActions{
    CreerUneRecette,
    OuvrirImport,
    OuvrirFiches,
    OuvrirAtelier,
    [](Fenetres &fenetres) { OuvrirOutil(fenetres, fenetres.Recherche()); },
    [](Fenetres &fenetres) { SauvegarderBase(fenetres.Principale); },
    [](Fenetres &fenetres) { RestaurerBase(fenetres.Principale); },
    [](Fenetres &fenetres) { OuvrirAdresse(fenetres.Principale, store::PartnerSiteHome); },
    [](Fenetres &fenetres) { OuvrirAdresse(fenetres.Principale, store::AuteurSite); },
    [](Fenetres &fenetres) { fenetres.Accueil().ShowModal(); },
    [](Fenetres &fenetres) { OuvrirAdresse(fenetres.Principale, u"aide/index.htm"); },
};

void PresserOutil(Fenetres &fenetres, int index) {
    fenetres.Pop.FenetreOuverte = index;
    kActions.at(static_cast<std::size_t>(index))(fenetres);
}

// Black under the pointer, blue at rest.
void Survoler(Panel &panneau, const Ribbon &outil) {
    panneau.setToolTip(outil.toolTip());
    panneau.SetForeColor(Qt::black);
}

void BrancherOutil(browser::Frmmain &frm, int index) {
    Ribbon &outil = frm.Outils(index);
    Panel &panneau = frm.LBtn(index);
    const bool existe = kActions.at(static_cast<std::size_t>(index)) != nullptr;
    outil.setEnabled(existe);
    panneau.setEnabled(existe);
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
                     [&fenetres](int index) { PresserOutil(fenetres, index); });
    QObject::connect(&frm, &browser::Frmmain::CreationDemandee, &frm, [&fenetres] {
        // As the tool does, so that the window comes back when it is minimised.
        fenetres.Pop.FenetreOuverte = kOutilCreation;
        CreerUneRecette(fenetres);
    });
}

} // namespace shell
