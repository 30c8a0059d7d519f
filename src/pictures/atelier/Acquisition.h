#pragma once

#include "platform/controls/ControlArray.h"
#include "platform/controls/Labels.h"
#include "platform/controls/Picture.h"
#include "platform/controls/ToolWindow.h"
#include "platform/surface/Surface.h"

namespace platform::scandialogs {
class ImageSource;
}

namespace pictures::atelier {

/// The picture workshop: a picture comes from a file, a scanner, the clipboard or another program, is turned, and is
/// saved as a file. It closes itself, not without a question where the picture is not saved; a new one has no picture.
class Acquisition : public platform::controls::ToolWindow {
    Q_OBJECT

public:
    /// The scanner outlives the window, as the device chosen does.
    explicit Acquisition(platform::scandialogs::ImageSource &scanner);

    platform::controls::Label Label1;
    platform::controls::Panel CadreListe, Cadre;
    /// What is seen, in its full size; its tag is the path of the file last opened.
    platform::controls::Image PhotoScan;
    platform::controls::Panel PbCadre, Pb;
    /// 0 and 1 turn to the left and to the right, 2 opens, 3 saves, 4 and 5 mirror, 6 scans.
    platform::controls::ControlArray<platform::controls::Ribbon> Btn_ScanS;

    /// Source and destination of the operations, refilled by each.
    platform::surface::Surface PhotoScan1, PhotoScan2;
    /// The file name that the file dialogs hold from one to the next.
    QString NomDeFichier;
    platform::scandialogs::ImageSource &Scanner;
    /// The picture is in no file as it is shown.
    bool AEnregistrer = false;
    /// The user has left, which stops a turn.
    bool Quittee = false;

    /// Enables what can be done with a picture: all buttons but 6, which never changes.
    void PermettreOperations();
    /// Disables it, but for opening the next picture.
    void AttendreUneImage();

private:
    void Peindre();
    void Brancher();
    void BrancherBouton(int index);
    void Presser(int index);
    void Quitter();
};

} // namespace pictures::atelier
