#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::files {

namespace {

constexpr Rights kAllRights = 07777;
constexpr int kRandomLength = 6;

QByteArray native(const QString &path) {
    return QFile::encodeName(path);
}

QString randomName(const QString &prefix) {
    constexpr QStringView kLetters = u"abcdefghijklmnopqrstuvwxyz0123456789";
    QString name = prefix;
    for (int i = 0; i < kRandomLength; ++i) {
        name += kLetters[QRandomGenerator::global()->bounded(kLetters.size())];
    }
    return name;
}

/// Without it a new name could be lost with the power. A file system that has no such thing is none the worse: the file
/// is whole under the one name or the other.
void flushFolder(const QString &file) {
    const int folder = open(native(QFileInfo(file).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

} // namespace

std::optional<Rights> rightsOf(const QString &path) {
    struct stat state {};

    if (stat(native(path).constData(), &state) != 0) {
        return std::nullopt;
    }
    return state.st_mode & kAllRights;
}

void setRights(const QString &path, Rights rights) {
    if (chmod(native(path).constData(), rights) != 0) {
        throw FileError(path, errno);
    }
}

void replaceFile(const QString &path, const QString &replaced) {
    if (std::rename(native(path).constData(), native(replaced).constData()) != 0) {
        throw FileError(replaced, errno);
    }
    flushFolder(replaced);
}

void removeDrafts(const QString &folder, const QString &prefix) {
    const QDir place(folder);
    const QString pattern = prefix + QString(kRandomLength, u'?');
    for (const QString &name : place.entryList({pattern}, QDir::Files | QDir::Hidden)) {
        QFile::remove(place.filePath(name));
    }
}

WholeFile::WholeFile(const QString &folder, const QString &prefix) {
    removeDrafts(folder, prefix);
    constexpr Rights kUntilTheMask = 0666;
    do {
        m_draft = QDir(folder).filePath(randomName(prefix));
        m_file = open(native(m_draft).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kUntilTheMask);
    } while (m_file < 0 && errno == EEXIST);
    if (m_file < 0) {
        throw FileError(folder, errno);
    }
}

WholeFile::~WholeFile() {
    close(m_file);
    if (!m_draft.isEmpty()) {
        QFile::remove(m_draft);
    }
}

Rights WholeFile::rights() const {
    return rightsOf(m_draft).value_or(0);
}

void WholeFile::setRights(Rights rights) {
    if (fchmod(m_file, rights) != 0) {
        fail();
    }
}

void WholeFile::write(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_file, bytes.data(), size_t(bytes.size()));
        if (written < 0 && errno != EINTR) {
            fail();
        }
        bytes = bytes.sliced(qMax<ssize_t>(written, 0));
    }
}

void WholeFile::commit(const QString &path) {
    if (fsync(m_file) != 0) {
        throw FileError(path, errno);
    }
    replaceFile(m_draft, path);
    m_draft.clear();
}

void WholeFile::fail() const {
    throw FileError(m_draft, errno);
}

} // namespace platform::files
