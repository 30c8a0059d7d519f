#pragma once

#include "Modes.h"

#include "browser/TableDesOutils.h"
#include "platform/controls/ToolWindow.h"

#include <memory>
#include <optional>

namespace shell {

class Fenetres;

/// What a tool does: it opens a window, or acts at once. All that the program knows of a tool window stands in its row.
struct Commande {
    using ToolWindow = platform::controls::ToolWindow;

    browser::Outil outil{};
    /// Makes the window; null for a tool that acts at once. Throws what the constructor throws.
    std::unique_ptr<ToolWindow> (*faire)(Fenetres &) = nullptr;
    /// What a tool without a window does.
    void (*agir)(Fenetres &) = nullptr;
    /// Done with the window before each press shows it.
    void (*preparer)(ToolWindow &) = nullptr;
    /// The page of the help on the window.
    QStringView aide{};
    /// The tool whose press, as the last one, brings the window back after a minimise; its own where empty.
    std::optional<browser::Outil> retour{};
    /// Gives the display mode in which the window is made.
    int (*mode)() = ModeAffichage;
    /// Whether the window is made each time it is opened, or stays for the run.
    bool ephemere = false;
    /// Whether the main window is hidden meanwhile.
    bool remplace = true;

    constexpr browser::Outil Retour() const { return retour.value_or(outil); }
};

/// What that tool does.
const Commande &CommandeDe(browser::Outil outil);

/// The command whose window comes back after a minimise for a value of FenetreOuverte; null when none does.
const Commande *CommandeDuRetour(int fenetreOuverte);

} // namespace shell
