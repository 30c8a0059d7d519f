#pragma once

#include "browser/Frmmain.h"
#include "browser/Pop.h"
#include "browser/TableDesOutils.h"
#include "platform/controls/ToolWindow.h"
#include "platform/scandialogs/ImageSource.h"

#include <array>
#include <memory>
#include <vector>

namespace shell {

/// The windows of the program. The tool windows are made as the rows of Commandes.cpp say, when they are first opened,
/// and take the display mode then.
class Fenetres {
public:
    using ToolWindow = platform::controls::ToolWindow;

    Fenetres();

    browser::Frmmain Principale;
    browser::Pop Pop;
    /// The scanner chosen in the picture workshop.
    platform::scandialogs::ImageSource Scanner;

    /// The window of a tool that has one. Throws what making it throws.
    ToolWindow &Fenetre(browser::Outil outil);

    /// The same by its class.
    template <class Classe>
    Classe &FenetreDe(browser::Outil outil) {
        return dynamic_cast<Classe &>(Fenetre(outil));
    }

    /// Unloads the window of a tool if it is made each time, unless it is open: then the one who opened it does.
    void Oublier(browser::Outil outil);

    /// The tool windows made so far.
    std::vector<ToolWindow *> Faites() const;

private:
    std::unique_ptr<ToolWindow> Faire(browser::Outil outil);

    std::array<std::unique_ptr<ToolWindow>, browser::kNombreOutils> m_faites;
};

} // namespace shell
