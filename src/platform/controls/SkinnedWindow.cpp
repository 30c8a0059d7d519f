#include "SkinnedWindow.h"

#include "Fonts.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace platform::controls {

namespace {

constexpr Twips kCorner{180};
constexpr Twips kTitleLeft{720};

} // namespace

SkinnedWindow::SkinnedWindow(const QString &name, Extent size)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), m_size(size) {
    setObjectName(name);
    setFixedSize(size.width.pixels(), size.height.pixels());
    // Every point is painted by the skin: no need to clear the ground first.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SkinnedWindow::SetHeading(const QString &heading) {
    setWindowTitle(heading);
    setAccessibleName(heading);
    update();
}

void SkinnedWindow::SetMode(int mode) {
    m_mode = mode;
    update();
    for (QWidget *control : findChildren<QWidget *>()) {
        control->update();
    }
}

Twips SkinnedWindow::Left() const {
    return Twips::fromPixels(x(), kTwipsPerPixel);
}

Twips SkinnedWindow::Top() const {
    return Twips::fromPixels(y(), kTwipsPerPixel);
}

void SkinnedWindow::Move(Twips left, Twips top) {
    // Places on the screen are in plain pixels, also where the windows themselves are shrunk to fit.
    static constexpr float kFarthest =
        1e6F; // twips; beyond any screen, and within what a window system can take
    const auto pixels = [](Twips place) {
        return qRound(std::clamp(place.value(), -kFarthest, kFarthest) / kTwipsPerPixel);
    };
    move(pixels(left), pixels(top));
}

void SkinnedWindow::CenterOn(const QWidget &other) {
    const QRect free = other.screen()->availableGeometry();
    QRect place = geometry();
    place.moveCenter(other.geometry().center());
    place.moveLeft(std::clamp(place.left(), free.left(), std::max(free.left(), free.right() + 1 - width())));
    place.moveTop(std::clamp(place.top(), free.top(), std::max(free.top(), free.bottom() + 1 - height())));
    move(place.topLeft());
}

void SkinnedWindow::ShowModal() {
    setWindowModality(Qt::ApplicationModal);
    show();
    raise();
    activateWindow();
    if (m_loop == nullptr) {
        QEventLoop loop;
        m_loop = &loop;
        loop.exec();
        m_loop = nullptr;
    }
}

void SkinnedWindow::Unload() {
    hide();
    if (m_loop != nullptr) {
        m_loop->quit();
    }
}

void SkinnedWindow::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    const Skin &colours = skin();
    const QRectF whole(rect());
    const QRectF band(0, 0, whole.width(), kBand.pixels());
    paintBlock(painter, whole, 0, colours.groundTop, colours.groundBottom, colours.edge);
    paintBlock(painter, band, 0, colours.bandTop, colours.bandBottom, QColor());
    painter.fillRect(QRectF(0, band.bottom() - 2, whole.width(), 2), colours.accent);
    for (const Rectangle &strip : m_strips) {
        paintBlock(painter, strip.pixels(), Twips(120).pixels(), colours.strip, colours.strip.darker(108),
                   colours.edge);
    }
    painter.setPen(colours.title);
    painter.setFont(interfaceFont(Face::Verdana, 13, true));
    painter.drawText(band.adjusted(kTitleLeft.pixels(), 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     accessibleName());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.edge, 2));
    painter.drawRoundedRect(whole.adjusted(1, 1, -1, -1), kCorner.pixels(), kCorner.pixels());
}

void SkinnedWindow::mousePressEvent(QMouseEvent *event) {
    m_grip.reset();
    if (event->button() == Qt::LeftButton) {
        m_grip = event->globalPosition().toPoint();
    }
}

// Not at the press: the window system would take the second press of a double click for itself.
void SkinnedWindow::mouseMoveEvent(QMouseEvent *event) {
    const auto distance = [this, event] {
        return (event->globalPosition().toPoint() - *m_grip).manhattanLength();
    };
    if (m_grip && distance() >= QApplication::startDragDistance() && windowHandle() != nullptr) {
        m_grip.reset();
        windowHandle()->startSystemMove();
    }
}

void SkinnedWindow::closeEvent(QCloseEvent *event) {
    // What closing means is for the program to say.
    event->ignore();
    Q_EMIT CloseRequested();
}

void SkinnedWindow::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const int corner = kCorner.pixels();
    const QSize circle(2 * corner, 2 * corner);
    QRegion shape = QRegion(rect().adjusted(corner, 0, -corner, 0)) + rect().adjusted(0, corner, 0, -corner);
    for (const int x : {0, width() - circle.width()}) {
        for (const int y : {0, height() - circle.height()}) {
            shape += QRegion(QRect(QPoint(x, y), circle), QRegion::Ellipse);
        }
    }
    setMask(shape);
}

const Skin &skinAround(const QWidget &control) {
    const auto *window = qobject_cast<const SkinnedWindow *>(control.window());
    return window != nullptr ? window->skin() : skinOf(0);
}

} // namespace platform::controls
