#include "CopieFichier.h"

#include "Livre.h"
#include "Programme.h"

#include "platform/database/DatabaseError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

namespace store {

namespace {

constexpr qint64 kMorceau = 1 << 20; // bytes copied at a time

[[noreturn]] void Echouer(const QString &chemin, const QString &raison) {
    throw CopieError(chemin + QStringLiteral(" : ") + raison);
}

void Recopier(QFile &source, QSaveFile &destination) {
    while (!source.atEnd()) {
        const QByteArray morceau = source.read(kMorceau);
        if (morceau.isEmpty()) {
            Echouer(source.fileName(), source.errorString());
        }
        if (destination.write(morceau) != morceau.size()) {
            Echouer(destination.fileName(), destination.errorString());
        }
    }
}

/// A book that was killed in a change has its journal beside it; opening plays it back. One that cannot be opened is
/// kept as it stands.
void AcheverChangement() {
    try {
        const auto livre = OuvrirLivre();
    } catch (const platform::database::DatabaseError &) {
    }
}

} // namespace

void CopierFichier(const QString &source, const QString &destination) {
    if (QFileInfo(source) == QFileInfo(destination)) {
        Echouer(source, QStringLiteral("ce fichier ne peut pas être copié sur lui-même"));
    }
    QFile lu(source);
    if (!lu.open(QIODevice::ReadOnly)) {
        Echouer(source, lu.errorString());
    }
    QSaveFile ecrit(destination);
    if (!ecrit.open(QIODevice::WriteOnly)) {
        Echouer(destination, ecrit.errorString());
    }
    Recopier(lu, ecrit);
    if (!ecrit.commit()) {
        Echouer(destination, ecrit.errorString());
    }
}

QString CheminNouveauLivre() {
    QString chemin = CheminBase() + QStringLiteral(".nouveau");
    QFile::remove(chemin);
    return chemin;
}

QString CheminAvantRestauration() {
    return DossierProgramme() + QStringLiteral("/db-avant-restauration.mdb");
}

void RemplacerLivre(const QString &copie) {
    const QString livre = CheminBase();
    AcheverChangement();
    if (QFile::exists(livre)) {
        CopierFichier(livre, copie);
    }
    // A journal that is left belongs to the former book and would be played back into the new one.
    QFile::remove(livre + QStringLiteral("-journal"));
    const QString nouveau = livre + QStringLiteral(".nouveau");
    std::error_code echec;
    std::filesystem::rename(nouveau.toStdU16String(), livre.toStdU16String(), echec);
    if (echec) {
        Echouer(livre, QString::fromLocal8Bit(echec.message().c_str()));
    }
}

} // namespace store
