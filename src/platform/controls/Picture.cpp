#include "Picture.h"

#include "platform/metafile/Metafile.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace platform::controls {

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

QPixmap barePixels(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QDataStream stream(&file);
    qint32 width = 0;
    qint32 height = 0;
    stream >> width >> height;
    QImage picture(width, height, QImage::Format_ARGB32_Premultiplied);
    stream.readRawData(reinterpret_cast<char *>(picture.bits()), static_cast<int>(picture.sizeInBytes()));
    return QPixmap::fromImage(std::move(picture));
}

} // namespace

QImage LoadPicture(const QString &path) {
    if (!QFileInfo(path).isFile()) {
        // Reading a pipe or a device could wait for ever.
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

QPixmap resourcePicture(const QString &path) {
    QString found = path;
    if (qGuiApp->devicePixelRatio() > 1) {
        const QString large = QString(path).insert(path.lastIndexOf(u'.'), QStringLiteral("@2x"));
        found = QFile::exists(large) ? large : path;
    }
    return found.endsWith(QLatin1String(".argb")) ? barePixels(found) : QPixmap(found, "PNG");
}

PictureBox::PictureBox(QWidget *parent) : QWidget(parent) {}

void PictureBox::SetPicture(const QImage &picture) {
    m_picture = picture;
    m_scaled = {};
    update();
}

Extent PictureBox::NaturalSize() const {
    return {Twips(m_picture.width() * kTwipsPerPixel), Twips(m_picture.height() * kTwipsPerPixel)};
}

void PictureBox::paintEvent(QPaintEvent * /*event*/) {
    if (m_picture.isNull() || size().isEmpty()) {
        return;
    }
    const QSize wanted = size() * devicePixelRatio();
    if (m_scaled.size() != wanted) {
        m_scaled =
            QPixmap::fromImage(m_picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(devicePixelRatio());
    }
    QPainter(this).drawPixmap(0, 0, m_scaled);
}

void PictureBox::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT Pressed();
    }
    event->ignore();
}

} // namespace platform::controls
