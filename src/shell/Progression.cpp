#include "Progression.h"

#include "Modes.h"

#include "platform/controls/Fonts.h"
#include "platform/images/ResourcePicture.h"
#include "store/Programme.h"

#include <QCoreApplication>

#include <array>

namespace shell {

namespace {

using namespace platform::controls;

constexpr Extent kTaille{Twips(6000), Twips(2100)};

constexpr std::array kControles{
    ControlRow{"Icone", 150, 60, 480, 480, u"", u"", u"Emblème"},
    ControlRow{"Label1", 450, 840, 5100, 300},
    ControlRow{"Pb", 450, 1290, 5100, 330, u"", u"", u"Avancement"},
};

} // namespace

Progression::Progression(const QWidget &sur, const QString &travail)
    : SkinnedWindow(QStringLiteral("Progression"), kTaille),
      Icone(this, rowNamed(kControles, "Icone")),
      Label1(this, rowNamed(kControles, "Label1")),
      Pb(this, rowNamed(kControles, "Pb")) {
    SetHeading(store::TitreProgramme.toString());
    SetMode(ModeAffichage());
    Icone.SetPicture(platform::images::programIcon().toImage());
    Label1.SetCaption(travail);
    Label1.setFont(interfaceFont(Face::Verdana, 9));
    Label1.SetForeColor(Qt::white);
    Pb.SetBackColor(Qt::white);
    setWindowModality(Qt::ApplicationModal);
    CenterOn(sur);
    show();
    Montrer(0, 0);
}

void Progression::Montrer(qint64 faites, qint64 total) {
    if (total > 0) {
        Pb.SetFloodPercent(100.0 * static_cast<double>(faites) / static_cast<double>(total));
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace shell
