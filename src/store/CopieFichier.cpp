#include "CopieFichier.h"

#include "Livre.h"
#include "Programme.h"

#include "platform/database/DatabaseError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopeGuard>

#include <filesystem>

namespace store {

namespace {

constexpr qint64 kMorceau = 1 << 20; // bytes copied at a time

const QString kNouveau = QStringLiteral(".nouveau");
const QString kJournal = QStringLiteral("-journal");

/// The file itself where db.mdb is a link to it, so that the link stays and the journal is found.
QString FichierDuLivre() {
    const QString fichier = QFileInfo(CheminBase()).canonicalFilePath();
    return fichier.isEmpty() ? CheminBase() : fichier;
}

/// Looks at the files without opening them: closing the book would drop the locks on it.
bool MemeFichier(const QString &un, const QString &autre) {
    std::error_code absent;
    return std::filesystem::equivalent(un.toStdU16String(), autre.toStdU16String(), absent);
}

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
    if (MemeFichier(source, destination)) {
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

bool EstLeLivre(const QString &chemin) {
    return MemeFichier(chemin, CheminBase());
}

void CopierLivre(const QString &destination) {
    AcheverChangement();
    CopierFichier(CheminBase(), destination);
}

QString CheminNouveauLivre() {
    QString chemin = FichierDuLivre() + kNouveau;
    QFile::remove(chemin);
    QFile::remove(chemin + kJournal);
    return chemin;
}

QString CheminAvantRestauration() {
    return DossierProgramme() + QStringLiteral("/db-avant-restauration.mdb");
}

void RemplacerLivre(const QString &copie) {
    const QString livre = FichierDuLivre();
    const QString nouveau = livre + kNouveau;
    const auto menage = qScopeGuard([&nouveau] { QFile::remove(nouveau); });
    if (const QFileInfo present(livre); present.exists()) {
        if (!present.isWritable()) {
            Echouer(livre, QStringLiteral("le fichier est protégé en écriture"));
        }
        CopierLivre(copie);
    }
    // A journal that is left belongs to the former book and would be played back into the new one.
    QFile::remove(livre + kJournal);
    std::error_code echec;
    std::filesystem::rename(nouveau.toStdU16String(), livre.toStdU16String(), echec);
    if (echec) {
        Echouer(livre, QString::fromLocal8Bit(echec.message().c_str()));
    }
}

} // namespace store
