#include "FichierBmp.h"

#include "platform/files/FileError.h"
#include "platform/images/LoadPicture.h"
#include "store/Programme.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

#include <cerrno>

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
    if (surface.picture().isNull()) {
        Refuser(chemin, QStringLiteral("il n'y a pas d'image"));
    }
    // Renamed over a device or a pipe, the new file would take its place.
    if (const QFileInfo ancien(chemin); ancien.exists() && !ancien.isFile()) {
        Refuser(chemin, QStringLiteral("ce n'est pas un fichier"));
    }
    QSaveFile fichier(chemin);
    // Where the folder takes no second file, the file itself is written.
    fichier.setDirectWriteFallback(true);
    QByteArray octets;
    QBuffer memoire(&octets);
    if (!QImageWriter(&memoire, "BMP").write(surface.picture())) {
        Refuser(chemin, QStringLiteral("cette image ne peut pas être enregistrée"));
    }
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size() || !fichier.flush() ||
        !fichier.commit()) {
        Refuser(chemin, platform::files::reasonOf(errno));
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
