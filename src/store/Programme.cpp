#include "Programme.h"

#include <QCoreApplication>

namespace store {

namespace {

QString &autreDossier() {
    static QString dossier;
    return dossier;
}

} // namespace

QString DossierProgramme() {
    return autreDossier().isEmpty() ? QCoreApplication::applicationDirPath() : autreDossier();
}

void DefinirDossierProgramme(const QString &dossier) {
    autreDossier() = dossier;
}

QString CheminBase() {
    return DossierProgramme() + QStringLiteral("/db.mdb");
}

} // namespace store
