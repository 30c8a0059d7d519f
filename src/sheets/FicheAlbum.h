#pragma once

#include "platform/controls/ControlArray.h"
#include "platform/controls/Labels.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RichTextBox.h"
#include "platform/controls/ScrollPanel.h"
#include "platform/controls/ToolWindow.h"
#include "platform/dialogs/PrintTarget.h"

namespace browser {
class Frmmain;
}

namespace sheets {

/// The window "Fiche Recette": one recipe as a page, to be read, walked through and printed. It reads no database: it
/// copies from the detail of the main window, which it makes follow. The ribbons of the page are plain text fields.
class FicheAlbum : public platform::controls::ToolWindow {
    Q_OBJECT

public:
    explicit FicheAlbum(browser::Frmmain &frm);

    /// Width between the edges of the window; on paper it fills the printable width.
    static constexpr platform::controls::Twips kLargeurInterieure{15300};

    /// Shows the recipe that the main window shows. Throws std::out_of_range when the main window's list has no
    /// selected row.
    void ChargerFiche();

    using Label = platform::controls::Label;
    using Image = platform::controls::Image;
    using Panel = platform::controls::Panel;
    using Ribbon = platform::controls::Ribbon;
    using ScrollPanel = platform::controls::ScrollPanel;
    using RichTextBox = platform::controls::RichTextBox;
    template <class Control>
    using Array = platform::controls::ControlArray<Control>;

    Panel CadreBouton;
    Array<Ribbon> Navi;
    Label Avis;
    Array<ScrollPanel> Scroll;

    // The page, in Scroll(0).
    Panel Recette;
    Panel CadrePhoto;
    Image Photo;
    Array<Label> Libelle;
    Ribbon Cout, Diff, Teneur;
    Array<Ribbon> Data;
    Array<Ribbon> Qte, Mesure, Ingre;
    RichTextBox Prepa, Deco;

    /// The preparation time, which is only printed.
    QString DureeReal;

private:
    void Peindre();
    void Brancher();
    void RemplirFiche();
    void CopierLignes();
    void Empiler();
    void MontrerPhoto();
    void MontrerTitre(const QString &titre);
    void OuvrirAuxBouts(int index, int nombre);
    void Naviguer(int pas);
    void ImprimerFiche();
    void Annoncer(const QString &avis);

    browser::Frmmain &m_frm;
    platform::dialogs::PrintTarget m_imprimante;
};

} // namespace sheets
