#include "Commandes.h"

#include "Fenetres.h"
#include "OuvrirAdresse.h"
#include "Sauvegarde.h"
#include "Splash.h"

#include "entry/Manuelle.h"
#include "pictures/atelier/Acquisition.h"
#include "platform/webview/LoadEngine.h"
#include "search/FrmFind.h"
#include "sheets/FicheAlbum.h"
#include "store/Configuration.h"
#include "store/Programme.h"
#include "webimport/facile/Facile.h"
#include "webimport/facile/FichiersDePassage.h"

namespace shell {

namespace {

using browser::Outil;
using platform::controls::ToolWindow;

/// Makes a window that is given the main one. No function template: built with sanitizers, the check below could not tell
/// at compile time that it has an address.
template <class Fenetre>
constexpr auto kFaire = [](Fenetres &fenetres) -> std::unique_ptr<ToolWindow> {
    return std::make_unique<Fenetre>(fenetres.Principale);
};

std::unique_ptr<ToolWindow> FaireAccueil(Fenetres & /*fenetres*/) {
    return std::make_unique<Splash>();
}

std::unique_ptr<ToolWindow> FaireAtelier(Fenetres &fenetres) {
    return std::make_unique<pictures::atelier::Acquisition>(fenetres.Scanner);
}

/// Throws platform::webview::WebViewError where the browser cannot be had.
std::unique_ptr<ToolWindow> FaireImport(Fenetres &fenetres) {
    platform::webview::Engine &moteur =
        platform::webview::loadEngine(store::DossierProgramme() + QStringLiteral("/moteur-web.so"));
    return std::make_unique<webimport::facile::Facile>(fenetres.Principale, moteur);
}

// A page must not be read with the tail of another, whose analysis ended badly.
void OterRestes(ToolWindow & /*import*/) {
    webimport::facile::OterFichiersDePassage();
}

void ChargerFiche(ToolWindow &fenetre) {
    static_cast<sheets::FicheAlbum &>(fenetre).ChargerFiche();
}

// In the order of the toolbar. After a minimise the search comes back by the tool beside it, and so does the opening
// screen: the last press of Recherche brings back nothing, that of Sauvegarde the search.
constexpr std::array kCommandes{
    Commande{.outil = Outil::CreationManuelle,
             .faire = kFaire<entry::Manuelle>,
             .aide = u"aide/ajouter.htm",
             .mode = ModeCreation,
             .ephemere = true},
    Commande{.outil = Outil::CreationFacile,
             .faire = FaireImport,
             .preparer = OterRestes,
             .aide = u"aide/ajouter.htm",
             .mode = ModeCreation},
    Commande{.outil = Outil::Fiches,
             .faire = kFaire<sheets::FicheAlbum>,
             .preparer = ChargerFiche,
             .aide = u"aide/fiches.htm"},
    Commande{
        .outil = Outil::Acquisition, .faire = FaireAtelier, .aide = u"aide/images.htm", .ephemere = true},
    Commande{.outil = Outil::Recherche,
             .faire = kFaire<search::FrmFind>,
             .aide = u"aide/rechercher.htm",
             .retour = Outil::Sauvegarde},
    Commande{.outil = Outil::Sauvegarde,
             .agir = [](Fenetres &fenetres) { SauvegarderBase(fenetres.Principale); }},
    Commande{.outil = Outil::Restauration,
             .agir = [](Fenetres &fenetres) { RestaurerBase(fenetres.Principale); }},
    Commande{.outil = Outil::SitePartenaire,
             .agir = [](Fenetres &fenetres) { OuvrirAdresse(fenetres.Principale, store::PartnerSiteHome); }},
    Commande{.outil = Outil::SiteAuteur,
             .agir = [](Fenetres &fenetres) { OuvrirAdresse(fenetres.Principale, store::kAuteurSite); }},
    Commande{.outil = Outil::APropos,
             .faire = FaireAccueil,
             .aide = u"aide/auteur.htm",
             .retour = Outil::SiteAuteur,
             .remplace = false},
    Commande{.outil = Outil::Aide,
             .agir = [](Fenetres &fenetres) { OuvrirAdresse(fenetres.Principale, u"aide/index.htm"); }},
};

constexpr std::size_t Place(Outil outil) {
    return static_cast<std::size_t>(outil);
}

/// Whether each tool has its row, in order, does one thing, has its page of the help if it is a window, and no two windows
/// come back for the same value.
constexpr bool SontToutes() {
    std::array<int, browser::kNombreOutils> retours{};
    for (std::size_t i = 0; i < kCommandes.size(); ++i) {
        const Commande &commande = kCommandes[i];
        if (Place(commande.outil) != i || (commande.faire == nullptr) == (commande.agir == nullptr) ||
            (commande.faire == nullptr) != commande.aide.empty()) {
            return false;
        }
        if (commande.faire != nullptr && ++retours[Place(commande.Retour())] > 1) {
            return false;
        }
    }
    return kCommandes.size() == browser::kNombreOutils;
}

static_assert(SontToutes(), "a tool does nothing, two things, has a window without help, or does what "
                            "another one does after a minimise");

} // namespace

const Commande &CommandeDe(Outil outil) {
    return kCommandes[Place(outil)];
}

const Commande *CommandeDuRetour(int fenetreOuverte) {
    const auto trouvee = std::ranges::find_if(kCommandes, [fenetreOuverte](const Commande &commande) {
        return commande.faire != nullptr && static_cast<int>(commande.Retour()) == fenetreOuverte;
    });
    return trouvee != kCommandes.end() ? &*trouvee : nullptr;
}

} // namespace shell
