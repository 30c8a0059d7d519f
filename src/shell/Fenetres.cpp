#include "Fenetres.h"

#include "Commandes.h"
#include "OuvrirAdresse.h"
#include "Reduction.h"

#include "platform/controls/Keys.h"

namespace shell {

Fenetres::Fenetres() : Pop(Principale) {}

platform::controls::ToolWindow &Fenetres::Fenetre(browser::Outil outil) {
    std::unique_ptr<ToolWindow> &fenetre = m_faites[static_cast<std::size_t>(outil)];
    if (!fenetre) {
        fenetre = Faire(outil);
    }
    return *fenetre;
}

std::unique_ptr<platform::controls::ToolWindow> Fenetres::Faire(browser::Outil outil) {
    const Commande &commande = CommandeDe(outil);
    std::unique_ptr<ToolWindow> fenetre = commande.faire(*this);
    fenetre->SetMode(commande.mode());
    fenetre->setWindowIcon(Principale.windowIcon());
    fenetre->CenterOn(Principale);
    QObject::connect(fenetre.get(), &ToolWindow::MinimiseRequested, &Principale,
                     [this, &reduite = *fenetre] { Reduire(*this, reduite); });
    onKey(*fenetre, Qt::Key_F1, [&commande, &ouverte = *fenetre] { OuvrirAdresse(ouverte, commande.aide); });
    return fenetre;
}

void Fenetres::Oublier(browser::Outil outil) {
    std::unique_ptr<ToolWindow> &fenetre = m_faites[static_cast<std::size_t>(outil)];
    if (CommandeDe(outil).ephemere && fenetre && !fenetre->IsModal()) {
        fenetre.reset();
    }
}

std::vector<platform::controls::ToolWindow *> Fenetres::Faites() const {
    std::vector<ToolWindow *> faites;
    for (const std::unique_ptr<ToolWindow> &fenetre : m_faites) {
        if (fenetre) {
            faites.push_back(fenetre.get());
        }
    }
    return faites;
}

} // namespace shell
