#include "Splash.h"

#include "OuvrirAdresse.h"

#include "platform/controls/Fonts.h"
#include "platform/controls/WhenPressed.h"
#include "platform/images/ResourcePicture.h"
#include "platform/settings/Conversion.h"
#include "store/Configuration.h"
#include "store/Programme.h"
#include "store/Reglages.h"

#include <array>

namespace shell {

namespace {

using namespace platform::controls;

constexpr Extent kTaille{Twips(9000), Twips(6900)};

constexpr std::array kControles{
    ControlRow{"Embleme", 450, 900, 1800, 1800, u"", u"", u"Emblème de Savorel"},
    ControlRow{"L", 2550, 1050, 6000, 600, u"Savorel"},
    ControlRow{"Label1", 2550, 1650, 6000, 900, u"Le livre de recettes que l'on garde vingt ans"},
    ControlRow{"MesSofts(0)", 450, 3150, 3900, 480, u"", u"", u"Lien"},
    ControlRow{"MesSofts(1)", 4650, 3150, 3900, 480, u"", u"", u"Lien"},
    ControlRow{"MesSofts(2)", 450, 3780, 3900, 480, u"", u"", u"Lien"},
    ControlRow{"MesSofts(3)", 4650, 3780, 3900, 480, u"", u"", u"Lien"},
    ControlRow{"MesSofts(4)", 450, 4410, 3900, 480, u"", u"", u"Lien"},
    ControlRow{"MesSofts(5)", 4650, 4410, 3900, 480, u"", u"", u"Lien"},
    ControlRow{"Orvane", 450, 5190, 8100, 480, u"Site de l'auteur", u"Visiter le site de l'auteur"},
    ControlRow{"SphashAuto", 450, 6060, 8100, 360, u"Afficher cet écran au démarrage"},
};

} // namespace

Splash::Splash()
    : ToolWindow(QStringLiteral("Splash"), kTaille),
      Embleme(this, rowNamed(kControles, "Embleme")),
      L(this, rowNamed(kControles, "L")),
      Label1(this, rowNamed(kControles, "Label1")),
      MesSofts(this, kControles, "MesSofts"),
      Orvane(this, rowNamed(kControles, "Orvane")),
      SphashAuto(this, rowNamed(kControles, "SphashAuto")) {
    SetHeading(store::TitreProgramme.toString());
    Peindre();
    SphashAuto.SetValue(platform::settings::ToBoolean(store::LireReglage(store::kSplashAutoCoche)));
    Brancher();
    // Enter goes on to the book; the first button of the window would minimise it.
    Quit.setFocus();
}

void Splash::Peindre() {
    Embleme.SetPicture(
        platform::images::resourcePicture(QStringLiteral(":/icones/savorel-256.argb")).toImage());
    L.setFont(interfaceFont(Face::Verdana, 24, true));
    Label1.setFont(interfaceFont(Face::Verdana, 10));
    for (Label *label : {&L, &Label1}) {
        label->SetForeColor(Qt::white);
    }
    for (int index = 0; index < MesSofts.Count(); ++index) {
        const store::Lien &lien = store::kLiens[static_cast<std::size_t>(index)];
        MesSofts(index).SetLook(Look::Value);
        MesSofts(index).SetCaption(lien.titre.toString());
        MesSofts(index).setToolTip(lien.description.toString());
    }
    Orvane.SetLook(Look::Value);
    SphashAuto.SetForeColor(Qt::white);
}

void Splash::Brancher() {
    connect(this, &SkinnedWindow::CloseRequested, this, &Splash::Unload);
    connect(&SphashAuto, &QCheckBox::toggled, this, [](bool coche) {
        store::EnregistrerReglage(store::kSplashAuto, platform::settings::ToText(coche));
    });
    for (int index = 0; index < MesSofts.Count(); ++index) {
        whenPressed(MesSofts(index), [this, index] {
            OuvrirAdresse(*this, store::kLiens[static_cast<std::size_t>(index)].adresse);
        });
    }
    whenPressed(Orvane, [this] { OuvrirAdresse(*this, store::kAuteurSite); });
}

} // namespace shell
