#pragma once

#include "platform/controls/ControlArray.h"
#include "platform/controls/Labels.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Options.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/ToolWindow.h"

#include "store/Schema.h"

#include <QButtonGroup>

namespace browser {
class Frmmain;
}

namespace search {

/// The search on several criteria. It holds the controls; what it does is in Recherche.h. The rows found stay until
/// the next search, also while the window is closed.
class FrmFind : public platform::controls::ToolWindow {
    Q_OBJECT

public:
    /// @param frm the main window, in which the rows found are brought up; it must outlive this one
    explicit FrmFind(browser::Frmmain &frm);

    using Label = platform::controls::Label;
    using List = platform::controls::List;
    using Ribbon = platform::controls::Ribbon;
    using TextBox = platform::controls::TextBox;
    using CheckBox = platform::controls::CheckBox;
    using OptionButton = platform::controls::OptionButton;
    template <class Control>
    using Array = platform::controls::ControlArray<Control>;

    Array<Label> Libelle;
    Array<OptionButton> Opt_Liste;
    Array<OptionButton> Choix;
    TextBox Saisie;
    /// Cost and difficulty: whether to restrict the recipes by it, and to which class; a row's place is its code.
    Array<CheckBox> Chk;
    Array<List> LChk;
    Ribbon Creer;
    List Liste;
    /// How many rows were found.
    Label LNombre;
    /// What to do with them, or what was done last.
    Label LSuite;

    /// The table searched.
    const store::Table *TableRecherche = nullptr;
    /// Picture number of the rows found.
    int IconeRecherche = 0;

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// The keyboard goes from the text to the results, if there are any.
    void AllerAuxResultats();
    void Peindre();
    void PreparerListes(const browser::Frmmain &frm);
    void Brancher(browser::Frmmain &frm);

    QButtonGroup m_tables, m_facons; // only one of a group is chosen
};

} // namespace search
