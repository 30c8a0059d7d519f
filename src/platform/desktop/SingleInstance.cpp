#include "SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::desktop {

namespace {

// Without a session there is no runtime folder, and asking for it would print a warning.
QString sessionFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QFileInfo(runtime).isWritable() ? runtime : QDir::tempPath();
}

/// The folders of the lock file: where the first holds a file of that name that cannot be opened, the next one serves,
/// for every copy of the program alike.
QStringList lockFolders() {
    const QString ofUser = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    QDir().mkpath(ofUser);
    return {sessionFolder(), ofUser};
}

QString lockName(const QString &application) {
    return QLatin1Char('/') + application.toLower() + QLatin1Char('-') +
           QString::number(QFileInfo(QDir::homePath()).ownerId()) + QStringLiteral(".lock");
}

int openLock(const char *path) {
    constexpr mode_t kOwnOnly = S_IRUSR | S_IWUSR;
    constexpr int kFlags = O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    int descriptor = ::open(path, kFlags, kOwnOnly);
    // A file of this user whose rights are gone stays the same file, which a running copy may hold.
    if (descriptor < 0 && errno == EACCES && ::chmod(path, kOwnOnly) == 0) {
        descriptor = ::open(path, kFlags, kOwnOnly);
    }
    return descriptor;
}

/// Whether the path still leads to the open file: the one who held the lock before may have removed it.
bool isStillThere(int descriptor, const char *path) {
    struct stat opened {};

    struct stat present {};

    return ::fstat(descriptor, &opened) == 0 && ::lstat(path, &present) == 0 &&
           opened.st_ino == present.st_ino && opened.st_dev == present.st_dev;
}

} // namespace

SingleInstance::SingleInstance(const QString &application) {
    for (const QString &folder : lockFolders()) {
        const Claim result = claim(folder + lockName(application));
        m_elsewhere = result == Claim::Taken;
        if (result != Claim::Impossible) {
            return;
        }
    }
}

SingleInstance::~SingleInstance() {
    Release();
}

SingleInstance::Claim SingleInstance::claim(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    for (;;) {
        const int descriptor = openLock(name);
        if (descriptor < 0) {
            return Claim::Impossible;
        }
        if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            const bool held = errno == EWOULDBLOCK;
            ::close(descriptor);
            return held ? Claim::Taken : Claim::Impossible;
        }
        if (isStillThere(descriptor, name)) {
            m_path = name;
            m_descriptor = descriptor;
            return Claim::Made;
        }
        ::close(descriptor);
    }
}

void SingleInstance::Release() {
    if (m_descriptor >= 0) {
        // Removed while it is still locked: nobody can have claimed it in between.
        ::unlink(m_path.constData());
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

} // namespace platform::desktop
