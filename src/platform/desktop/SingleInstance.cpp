#include "SingleInstance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

namespace platform::desktop {

namespace {

// Without a session there is no runtime folder, and asking for it would print a warning.
QString lockFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QFileInfo(runtime).isWritable() ? runtime : QDir::tempPath();
}

QString lockName(const QString &application) {
    return lockFolder() + QLatin1Char('/') + application.toLower() + QLatin1Char('-') +
           QString::number(QFileInfo(QDir::homePath()).ownerId()) + QStringLiteral(".lock");
}

} // namespace

SingleInstance::SingleInstance(const QString &application)
    : m_lock(std::make_unique<QLockFile>(lockName(application))) {
    // A lock never grows old while its owner lives: cooks leave the book open for days.
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock(0)) {
        m_elsewhere = m_lock->error() == QLockFile::LockFailedError;
    }
}

SingleInstance::~SingleInstance() = default;

} // namespace platform::desktop
