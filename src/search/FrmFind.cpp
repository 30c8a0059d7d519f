#include "FrmFind.h"

#include "Recherche.h"

#include "browser/Frmmain.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/WhenPressed.h"
#include "store/Textes.h"
#include "store/Vocabulaires.h"

#include <QShortcut>

#include <array>
#include <span>

namespace search {

namespace {

using namespace platform::controls;

constexpr Extent kTaille{Twips(10800), Twips(7650)};

/// Ground of the criteria.
constexpr Rectangle kCriteres{Twips(240), Twips(780), Twips(4440), Twips(6630)};

constexpr std::array kControles{
    ControlRow{"Libelle(0)", 450, 900, 4020, 300, u"Rechercher parmi"},
    ControlRow{"Opt_Liste(0)", 600, 1230, 3870, 300, u"les recettes"},
    ControlRow{"Opt_Liste(1)", 600, 1560, 3870, 300, u"les durées de cuisson"},
    ControlRow{"Opt_Liste(2)", 600, 1890, 3870, 300, u"les nombres de personnes"},
    ControlRow{"Opt_Liste(3)", 600, 2220, 3870, 300, u"les ingrédients"},
    ControlRow{"Opt_Liste(4)", 600, 2550, 3870, 300, u"les durées de réalisation"},
    ControlRow{"Libelle(1)", 450, 2970, 4020, 300, u"dont le nom"},
    ControlRow{"Choix(0)", 600, 3300, 1860, 300, u"commence par"},
    ControlRow{"Choix(1)", 2550, 3300, 1860, 300, u"contient"},
    ControlRow{"Saisie", 450, 3690, 4020, 375, u"", u"Entrée lance la recherche", u"Texte à rechercher"},
    ControlRow{"Chk(0)", 450, 4260, 1920, 300, u"Coût", u"Seulement les recettes de ce coût"},
    ControlRow{"LChk(0)", 450, 4590, 1920, 2040, u"", u"", u"Coût"},
    ControlRow{"Chk(1)", 2550, 4260, 1920, 300, u"Difficulté", u"Seulement les recettes de cette difficulté"},
    ControlRow{"LChk(1)", 2550, 4590, 1920, 2040, u"", u"", u"Difficulté"},
    ControlRow{"Creer", 450, 6795, 4020, 450, u"Rechercher", u"Lancer la recherche"},
    ControlRow{"Liste", 4920, 780, 5640, 5940, u"", u"", u"Résultats de la recherche"},
    ControlRow{"LNombre", 4920, 6795, 5640, 300},
    ControlRow{"LSuite", 4920, 7110, 5640, 300},
};

void RemplirClasses(List &liste, std::span<const QStringView> classes) {
    liste.SetColumn(QStringLiteral("Titre"), liste.Width());
    List::Loading lignes(liste);
    for (const QStringView classe : classes) {
        const QString cle = store::CleDeListe(lignes.Count());
        lignes.AddDistinct(cle, classe.toString(), 0);
    }
}

} // namespace

FrmFind::FrmFind(browser::Frmmain &frm)
    : ToolWindow(QStringLiteral("FrmFind"), kTaille),
      Libelle(this, kControles, "Libelle"),
      Opt_Liste(this, kControles, "Opt_Liste"),
      Choix(this, kControles, "Choix"),
      Saisie(this, rowNamed(kControles, "Saisie")),
      Chk(this, kControles, "Chk"),
      LChk(this, kControles, "LChk"),
      Creer(this, rowNamed(kControles, "Creer")),
      Liste(this, rowNamed(kControles, "Liste")),
      LNombre(this, rowNamed(kControles, "LNombre")),
      LSuite(this, rowNamed(kControles, "LSuite")) {
    SetHeading(QStringLiteral("Recherche multicritères"));
    Opt_Liste.ForEach([this](OptionButton &option) { m_tables.addButton(&option); });
    Choix.ForEach([this](OptionButton &option) { m_facons.addButton(&option); });
    setTabOrder(&Chk(0), &LChk(0));
    Peindre();
    PreparerListes(frm);
    Brancher(frm);
    Opt_Liste(0).SetValue(true);
    Choix(0).SetValue(true);
}

void FrmFind::Peindre() {
    SetStrips({kCriteres});
    Quit.setToolTip(QStringLiteral("Revenir au menu principal"));
    Quit.setAccessibleName(Quit.toolTip());
    const auto peindre = [](auto &controle) {
        controle.setFont(interfaceFont(Face::Verdana, 8.25));
        controle.SetForeColor(kInk);
    };
    Opt_Liste.ForEach(peindre);
    Choix.ForEach(peindre);
    Chk.ForEach(peindre);
    Libelle.ForEach([](Label &label) {
        label.setFont(interfaceFont(Face::Verdana, 9, true));
        label.SetForeColor(kInk);
    });
    Creer.SetLook(Look::Command);
    Creer.SetForeColor(Qt::black);
    LNombre.setFont(interfaceFont(Face::Verdana, 9, true));
    LSuite.setFont(interfaceFont(Face::Verdana, 8.25));
    for (Label *label : {&LNombre, &LSuite}) {
        label->SetForeColor(Qt::white);
    }
}

void FrmFind::PreparerListes(const browser::Frmmain &frm) {
    LChk.ForEach([&frm](List &liste) {
        liste.setFont(frm.Liste.font());
        liste.SetBackColor(kListGround);
    });
    RemplirClasses(LChk(0), store::Cout);
    RemplirClasses(LChk(1), store::Difficulte);
    Liste.SetBackColor(kListGround);
    Liste.SetImageList(frm.Img());
    Liste.SetColumn(QStringLiteral("Titre"), Liste.Width() - Twips(200));
}

void FrmFind::Brancher(browser::Frmmain &frm) {
    connect(this, &SkinnedWindow::CloseRequested, this, &FrmFind::Unload);
    for (int index = 0; index < Opt_Liste.Count(); ++index) {
        connect(&Opt_Liste(index), &OptionButton::toggled, this, [this, index](bool choisie) {
            if (choisie) {
                ChoisirTable(*this, index);
            }
        });
    }
    for (int index = 0; index < Chk.Count(); ++index) {
        connect(&Chk(index), &CheckBox::toggled, this, [this, index](bool cochee) {
            if (cochee && LChk(index).SelectedIndex() == 0) {
                LChk(index).Select(1);
            }
        });
    }
    connect(&Saisie, &TextBox::returnPressed, this, [this] { Creer.SetValue(true); });
    const auto *bas = new QShortcut(Qt::Key_Down, &Saisie, nullptr, nullptr, Qt::WidgetShortcut);
    connect(bas, &QShortcut::activated, this, &FrmFind::AllerAuxResultats);
    whenPressed(Creer, [this] { Rechercher(*this); });
    connect(&Liste, &List::DblClick, this, [this, &frm] { MontrerResultat(*this, frm); });
}

void FrmFind::AllerAuxResultats() {
    if (Liste.Count() == 0) {
        return;
    }
    Liste.setFocus();
    if (Liste.SelectedIndex() == 0) {
        Liste.Select(1);
    }
}

void FrmFind::showEvent(QShowEvent *event) {
    ToolWindow::showEvent(event);
    Saisie.setFocus();
    Saisie.selectAll();
}

} // namespace search
