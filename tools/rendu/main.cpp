// rendu DRAWING.svg PICTURE WIDTHxHEIGHT: renders a vector drawing into a picture file (PNG with a
// transparent ground, or JPEG of quality 90, by the ending of its name), stretched to exactly that many
// pixels.
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
    return picture.save(arguments[2], nullptr, opaque ? 90 : -1)
               ? EXIT_SUCCESS
               : fail(arguments[2] + QStringLiteral(": not written"));
}
