#include "Metafile.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtEndian>

#include <cstring>

namespace platform::metafile {

namespace {

constexpr int kPatience = 10'000; // ms
constexpr int kHeader = 8;        // width and height
// The renderer draws that many times larger each way; reduced, edges come out smooth.
constexpr int kOversampling = 2;
constexpr int kLargestSide = 4096;

constexpr quint32 kPlaceableKey = 0x9AC6CDD7;
constexpr qsizetype kMetafileHeader = 18;

QByteArray drawn(const QByteArray &content) {
    QProcess renderer;
    renderer.setProgram(QCoreApplication::applicationDirPath() + QStringLiteral("/lecteur-wmf"));
    renderer.setStandardErrorFile(QProcess::nullDevice());
    renderer.start();
    renderer.write(content);
    renderer.closeWriteChannel();
    if (!renderer.waitForFinished(kPatience)) {
        renderer.kill();
        renderer.waitForFinished();
        throw MetafileError("the metafile renderer did not start or did not end");
    }
    if (renderer.exitStatus() != QProcess::NormalExit || renderer.exitCode() != 0) {
        throw MetafileError("the metafile cannot be drawn");
    }
    return renderer.readAllStandardOutput();
}

} // namespace

bool isMetafile(const QByteArray &start) {
    if (start.size() < kMetafileHeader) {
        return false;
    }
    const char *const bytes = start.constData();
    if (qFromLittleEndian<quint32>(bytes) == kPlaceableKey) {
        return true;
    }
    // In memory or on disk, a header of nine words, version 1.0 or 3.0.
    const auto kind = qFromLittleEndian<quint16>(bytes);
    const auto words = qFromLittleEndian<quint16>(bytes + 2);
    const auto version = qFromLittleEndian<quint16>(bytes + 4);
    return (kind == 1 || kind == 2) && words == 9 && (version == 0x0100 || version == 0x0300);
}

QImage readMetafile(const QByteArray &content) {
    const QByteArray answer = drawn(content);
    if (answer.size() < kHeader) {
        throw MetafileError("the metafile renderer gave no picture");
    }
    quint32 width = 0;
    quint32 height = 0;
    std::memcpy(&width, answer.constData(), sizeof width);
    std::memcpy(&height, answer.constData() + sizeof width, sizeof height);
    if (width == 0 || height == 0 || width > kLargestSide || height > kLargestSide ||
        answer.size() != kHeader + qsizetype{4} * width * height) {
        throw MetafileError("the metafile renderer gave a broken picture");
    }
    const QImage picture(reinterpret_cast<const uchar *>(answer.constData()) + kHeader,
                         static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    const QSize natural(qMax(1, picture.width() / kOversampling), qMax(1, picture.height() / kOversampling));
    return picture.scaled(natural, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace platform::metafile
