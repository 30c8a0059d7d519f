#include "EnregistrerPhoto.h"

#include "platform/files/WholeFile.h"
#include "store/CopieFichier.h"
#include "store/Programme.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

namespace pictures {

namespace {

constexpr int kQualite = 90;

/// Short, since the photo's own name may have the greatest length already.
const QString kBrouillon = QStringLiteral(".photo-");

QString DossierDesPhotos() {
    return store::DossierProgramme() + QStringLiteral("/photos/");
}

/// A JPEG has no transparency: without this, transparent becomes black.
QImage SurBlanc(const QImage &image) {
    if (!image.hasAlphaChannel()) {
        return image;
    }
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

bool EstNomDeFichier(const QString &nom) {
    return !nom.contains(u'/') && !nom.contains(u'\\') && !nom.contains(QChar::Null);
}

bool Existe(const QString &chemin) {
    const QFileInfo fichier(chemin);
    return fichier.exists() || fichier.isSymLink(); // a link that leads nowhere does not exist
}

QString NomLibre(const QString &dossier, const QString &nom) {
    const QFileInfo morceaux(nom);
    QString libre = nom;
    for (int n = 2; Existe(dossier + libre); ++n) {
        libre = QStringLiteral("%1 (%2).%3").arg(morceaux.completeBaseName()).arg(n).arg(morceaux.suffix());
    }
    return libre;
}

} // namespace

QString EnregistrerPhoto(const QImage &image, const QString &nom) {
    if (image.isNull() || !EstNomDeFichier(nom)) {
        throw PhotoError(nom + QStringLiteral(" : cette photo ne peut pas être enregistrée."));
    }
    QByteArray octets;
    QBuffer memoire(&octets);
    QImageWriter ecriture(&memoire, "jpg");
    ecriture.setQuality(kQualite);
    if (!ecriture.write(SurBlanc(image))) {
        throw PhotoError(nom + QStringLiteral(" : cette photo ne peut pas être enregistrée."));
    }
    const QString dossier = DossierDesPhotos();
    platform::files::WholeFile fichier(dossier, kBrouillon);
    fichier.setRights(fichier.rights() & store::DroitsDuLivre());
    fichier.write(octets);
    const QString libre = NomLibre(dossier, nom);
    fichier.commit(dossier + libre);
    return libre;
}

void OterBrouillonsDePhotos() {
    platform::files::removeDrafts(DossierDesPhotos(), kBrouillon);
}

} // namespace pictures
