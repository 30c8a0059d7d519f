#include "Acquisition.h"

#include "Scan.h"

#include "platform/controls/FileDrop.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/WhenPressed.h"
#include "platform/images/ResourcePicture.h"

#include <QShortcut>

#include <array>

namespace pictures::atelier {

namespace {

using namespace platform::controls;

constexpr std::array kControles{
    ControlRow{"Label1", 1920, 2400, 10875, 7755},
    ControlRow{"CadreListe", 2040, 2520, 10680, 7545},
    ControlRow{"Cadre", 2040, 2520, 10635, 7515},
    ControlRow{"PhotoScan", 240, 8760, 975, 975, u"", u"", u"Image"},
    ControlRow{"PbCadre", 1920, 10120, 10900, 75},
    ControlRow{"Pb", 1920, 10120, 3255, 75, u"", u"", u"Avancement"},
    ControlRow{"Btn_ScanS(0)", 240, 2760, 1515, 1965, u"Rotation à\u00A0gauche",
               u"Tourner l'image d'un quart de tour vers la gauche"},
    ControlRow{"Btn_ScanS(1)", 240, 6000, 1515, 2085, u"Rotation à\u00A0droite",
               u"Tourner l'image d'un quart de tour vers la droite"},
    ControlRow{"Btn_ScanS(2)", 240, 1680, 1395, 900, u"Ouvrir", u"Ouvrir un fichier image"},
    ControlRow{"Btn_ScanS(3)", 13080, 9000, 1635, 1140, u"Enregistrer",
               u"Enregistrer l'image dans un fichier"},
    ControlRow{"Btn_ScanS(4)", 13080, 6120, 1635, 1965, u"Miroir horizontal",
               u"Échanger la gauche et la droite"},
    ControlRow{"Btn_ScanS(5)", 13200, 2880, 1515, 1965, u"Miroir vertical", u"Échanger le haut et le bas"},
    ControlRow{"Btn_ScanS(6)", 6480, 1440, 1995, 795, u"Numériser", u"Acquérir une image du scanner"},
};

constexpr int kOuvrir = 2;
constexpr int kNumeriser = 6; // the last one

using Action = void (*)(Acquisition &);

constexpr std::array<Action, 7> kActions{
    RotationGauche,
    RotationDroite,
    [](Acquisition &fenetre) {
        OuvrirImage(fenetre);
        if (!fenetre.NomDeFichier.isEmpty()) {
            fenetre.PermettreOperations();
        }
    },
    [](Acquisition &fenetre) {
        if (SauverImage(fenetre)) {
            fenetre.AttendreUneImage();
        }
    },
    MiroirHorizontal,
    MiroirVertical,
    AcquerirScanner,
};

} // namespace

Acquisition::Acquisition(platform::scandialogs::ImageSource &scanner)
    : ToolWindow(QStringLiteral("Acquisition"), kWindowSize),
      Label1(this, rowNamed(kControles, "Label1")),
      CadreListe(this, rowNamed(kControles, "CadreListe")),
      Cadre(this, rowNamed(kControles, "Cadre")),
      PhotoScan(this, rowNamed(kControles, "PhotoScan")),
      PbCadre(this, rowNamed(kControles, "PbCadre")),
      Pb(this, rowNamed(kControles, "Pb")),
      Btn_ScanS(this, kControles, "Btn_ScanS"),
      Scanner(scanner) {
    SetHeading(QStringLiteral("Acquisition des images"));
    Quit.setToolTip(QStringLiteral("Revenir au menu principal"));
    Peindre();
    Brancher();
    AjusterPhotoScan(*this);
}

void Acquisition::Peindre() {
    SetStrips({Label1.Place()});
    CadreListe.SetBackColor(kListGround);
    Cadre.setFont(interfaceFont(Face::Verdana, 9.75));
    Cadre.SetForeColor(QColor(0x1d2740));
    PbCadre.SetBackColor(QColor(0x24324f));
    Pb.SetBackColor(QColor(0xFFFFC0));
    for (Panel *barre : {&PbCadre, &Pb}) {
        barre->SetSquare();
        barre->hide();
    }
    for (int index = 0; index < Btn_ScanS.Count(); ++index) {
        Ribbon &bouton = Btn_ScanS(index);
        bouton.SetLook(Look::Tile);
        bouton.SetPicture(
            platform::images::resourcePicture(QStringLiteral(":/icones/atelier-%1.argb").arg(index)));
        bouton.setFont(interfaceFont(Face::Verdana, 9.75));
        bouton.SetForeColor(Qt::darkBlue);
    }
}

void Acquisition::Brancher() {
    connect(this, &SkinnedWindow::CloseRequested, this, &Acquisition::Unload);
    for (int index = 0; index < Btn_ScanS.Count(); ++index) {
        BrancherBouton(index);
    }
    // As they lie: from the upper left down, then from the upper right down.
    QWidget *avant = &Btn_ScanS(kOuvrir);
    for (const int index : {kNumeriser, 0, 1, 5, 4, 3}) {
        setTabOrder(avant, &Btn_ScanS(index));
        avant = &Btn_ScanS(index);
    }
    setTabOrder(avant, &Mini);
    setTabOrder(&Mini, &Quit);
    Btn_ScanS(kOuvrir).setFocus();
    connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, this,
            [this] { CollerImage(*this); });
    // Dragging the picture must no more move the window than dragging its frame does.
    PhotoScan.setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *depot = new FileDrop(*this);
    connect(
        depot, &FileDrop::Dropped, this,
        [this](const QString &fichier) {
            OuvrirFichier(*this, fichier);
            PermettreOperations();
        },
        Qt::QueuedConnection);
}

void Acquisition::BrancherBouton(int index) {
    Ribbon &bouton = Btn_ScanS(index);
    whenPressed(bouton, [this, index] { Presser(index); });
    connect(&bouton, &Ribbon::Entered, this, [&bouton] { bouton.SetForeColor(Qt::red); });
    connect(&bouton, &Ribbon::Exited, this, [&bouton] { bouton.SetForeColor(Qt::darkBlue); });
}

void Acquisition::Presser(int index) {
    kActions.at(static_cast<std::size_t>(index))(*this);
    Btn_ScanS(index).SetForeColor(Qt::black);
}

void Acquisition::PermettreOperations() {
    for (int index = 0; index < kNumeriser; ++index) {
        Btn_ScanS(index).setEnabled(true);
    }
}

void Acquisition::AttendreUneImage() {
    for (int index = 0; index < kNumeriser; ++index) {
        Btn_ScanS(index).setEnabled(index == kOuvrir);
    }
}

} // namespace pictures::atelier
