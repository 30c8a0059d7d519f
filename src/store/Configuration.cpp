#include "Configuration.h"

#include "Programme.h"

#include <QUrl>

namespace store {

QString AdresseComplete(QStringView adresse) {
    QString texte = adresse.toString();
    if (texte.contains(QStringLiteral("://"))) {
        return texte;
    }
    return QUrl::fromLocalFile(DossierProgramme() + QLatin1Char('/') + texte).toString(QUrl::FullyEncoded);
}

} // namespace store
