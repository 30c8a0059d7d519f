#include "CopieFichier.h"

#include "AncienLivre.h"
#include "Livre.h"
#include "Programme.h"

#include "platform/database/DatabaseError.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace store {

namespace {

namespace files = platform::files;

constexpr qint64 kMorceau = 1 << 20; // bytes copied at a time

const QString kNouveau = QStringLiteral(".nouveau");
const QString kJournal = QStringLiteral("-journal");
const QString kBrouillon = QStringLiteral(".copie-");

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

void Ouvrir(QFile &fichier) {
    if (QFileInfo(fichier.fileName()).isDir()) {
        throw CopieError(fichier.fileName(), EISDIR);
    }
    errno = 0;
    if (!fichier.open(QIODevice::ReadOnly)) {
        throw CopieError(fichier.fileName(), errno);
    }
}

/// The next part of a file; empty at its end.
QByteArray Lire(QFile &fichier) {
    errno = 0;
    QByteArray morceau = fichier.read(kMorceau);
    if (fichier.error() != QFileDevice::NoError) {
        throw CopieError(fichier.fileName(), errno);
    }
    return morceau;
}

bool MemeContenu(const QString &un, const QString &autre) {
    QFile gauche(un);
    QFile droite(autre);
    Ouvrir(gauche);
    Ouvrir(droite);
    while (gauche.size() == droite.size()) {
        const QByteArray morceau = Lire(gauche);
        if (morceau != Lire(droite)) {
            return false;
        }
        if (morceau.isEmpty()) {
            return true;
        }
    }
    return false;
}

/// "db-ancien.mdb", or "db-ancien-2.mdb" beside another file of that name; a file that is kept already keeps its name.
QString CheminGarde(const QString &dossier, const QString &debut, const QString &fichier) {
    QString chemin = dossier + u'/' + debut + QStringLiteral(".mdb");
    for (int n = 2; QFileInfo::exists(chemin) && !MemeContenu(chemin, fichier); ++n) {
        chemin = QStringLiteral("%1/%2-%3.mdb").arg(dossier, debut).arg(n);
    }
    return chemin;
}

/// A file that does not open may not be readable either: it is renamed, with the journal that might yet heal it.
void Ecarter(const QString &livre) {
    const QString dossier = QFileInfo(livre).path();
    QString garde;
    try {
        garde = CheminGarde(dossier, QStringLiteral("db-illisible"), livre);
    } catch (const CopieError &) {
        garde = dossier + QStringLiteral("/db-illisible-%1.mdb").arg(QDateTime::currentMSecsSinceEpoch());
    }
    files::replaceFile(livre, garde);
    if (QFile::exists(livre + kJournal)) {
        files::replaceFile(livre + kJournal, garde + kJournal);
    }
}

/// Opens the present book, which undoes a change that was killed half-way.
/// @return whether it is one
bool SOuvre(const QString &livre) {
    try {
        OuvrirLivre(livre);
    } catch (const platform::database::DatabaseError &echec) {
        if (echec.isInUse()) {
            throw CopieError(QString::fromUtf8(echec.what()));
        }
        return false;
    }
    return EstUnLivre(livre);
}

void Garder(const QString &livre) {
    if (EstAncienLivre(livre)) {
        CopierFichier(livre, CheminGarde(DossierProgramme(), QStringLiteral("db-ancien"), livre));
    } else if (SOuvre(livre)) {
        CopierFichier(livre, CheminAvantRestauration());
    } else {
        Ecarter(livre);
    }
}

} // namespace

files::Rights DroitsDuLivre() {
    constexpr files::Rights kTous = 0666;
    return files::rightsOf(CheminBase()).value_or(kTous) & kTous;
}

void CopierFichier(const QString &source, const QString &destination) {
    if (MemeFichier(source, destination)) {
        Echouer(source, QStringLiteral("ce fichier ne peut pas être copié sur lui-même"));
    }
    QFile lu(source);
    Ouvrir(lu);
    // A link at the destination stays one.
    const QFileInfo present(destination);
    if (present.exists() && (!present.isFile() || !present.isWritable())) {
        throw CopieError(destination, present.isDir() ? EISDIR : EACCES);
    }
    const QString place = present.exists() ? present.canonicalFilePath() : destination;
    files::WholeFile ecrit(QFileInfo(place).path(), kBrouillon);
    const auto droits = files::rightsOf(CheminBase()) ? DroitsDuLivre() : ecrit.rights();
    ecrit.setRights(droits & files::rightsOf(place).value_or(droits));
    for (QByteArray morceau = Lire(lu); !morceau.isEmpty(); morceau = Lire(lu)) {
        ecrit.write(morceau);
    }
    ecrit.commit(place);
}

bool EstLeLivre(const QString &chemin) {
    return MemeFichier(chemin, CheminBase());
}

void CopierLivre(const QString &destination) {
    try {
        OuvrirLivre();
    } catch (const platform::database::DatabaseError &echec) {
        // One that cannot be opened is copied as it stands, but not in the midst of another program's change.
        if (echec.isInUse()) {
            throw CopieError(QString::fromUtf8(echec.what()));
        }
    }
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

void RemplacerLivre() {
    const QString livre = FichierDuLivre();
    const QString nouveau = livre + kNouveau;
    const auto menage = qScopeGuard([&nouveau] { QFile::remove(nouveau); });
    if (const QFileInfo present(livre); present.exists()) {
        if (!present.isWritable()) {
            Echouer(livre, QStringLiteral("le fichier est protégé en écriture"));
        }
        files::setRights(nouveau, DroitsDuLivre());
        Garder(livre);
    }
    // A journal that is left belongs to the former book and would be played back into the new one.
    errno = 0;
    if (QFile::exists(livre + kJournal) && !QFile::remove(livre + kJournal)) {
        throw CopieError(livre + kJournal, errno);
    }
    files::replaceFile(nouveau, livre);
}

QString CopieAReprendre() {
    QStringList copies{CheminAvantRestauration()};
    copies.removeIf([](const QString &copie) { return !QFile::exists(copie); });
    std::ranges::sort(copies, std::greater<>(),
                      [](const QString &copie) { return QFileInfo(copie).lastModified(); });
    const auto bonne = std::ranges::find_if(copies, EstUnLivre);
    return bonne == copies.end() ? QString() : *bonne;
}

void OterRestes() {
    CheminNouveauLivre();
    for (const QString &dossier : {QFileInfo(FichierDuLivre()).path(), DossierProgramme()}) {
        files::removeDrafts(dossier, kBrouillon);
    }
}

} // namespace store
