#include "FileError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace platform::files {

namespace {

struct Reason {
    int error;
    const char *text;
};

constexpr std::array kReasons{
    Reason{EACCES, "l'accès est refusé"},
    Reason{EPERM, "l'accès est refusé"},
    Reason{EBUSY, "le fichier est utilisé par un autre programme"},
    Reason{EDQUOT, "la place accordée sur le disque est épuisée"},
    Reason{EEXIST, "le fichier existe déjà"},
    Reason{EFBIG, "le fichier serait trop grand"},
    Reason{EIO, "le disque ne peut pas être lu ou écrit"},
    Reason{EISDIR, "c'est un dossier"},
    Reason{EMFILE, "trop de fichiers sont ouverts"},
    Reason{ENFILE, "trop de fichiers sont ouverts"},
    Reason{ENAMETOOLONG, "le nom est trop long"},
    Reason{ENODEV, "le disque n'est plus là"},
    Reason{ENXIO, "le disque n'est plus là"},
    Reason{ENOENT, "le fichier ou son dossier n'existe pas"},
    Reason{ENOMEM, "la mémoire ne suffit pas"},
    Reason{ENOSPC, "il n'y a plus de place sur le disque"},
    Reason{ENOTDIR, "le dossier n'en est pas un"},
    Reason{EROFS, "le disque est protégé en écriture"},
    Reason{EXDEV, "les fichiers sont sur deux disques"},
};

} // namespace

QString reasonOf(int error) {
    const auto *const found = std::ranges::find(kReasons, error, &Reason::error);
    return found != kReasons.end() ? QString::fromUtf8(found->text)
                                   : QStringLiteral("le système donne l'erreur %1 (%2)")
                                         .arg(error)
                                         .arg(QString::fromLocal8Bit(std::strerror(error)));
}

} // namespace platform::files
