#include "Fenetres.h"

#include "Reduction.h"
#include "Reglages.h"

namespace shell {

namespace {

using platform::controls::ToolWindow;

/// The tool window of an optional, made and prepared if it is not there yet.
template <class Fenetre>
Fenetre &Preparee(std::optional<Fenetre> &fenetre, Fenetres &fenetres) {
    if (!fenetre) {
        fenetre.emplace();
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

std::vector<ToolWindow *> Fenetres::Outils() {
    std::vector<ToolWindow *> faites;
    if (m_accueil) {
        faites.push_back(&*m_accueil);
    }
    return faites;
}

} // namespace shell
