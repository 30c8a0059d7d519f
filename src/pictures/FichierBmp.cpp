#include "FichierBmp.h"

#include "platform/images/LoadPicture.h"
#include "store/Programme.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace pictures {

using platform::images::LoadPicture;
using platform::images::PictureError;
using platform::surface::Surface;

namespace {

[[noreturn]] void Refuser(const QString &chemin, const QString &raison) {
    const QString texte = u"Impossible d'écrire " + chemin + u" : " + raison;
    throw PictureError(texte.toStdString());
}

} // namespace

void EcrireBmp(const Surface &surface, const QString &chemin) {
    // Renamed over a device or a pipe, the new file would take its place.
    if (const QFileInfo ancien(chemin); ancien.exists() && !ancien.isFile()) {
        Refuser(chemin, QStringLiteral("ce n'est pas un fichier"));
    }
    QSaveFile fichier(chemin);
    // Where the folder takes no second file, the file itself is written.
    fichier.setDirectWriteFallback(true);
    if (!fichier.open(QIODevice::WriteOnly)) {
        Refuser(chemin, fichier.errorString());
    }
    QImageWriter bmp(&fichier, "BMP");
    if (!bmp.write(surface.picture())) {
        Refuser(chemin, fichier.error() == QFileDevice::NoError ? bmp.errorString() : fichier.errorString());
    }
    if (!fichier.commit()) {
        Refuser(chemin, fichier.errorString());
    }
}

QString CheminTempBmp() {
    return store::DossierProgramme() + QStringLiteral("/temp.bmp");
}

void PasserParTempBmp(const Surface &dessin, Surface &image) {
    EcrireBmp(dessin, CheminTempBmp());
    image.setPicture(LoadPicture(CheminTempBmp()));
}

} // namespace pictures
