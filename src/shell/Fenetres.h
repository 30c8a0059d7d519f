#pragma once

#include "Patch.h"
#include "Splash.h"

#include "browser/Frmmain.h"
#include "browser/Pop.h"
#include "pictures/atelier/Acquisition.h"
#include "platform/scandialogs/ImageSource.h"
#include "search/FrmFind.h"

#include <optional>

namespace shell {

/// The windows of the program. The tool windows are made when they are first opened, take the display mode then, and
/// stay for the run.
class Fenetres {
public:
    Fenetres();

    browser::Frmmain Principale;
    browser::Pop Pop;

    Splash &Accueil();
    search::FrmFind &Recherche();

    /// The picture workshop; unlike the others it is made anew after it was forgotten.
    pictures::atelier::Acquisition &Atelier();
    void OublierAtelier();

    /// The tool windows made so far.
    std::vector<platform::controls::ToolWindow *> Outils();

private:
    std::optional<Splash> m_accueil;
    std::optional<search::FrmFind> m_recherche;
    platform::scandialogs::ImageSource m_scanner;
    std::optional<pictures::atelier::Acquisition> m_atelier;
};

} // namespace shell
