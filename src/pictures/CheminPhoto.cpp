#include "CheminPhoto.h"

#include "store/Programme.h"
#include "store/Textes.h"

#include <QDir>
#include <QFileInfo>

namespace pictures {

namespace {

QString CheminNomme(const QString &nom) {
    // To the toolkit ":" begins the name of a resource of the program, to the cook it is a letter of a title.
    if (QDir::isAbsolutePath(nom) && !nom.startsWith(u':')) {
        return nom;
    }
    // Nothing is ever found from the working directory, so a relative path is no path.
    if (nom.contains(u'\\')) {
        return {};
    }
    const QString dossier =
        QDir::cleanPath(store::DossierProgramme() + QStringLiteral("/photos")) + QLatin1Char('/');
    const QString chemin = QDir::cleanPath(dossier + nom);
    return chemin.startsWith(dossier) ? chemin : QString();
}

} // namespace

QString CheminPhoto(const QString &valeur) {
    const QString nom = store::SansBlancs(valeur).remove(QStringLiteral("<BR>"));
    if (nom.isEmpty()) {
        return {};
    }
    const QString chemin = CheminNomme(nom);
    return QFileInfo(chemin).isFile() ? chemin : QString();
}

} // namespace pictures
