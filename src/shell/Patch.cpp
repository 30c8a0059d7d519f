#include "Patch.h"

#include "Modes.h"
#include "OuvrirAdresse.h"

#include "browser/Frmmain.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/Keys.h"
#include "platform/controls/WhenPressed.h"
#include "platform/images/ResourcePicture.h"

#include <array>

namespace shell {

namespace {

using namespace platform::controls;

constexpr Extent kTaille{Twips(6000), Twips(3900)};

constexpr std::array kControles{
    ControlRow{"Icone", 150, 60, 480, 480, u"", u"", u"Emblème"},
    ControlRow{"Label1", 450, 840, 5100, 300, u"Choisissez les couleurs des fenêtres."},
    ControlRow{"Label2", 450, 2580, 5100, 300, u"Les autres fenêtres suivent au prochain démarrage."},
    ControlRow{"c(0)", 750, 1260, 3300, 360, u"Mode 1"},
    ControlRow{"c(1)", 750, 1680, 3300, 360, u"Mode 2"},
    ControlRow{"c(2)", 750, 2100, 3300, 360, u"Mode 3"},
    ControlRow{"OK", 2250, 3120, 1500, 420, u"OK"},
    ControlRow{"Quit", 5400, 120, 360, 360, u"", u"Fermer"},
};

constexpr std::array kTouches{KeyRow{"Quit", Qt::Key_Escape}};

} // namespace

Patch::Patch(browser::Frmmain &frm)
    : SkinnedWindow(QStringLiteral("Patch"), kTaille),
      Icone(this, rowNamed(kControles, "Icone")),
      Label1(this, rowNamed(kControles, "Label1")),
      Label2(this, rowNamed(kControles, "Label2")),
      c(this, kControles, "c"),
      OK(this, rowNamed(kControles, "OK")),
      Quit(this, rowNamed(kControles, "Quit")) {
    SetHeading(QStringLiteral("Affichage"));
    SetMode(frm.Mode());
    Peindre(frm);
    c(ModeAffichage()).SetValue(true);
    Brancher(frm);
}

void Patch::Peindre(const browser::Frmmain &frm) {
    Icone.SetPicture(platform::images::programIcon().toImage());
    for (Label *label : {&Label1, &Label2}) {
        label->setFont(interfaceFont(Face::Verdana, 8.25));
        label->SetForeColor(Qt::white);
    }
    c.ForEach([](OptionButton &option) {
        option.setFont(interfaceFont(Face::Verdana, 9));
        option.SetForeColor(Qt::white);
    });
    OK.SetLook(Look::Command);
    OK.SetForeColor(Qt::black);
    Quit.CopyPictures(frm.Btn_Quit);
}

int Patch::ModeChoisi() const {
    constexpr int kDernier = 2;
    for (int mode = 0; mode < kDernier; ++mode) {
        if (c(mode).Value()) {
            return mode;
        }
    }
    return kDernier;
}

void Patch::Brancher(browser::Frmmain &frm) {
    connect(&OK, &Ribbon::Entered, this, [this] { OK.SetForeColor(Qt::blue); });
    connect(&OK, &Ribbon::Exited, this, [this] { OK.SetForeColor(Qt::black); });
    whenPressed(OK, [this, &frm] {
        EnregistrerMode(ModeChoisi());
        frm.SetMode(ModeAffichage());
    });
    whenPressed(Quit, [this] {
        Quit.Release();
        Unload();
    });
    connect(this, &SkinnedWindow::CloseRequested, this, &Patch::Unload);
    pressByKeys(*this, kTouches);
    onKey(*this, Qt::Key_F1, [this] { OuvrirAdresse(*this, u"aide/reglages.htm"); });
}

} // namespace shell
