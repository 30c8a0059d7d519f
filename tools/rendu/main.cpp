// rendu DRAWING.svg PICTURE WIDTHxHEIGHT: renders a vector drawing into a picture file (PNG or bare pixels
// with a transparent ground, or JPEG of quality 90, by the ending of its name), stretched to exactly that
// many pixels.
#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>

namespace {

QSize sizeFromText(const QString &text) {
    const QStringList parts = text.split(QLatin1Char('x'));
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

int fail(const QString &why) {
    std::fprintf(stderr, "rendu: %s\n", qPrintable(why));
    return EXIT_FAILURE;
}

/// Width and height, 32 bits each with the highest byte first, then the pixels as they lie in memory:
/// premultiplied ARGB of 32 bits.
bool savePixels(const QImage &picture, const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QDataStream stream(&file);
    stream << qint32(picture.width()) << qint32(picture.height());
    stream.writeRawData(reinterpret_cast<const char *>(picture.constBits()),
                        static_cast<int>(picture.sizeInBytes()));
    return stream.status() == QDataStream::Ok && file.flush();
}

bool save(const QImage &picture, const QString &path) {
    constexpr int kJpegQuality = 90;
    constexpr int kDefaultQuality = -1;
    return path.endsWith(QLatin1String(".argb"))
               ? savePixels(picture, path)
               : picture.save(path, nullptr,
                              path.endsWith(QLatin1String(".jpg")) ? kJpegQuality : kDefaultQuality);
}

} // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // fonts need an application, a build machine has no display
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        return fail(QStringLiteral("usage: rendu DRAWING.svg PICTURE WIDTHxHEIGHT"));
    }
    QSvgRenderer drawing(arguments[1]);
    const QSize size = sizeFromText(arguments[3]);
    if (!drawing.isValid() || size.isEmpty()) {
        return fail(arguments[1] + QStringLiteral(": no drawing, or no size"));
    }
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    const bool opaque = arguments[2].endsWith(QLatin1String(".jpg"));
    picture.fill(opaque ? Qt::white : Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawing.render(&painter, QRectF(QPointF(), QSizeF(size)));
    painter.end();
    return save(picture, arguments[2]) ? EXIT_SUCCESS : fail(arguments[2] + QStringLiteral(": not written"));
}
