#pragma once

#include "platform/controls/Picture.h"

namespace pictures {

/// A picture with its frame, in the window that shows it.
struct CadreImage {
    QWidget &fenetre;
    platform::controls::Extent cadre;
    platform::controls::Image &photo;
};

/// How a choice ended: with a picture shown, without a file, or with a file that is no picture.
enum class ChoixImage { Faite, Abandonnee, Illisible };

/// Lets the cook choose a picture file and shows it as PoserImage does. The dialog starts in `dossier` or, while that is
/// empty, in "image" of the program's folder; `dossier` becomes the folder of the chosen file.
ChoixImage ChoisirImage(const CadreImage &cadre, QString &dossier);

/// Shows a picture file in its frame; the tag of the photo becomes the full path of the file. A file that is no
/// picture is reported in a message box over the window and changes nothing.
ChoixImage PoserImage(const CadreImage &cadre, const QString &fichier);

} // namespace pictures
