#include "EnregistrerPhoto.h"

#include "store/Programme.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryFile>

#include <filesystem>
#include <unistd.h>

namespace pictures {

namespace {

constexpr int kQualite = 90;

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
    const QString dossier = store::DossierProgramme() + QStringLiteral("/photos/");
    // The name of QSaveFile's own draft is longer than the file's, which may have the greatest length already.
    QTemporaryFile brouillon(dossier + QStringLiteral(".photo-XXXXXX"));
    if (!brouillon.open()) {
        throw PhotoError(brouillon.fileName() + QStringLiteral(" : ") + brouillon.errorString());
    }
    QImageWriter ecriture(&brouillon, "jpg");
    ecriture.setQuality(kQualite);
    if (!ecriture.write(SurBlanc(image))) {
        throw PhotoError(nom + QStringLiteral(" : ") + ecriture.errorString());
    }
    if (!brouillon.flush() || fdatasync(brouillon.handle()) != 0) {
        throw PhotoError(nom + QStringLiteral(" : ") + brouillon.errorString());
    }
    brouillon.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    QString libre = NomLibre(dossier, nom);
    std::error_code echec;
    std::filesystem::rename(brouillon.fileName().toStdU16String(), QString(dossier + libre).toStdU16String(),
                            echec);
    if (echec) {
        throw PhotoError(nom + QStringLiteral(" : ") + QString::fromLocal8Bit(echec.message().c_str()));
    }
    brouillon.setAutoRemove(false);
    return libre;
}

} // namespace pictures
