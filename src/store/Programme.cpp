#include "Programme.h"

#include <QCoreApplication>

namespace store {

namespace {

QString &AutreDossier() {
    static QString dossier;
    return dossier;
}

} // namespace

QString DossierProgramme() {
    return AutreDossier().isEmpty() ? QCoreApplication::applicationDirPath() : AutreDossier();
}

void DefinirDossierProgramme(const QString &dossier) {
    AutreDossier() = dossier;
}

QString CheminBase() {
    return DossierProgramme() + QStringLiteral("/db.mdb");
}

} // namespace store
