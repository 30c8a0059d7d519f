#pragma once

#include "Patch.h"
#include "Splash.h"

#include "browser/Frmmain.h"
#include "browser/Pop.h"
#include "entry/Manuelle.h"
#include "pictures/atelier/Acquisition.h"
#include "platform/scandialogs/ImageSource.h"
#include "search/FrmFind.h"
#include "sheets/FicheAlbum.h"
#include "webimport/facile/Facile.h"

#include <optional>

namespace shell {

/// The windows of the program. The tool windows are made when they are first opened, take the display mode then, and
/// stay for the run, but for the window of creation.
class Fenetres {
public:
    Fenetres();

    browser::Frmmain Principale;
    browser::Pop Pop;

    Splash &Accueil();
    search::FrmFind &Recherche();
    sheets::FicheAlbum &Fiches();

    /// The picture workshop; unlike the others it is made anew after it was forgotten.
    pictures::atelier::Acquisition &Atelier();
    void OublierAtelier();

    /// Made anew after each OublierCreation, and in a display mode of its own.
    entry::Manuelle &Creation();

    /// Unloads the window of creation, unless it is open: then the one who opened it does.
    void OublierCreation();

    /// Opened in a display mode of its own. Throws platform::webview::WebViewError where the browser cannot be had.
    webimport::facile::Facile &Import();

    /// The tool windows made so far.
    std::vector<platform::controls::ToolWindow *> Outils();

private:
    std::optional<Splash> m_accueil;
    std::optional<search::FrmFind> m_recherche;
    std::optional<sheets::FicheAlbum> m_fiches;
    platform::scandialogs::ImageSource m_scanner;
    std::optional<pictures::atelier::Acquisition> m_atelier;
    std::optional<entry::Manuelle> m_creation;
    std::optional<webimport::facile::Facile> m_import;
};

} // namespace shell
