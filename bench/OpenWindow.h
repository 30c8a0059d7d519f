#pragma once

#include "GeneratedBook.h"

#include "platform/desktop/SingleInstance.h"
#include "search/FrmFind.h"
#include "sheets/FicheAlbum.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"
#include "store/Programme.h"

#include <QCoreApplication>

namespace bench {

/// The main window of a book, as the program starts it.
class OpenWindow {
public:
    explicit OpenWindow(const GeneratedBook &book)
        : m_instance((store::DefinirDossierProgramme(book.folder), QStringLiteral("bench"))) {
        shell::ChargerFrmmain(m_windows, m_instance);
        paint();
    }

    browser::Frmmain &window() { return m_windows.Principale; }

    search::FrmFind &searchWindow() {
        return m_windows.FenetreDe<search::FrmFind>(browser::Outil::Recherche);
    }

    sheets::FicheAlbum &sheet() { return m_windows.FenetreDe<sheets::FicheAlbum>(browser::Outil::Fiches); }

    static void paint() { QCoreApplication::processEvents(); }

private:
    platform::desktop::SingleInstance m_instance;
    shell::Fenetres m_windows;
};

} // namespace bench
