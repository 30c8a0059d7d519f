#include "Fenetres.h"

#include "Reduction.h"
#include "Modes.h"

#include "platform/webview/LoadEngine.h"
#include "store/Programme.h"

namespace shell {

namespace {

using platform::controls::ToolWindow;

/// The tool window of an optional, made of the arguments and prepared if it is not there yet.
template <class Fenetre, class... Arguments>
Fenetre &Preparee(std::optional<Fenetre> &fenetre, Fenetres &fenetres, Arguments &...arguments) {
    if (!fenetre) {
        fenetre.emplace(arguments...);
        fenetre->SetMode(ModeAffichage());
        fenetre->setWindowIcon(fenetres.Principale.windowIcon());
        fenetre->CenterOn(fenetres.Principale);
        QObject::connect(&*fenetre, &ToolWindow::MinimiseRequested, &fenetres.Principale,
                         [&fenetres, &fenetre] { Reduire(fenetres, *fenetre); });
    }
    return *fenetre;
}

} // namespace

Fenetres::Fenetres() : Pop(Principale) {}

Splash &Fenetres::Accueil() {
    return Preparee(m_accueil, *this);
}

search::FrmFind &Fenetres::Recherche() {
    return Preparee(m_recherche, *this, Principale);
}

sheets::FicheAlbum &Fenetres::Fiches() {
    return Preparee(m_fiches, *this, Principale);
}

pictures::atelier::Acquisition &Fenetres::Atelier() {
    return Preparee(m_atelier, *this, m_scanner);
}

void Fenetres::OublierAtelier() {
    m_atelier.reset();
}

entry::Manuelle &Fenetres::Creation() {
    const bool nouvelle = !m_creation;
    entry::Manuelle &fenetre = Preparee(m_creation, *this, Principale);
    if (nouvelle) {
        fenetre.SetMode(ModeCreation());
    }
    return fenetre;
}

webimport::facile::Facile &Fenetres::Import() {
    if (!m_import) {
        platform::webview::Engine &moteur =
            platform::webview::loadEngine(store::DossierProgramme() + QStringLiteral("/moteur-web.so"));
        Preparee(m_import, *this, Principale, moteur).SetMode(ModeCreation());
    }
    return *m_import;
}

void Fenetres::OublierCreation() {
    if (m_creation && !m_creation->IsModal()) {
        m_creation.reset();
    }
}

std::vector<ToolWindow *> Fenetres::Outils() {
    std::vector<ToolWindow *> faites;
    const auto ajouter = [&faites](auto &fenetre) {
        if (fenetre) {
            faites.push_back(&*fenetre);
        }
    };
    ajouter(m_accueil);
    ajouter(m_recherche);
    ajouter(m_fiches);
    ajouter(m_atelier);
    ajouter(m_creation);
    ajouter(m_import);
    return faites;
}

} // namespace shell
