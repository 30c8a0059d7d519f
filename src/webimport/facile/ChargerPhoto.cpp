#include "ChargerPhoto.h"

#include "Facile.h"

#include "platform/images/LoadPicture.h"
#include "platform/webview/Engine.h"
#include "store/Programme.h"

#include <QFile>
#include <QUrl>

#include <exception>

namespace webimport::facile {

namespace {

using namespace platform::controls;

/// A file that is there already is written over from its beginning, and keeps what is longer.
void EcrirePhoto(const QByteArray &octets) {
    QFile fichier(CheminPhotoRecue());
    if (fichier.open(QIODevice::ReadWrite)) {
        fichier.write(octets);
    }
}

QImage LirePhoto() {
    try {
        return platform::images::LoadPicture(CheminPhotoRecue());
    } catch (const platform::images::PictureError &) {
        return {};
    }
}

} // namespace

void ChargerPhoto(Facile &fenetre) {
    fenetre.MontrerPhoto({});
    const QUrl adresse(fenetre.NomPhoto.Text());
    if (auto octets = fenetre.Moteur.openUrl(adresse, store::DossierProgramme())) {
        fenetre.OctetsPhoto = std::move(*octets);
    }
    EcrirePhoto(fenetre.OctetsPhoto);
    fenetre.MontrerPhoto(LirePhoto());
    fenetre.Photo.SetTag(fenetre.NomPhoto.Text());
}

} // namespace webimport::facile
