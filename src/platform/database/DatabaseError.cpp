#include "DatabaseError.h"

#include "platform/files/FileError.h"

#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace platform::database {

namespace {

struct Text {
    int code; ///< primary result code
    const char *text;
};

constexpr std::array kTexts{
    Text{SQLITE_BUSY, "Le livre est utilisé par un autre programme."},
    Text{SQLITE_LOCKED, "Le livre est utilisé par un autre programme."},
    Text{SQLITE_CANTOPEN, "Le livre ne peut pas être ouvert."},
    Text{SQLITE_CONSTRAINT, "Le livre n'accepte pas cette valeur."},
    Text{SQLITE_CORRUPT, "Le livre est endommagé."},
    Text{SQLITE_FULL, "Il n'y a plus de place sur le disque du livre."},
    Text{SQLITE_IOERR, "Le livre ne peut pas être lu ou écrit."},
    Text{SQLITE_NOMEM, "La mémoire ne suffit pas pour le livre."},
    Text{SQLITE_NOTADB, "Le fichier n'est pas un livre de recettes, ou il est endommagé."},
    Text{SQLITE_PERM, "L'accès au livre est refusé."},
    Text{SQLITE_READONLY, "Le livre est protégé en écriture."},
    Text{SQLITE_TOOBIG, "Le texte est trop long pour le livre."},
};

constexpr int kPrimary = 0xff;

QString textOf(const EngineFailure &failure) {
    const auto *const found = std::ranges::find(kTexts, failure.code & kPrimary, &Text::code);
    QString text =
        QString::fromUtf8(found == kTexts.end() ? "Le livre ne répond pas à cette demande." : found->text);
    if (failure.systemError != 0) {
        text.chop(1);
        text += QStringLiteral(" : ") + files::reasonOf(failure.systemError) + u'.';
    }
    const QString file = QFileInfo(failure.file).fileName();
    return text + QStringLiteral(" (") + (file.isEmpty() ? QString() : file + QStringLiteral(" : ")) +
           QString::fromUtf8(failure.message) + u')';
}

} // namespace

DatabaseError::DatabaseError(const EngineFailure &failure) : DatabaseError(textOf(failure)) {
    const int code = failure.code & kPrimary;
    m_inUse = code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

} // namespace platform::database
