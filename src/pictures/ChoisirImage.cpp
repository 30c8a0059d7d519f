#include "ChoisirImage.h"

#include "AjusterPhoto.h"

#include "platform/dialogs/FileDialog.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/images/LoadPicture.h"
#include "store/Programme.h"

#include <QDir>
#include <QFileInfo>

namespace pictures {

namespace {

namespace dialogs = platform::dialogs;

/// The folder last chosen from, or where pictures wait at first, as far as they are there.
QString PremierDossier(const QString &dossier) {
    const QString images = store::DossierProgramme() + QStringLiteral("/image");
    for (const QString &possible : {dossier, images}) {
        if (!possible.isEmpty() && QFileInfo(possible).isDir()) {
            return possible;
        }
    }
    return store::DossierProgramme();
}

} // namespace

ChoixImage ChoisirImage(const CadreImage &cadre, QString &dossier) {
    const QString fichier =
        dialogs::ShowOpen(&cadre.fenetre, QStringLiteral("Chercher une image"),
                          QStringLiteral("Tous les fichiers images (*.bmp,*.jpg,*.jpeg,*.gif)|"
                                         "*.bmp;*.jpg;*.jpeg;*.gif"),
                          {PremierDossier(dossier)});
    if (fichier.isEmpty()) {
        return ChoixImage::Abandonnee;
    }
    dossier = QFileInfo(fichier).path();
    return PoserImage(cadre, fichier);
}

ChoixImage PoserImage(const CadreImage &cadre, const QString &fichier) {
    QImage image;
    try {
        image = platform::images::LoadPicture(fichier);
    } catch (const platform::images::PictureError &erreur) {
        dialogs::Message(&cadre.fenetre, store::TitreProgramme.toString(), QString::fromUtf8(erreur.what()),
                         dialogs::Icon::Exclamation);
        return ChoixImage::Illisible;
    }
    cadre.photo.SetTag(QDir::toNativeSeparators(QFileInfo(fichier).absoluteFilePath()));
    MontrerPhoto(cadre.cadre, cadre.photo, image);
    return ChoixImage::Faite;
}

} // namespace pictures
