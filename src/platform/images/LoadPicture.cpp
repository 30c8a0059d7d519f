#include "LoadPicture.h"

#include "platform/metafile/Metafile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

namespace platform::images {

namespace {

constexpr qint64 kLargestPicture = 200'000'000; // pixels
// 200 megapixels of four bytes, in the unit of QImageReader's own limit (MiB), which is 128 by default.
constexpr int kAllocationLimit = 1024;

constexpr qint64 kLargestMetafile = 64 << 20; // bytes
constexpr qint64 kLongestHeader = 40;

/// The content of a metafile; empty when the file is something else, or of an absurd size.
QByteArray metafileContent(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestMetafile ||
        !metafile::isMetafile(file.peek(kLongestHeader))) {
        return {};
    }
    return file.readAll();
}

QImage loadMetafile(const QString &path, const QByteArray &content) {
    try {
        return metafile::readMetafile(content);
    } catch (const metafile::MetafileError &) {
        throw PictureError("Ce fichier n'est pas une image : " + path.toStdString());
    }
}

/// The picture in a file; null where it cannot be read.
QImage readPicture(const QString &path, bool byContent) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(byContent);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > kLargestPicture) {
        throw PictureError("Cette image est trop grande : " + path.toStdString());
    }
    return reader.read();
}

} // namespace

QString PicturePatterns() {
    QStringList patterns;
    for (const QStringView ending : kPictureEndings) {
        patterns.append(u"*." + ending);
    }
    return patterns.join(u';');
}

QImage LoadPicture(const QString &path) {
    if (!QFileInfo(path).isFile()) {
        // Reading a pipe or a device could block forever.
        throw PictureError("Ce fichier n'est pas une image : " + path.toStdString());
    }
    if (const QByteArray content = metafileContent(path); !content.isEmpty()) {
        return loadMetafile(path, content);
    }
    QImageReader::setAllocationLimit(kAllocationLimit);
    // The ending of the name is nearly always right, and then one plugin is loaded instead of all.
    QImage picture = readPicture(path, false);
    if (picture.isNull()) {
        picture = readPicture(path, true);
    }
    if (picture.isNull()) {
        throw PictureError("Ce fichier n'est pas une image : " + path.toStdString());
    }
    // A picture of one bit would be shrunk into dots.
    return picture.depth() == 1 ? picture.convertToFormat(QImage::Format_ARGB32) : picture;
}

} // namespace platform::images
