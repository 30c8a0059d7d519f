#include "ResourcePicture.h"

#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QImage>

namespace platform::images {

namespace {

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

QPixmap resourcePicture(const QString &path) {
    QString found = path;
    if (qGuiApp->devicePixelRatio() > 1) {
        const QString large = QString(path).insert(path.lastIndexOf(u'.'), QStringLiteral("@2x"));
        found = QFile::exists(large) ? large : path;
    }
    return found.endsWith(QLatin1String(".argb")) ? barePixels(found) : QPixmap(found, "PNG");
}

QPixmap programIcon() {
    return resourcePicture(QStringLiteral(":/icones/savorel.argb"));
}

} // namespace platform::images
