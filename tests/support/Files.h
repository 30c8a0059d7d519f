#pragma once

#include <QFile>

#include <stdexcept>

/// The bytes of a file; null for one that cannot be read.
inline QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a file, or replaces it. Gives its path.
inline QString writeFile(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("cannot write a file");
    }
    return path;
}

/// A program of a shell's words.
inline QString writeScript(const QString &path, const QByteArray &words) {
    QFile::remove(path);
    writeFile(path, "#!/bin/sh\n" + words + '\n');
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    return path;
}
