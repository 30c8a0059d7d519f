#include "Pop.h"

#include "Frmmain.h"
#include "Operations.h"

#include "store/Programme.h"

#include <QEvent>

namespace browser {

namespace {

using namespace platform::controls;

constexpr Extent kTaille{Twips(4500), Twips(1500)};
constexpr ControlRow kInvitation{"Invitation", 300, 870, 3900, 360, u"Cliquez ici pour revenir au livre."};

void Nommer(QObject &objet, const char *nom) {
    objet.setObjectName(QLatin1String(nom));
}

} // namespace

Pop::Pop(Frmmain &frm)
    : SkinnedWindow(QStringLiteral("Pop"), kTaille),
      Invitation(this, kInvitation),
      Menu1(this),
      Menu2(this),
      Ajouter(QStringLiteral("&Ajouter")),
      Modifier(QStringLiteral("&Modifier")),
      Supprimer(QStringLiteral("&Supprimer")),
      ModifPhoto(QStringLiteral("&Modifier la photo")),
      SuppPhoto(QStringLiteral("&Supprimer la photo")) {
    SetHeading(store::TitreProgramme.toString());
    Invitation.SetForeColor(Qt::white);
    Invitation.setAlignment(Qt::AlignCenter);
    Composer();
    BrancherMenus(frm);
    BrancherFenetre(frm);
}

void Pop::Composer() {
    Nommer(Menu1, "Menu1");
    Nommer(Menu2, "Menu2");
    Nommer(Ajouter, "Ajouter");
    Nommer(Modifier, "Modifier");
    Nommer(Supprimer, "Supprimer");
    Nommer(ModifPhoto, "ModifPhoto");
    Nommer(SuppPhoto, "SuppPhoto");
    // Only shown here: the lists take the keys.
    Modifier.setShortcut(Qt::Key_F2);
    Supprimer.setShortcut(Qt::Key_Delete);
    Menu1.addActions({&Ajouter, &Modifier, &Supprimer});
    Menu2.addActions({&ModifPhoto, &SuppPhoto});
}

void Pop::BrancherMenus(Frmmain &frm) {
    connect(&Ajouter, &QAction::triggered, this, [&frm] { AjouterRangee(frm); });
    connect(&Modifier, &QAction::triggered, this, [&frm] { ModifierRangee(frm); });
    connect(&Supprimer, &QAction::triggered, this, [&frm] { SupprimerRangee(frm); });
    connect(&ModifPhoto, &QAction::triggered, this, [&frm] { ModifierPhoto(frm); });
    connect(&SuppPhoto, &QAction::triggered, this, [&frm] { SupprimerPhoto(frm); });
}

void Pop::BrancherFenetre(Frmmain &frm) {
    connect(&frm.LFilms, &List::RightClicked, this, [this, &frm](const QPoint &lieu) {
        frm.Volet.Designer(kBas);
        MenuDesListes(frm, lieu);
    });
    connect(&frm.Liste, &List::RightClicked, this, [this, &frm](const QPoint &lieu) {
        ViserHaut(frm);
        if (RangeesModifiables()) {
            MenuDesListes(frm, lieu);
        }
    });
    connect(&frm.CadrePhoto, &Panel::RightClicked, this, [this](const QPoint &lieu) { Menu2.popup(lieu); });
}

void Pop::changeEvent(QEvent *event) {
    SkinnedWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        Q_EMIT EtatChange();
    }
}

// Without a window manager nothing minimises this window: it stays on the screen, and a click brings the program back.
void Pop::mousePressEvent(QMouseEvent * /*event*/) {
    setWindowState(Qt::WindowNoState);
}

void Pop::MenuDesListes(Frmmain &frm, const QPoint &lieu) {
    const bool choisie = frm.Volet.Liste().SelectedIndex() != 0;
    Ajouter.setEnabled(PeutAjouter(frm));
    Modifier.setEnabled(choisie);
    Supprimer.setEnabled(choisie);
    Menu1.popup(lieu);
}

} // namespace browser
