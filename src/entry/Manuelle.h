#pragma once

#include "pictures/ChoisirImage.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/DropList.h"
#include "platform/controls/Labels.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RibbonButton.h"
#include "platform/controls/RichTextBox.h"
#include "platform/controls/ScrollPanel.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/ToolWindow.h"
#include "store/CreationRecette.h"

#include <vector>

namespace browser {
class Frmmain;
}

namespace entry {

/// The window in which a new recipe is typed. It holds controls; what it does is in Listes.h (the drop lists that open
/// over the fields) and CreerRecette.h (the save). It asks to be closed by CloseRequested of its Quit button, and
/// unloads itself then.
class Manuelle : public platform::controls::ToolWindow {
    Q_OBJECT

public:
    /// Reads the lists from the book; throws DatabaseError.
    explicit Manuelle(browser::Frmmain &frm);

    using TextBox = platform::controls::TextBox;
    using DropList = platform::controls::DropList;
    template <class Control>
    using Array = platform::controls::ControlArray<Control>;

    /// The main window, to which the recipes go.
    browser::Frmmain &Principale;

    platform::controls::ScrollPanel Scroll;
    Array<platform::controls::Label> Libelle;

    TextBox TitreRecette;
    /// Cost, difficulty, wine advice, cooking time, persons, dish type.
    Array<TextBox> Liste;
    /// Preparation time.
    TextBox DReal;
    /// The ingredient lines: quantity, measure, ingredient.
    Array<TextBox> Qte, Qte2, Ingre;
    /// Method, further remarks.
    Array<platform::controls::RichTextBox> Saisie;
    platform::controls::Panel CadrePhoto;
    platform::controls::Image Photo;

    DropList LCout, LDiff, LVin, LDureeCuisson, LPers, LPlat, LDureeReal;
    /// Each serves a column of the lines; its tag is the index of the line it is at.
    DropList LQte, LQte2, LIngre;

    platform::controls::Label Rappel;
    platform::controls::Ribbon Creer;

    /// Whether the last press of Creer passed the checks.
    bool creationFaite = false;

    /// The drop lists in the order in which they are hidden.
    std::vector<DropList *> Listes();

    /// Takes what the fields hold now for the beginning of a recipe of which nothing is typed yet.
    void NoterDepart();

    /// Empties both texts; what is typed next has the colour of its box.
    void ViderSaisies();

    /// Shows the caption of the frame, or nothing behind the picture.
    void LegenderPhoto();

protected:
    bool focusNextPrevChild(bool next) override;
    bool MayEscape() override;

private:
    void ChargerLignes();
    void Peindre();
    void Brancher();
    pictures::CadreImage CadreDeLaPhoto();
    void ChoisirPhoto();
    void DeposerPhoto(const QString &fichier);
    void Poser(pictures::ChoixImage choix);
    void Quitter();
    std::vector<QWidget *> Ordre();

    store::RecetteSaisie m_depart;
};

} // namespace entry
