#include "Skin.h"

#include "SkinnedWindow.h"

#include <QAbstractScrollArea>
#include <QLinearGradient>
#include <QPainter>
#include <QPalette>
#include <QScrollBar>
#include <QtMath>
#include <array>
#include <initializer_list>

namespace platform::controls {

namespace {

const std::array<Skin, 3> &skins() {
    static const std::array<Skin, 3> all{Skin{.bandTop = QColor(0x3b5078),
                                              .bandBottom = QColor(0x1f2b47),
                                              .groundTop = QColor(0x5a76a8),
                                              .groundBottom = QColor(0x2f4268),
                                              .edge = QColor(0x18213a),
                                              .strip = QColor(0xe9eef7),
                                              .button = QColor(0x3f5a8c),
                                              .buttonHover = QColor(0x4d6ca6),
                                              .buttonCurrent = QColor(0xf3dcae),
                                              .accent = QColor(0xd98a45),
                                              .title = QColor(0xfbf3e2)},
                                         Skin{.bandTop = QColor(0x8a4f2a),
                                              .bandBottom = QColor(0x4a2716),
                                              .groundTop = QColor(0xb9855a),
                                              .groundBottom = QColor(0x6d4328),
                                              .edge = QColor(0x35190c),
                                              .strip = QColor(0xf8efe2),
                                              .button = QColor(0x7d4a2b),
                                              .buttonHover = QColor(0x99603a),
                                              .buttonCurrent = QColor(0xf6dfb0),
                                              .accent = QColor(0x5f8a3a),
                                              .title = QColor(0xfff4e0)},
                                         Skin{.bandTop = QColor(0x4f7a45),
                                              .bandBottom = QColor(0x24401f),
                                              .groundTop = QColor(0x86a876),
                                              .groundBottom = QColor(0x46663b),
                                              .edge = QColor(0x182c14),
                                              .strip = QColor(0xf0f5ea),
                                              .button = QColor(0x3f6a38),
                                              .buttonHover = QColor(0x528547),
                                              .buttonCurrent = QColor(0xf4e2a4),
                                              .accent = QColor(0xc8432f),
                                              .title = QColor(0xf8f7e4)}};
    return all;
}

} // namespace

const Skin &skinOf(int mode) {
    const auto index = static_cast<std::size_t>(mode);
    return index < skins().size() ? skins()[index] : skins().front();
}

namespace {

QColor between(const QColor &top, const QColor &bottom, double part) {
    const auto mixed = [part](int from, int to) { return qRound(from + (to - from) * part); };
    return {mixed(top.red(), bottom.red()), mixed(top.green(), bottom.green()),
            mixed(top.blue(), bottom.blue())};
}

/// The gradient of a large ground as lines of one colour each: what the toolkit fills fastest by far. In a
/// window two neighbours differ by less than one shade.
void fillWithLines(QPainter &painter, const QRectF &block, const QColor &top, const QColor &bottom) {
    const int lines = qCeil(block.height());
    for (int line = 0; line < lines; ++line) {
        const QRectF strip(block.left(), block.top() + line, block.width(), 1);
        painter.fillRect(strip.intersected(block), between(top, bottom, (line + 0.5) / lines));
    }
}

} // namespace

QPalette programPalette() {
    struct Colour {
        QPalette::ColorRole role;
        QColor active, disabled;
    };

    const QColor window(239, 239, 239);
    const QColor faded(150, 150, 150);
    QPalette colours;
    for (const auto &[role, active, disabled] : std::initializer_list<Colour>{
             {QPalette::Window, window, window},
             {QPalette::WindowText, Qt::black, faded},
             {QPalette::Base, Qt::white, window},
             {QPalette::AlternateBase, QColor(247, 247, 247), QColor(247, 247, 247)},
             {QPalette::Text, Qt::black, faded},
             {QPalette::PlaceholderText, QColor(0, 0, 0, 128), QColor(0, 0, 0, 128)},
             {QPalette::Button, window, window},
             {QPalette::ButtonText, Qt::black, faded},
             {QPalette::BrightText, Qt::white, Qt::white},
             {QPalette::Light, Qt::white, Qt::white},
             {QPalette::Midlight, QColor(202, 202, 202), QColor(202, 202, 202)},
             {QPalette::Mid, QColor(184, 184, 184), QColor(184, 184, 184)},
             {QPalette::Dark, QColor(159, 159, 159), QColor(190, 190, 190)},
             {QPalette::Shadow, QColor(118, 118, 118), QColor(177, 177, 177)},
             {QPalette::Highlight, QColor(48, 140, 198), QColor(145, 145, 145)},
             {QPalette::HighlightedText, Qt::white, Qt::white},
             {QPalette::Link, Qt::blue, Qt::blue},
             {QPalette::LinkVisited, QColor(255, 0, 255), QColor(255, 0, 255)},
             {QPalette::ToolTipBase, QColor(255, 255, 220), QColor(255, 255, 220)},
             {QPalette::ToolTipText, Qt::black, Qt::black},
         }) {
        colours.setColor(QPalette::Active, role, active);
        colours.setColor(QPalette::Inactive, role, active);
        colours.setColor(QPalette::Disabled, role, disabled);
    }
    return colours;
}

void paintBlock(QPainter &painter, const QRectF &block, double radius, const QColor &top,
                const QColor &bottom, const QColor &edge) {
    if (radius <= 0) {
        // Smooth edges of neighbouring lines would let the ground shine through.
        const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::Antialiasing, false);
        const double border = edge.isValid() ? 1 : 0;
        if (edge.isValid()) {
            painter.fillRect(block, edge);
        }
        fillWithLines(painter, block.adjusted(border, border, -border, -border), top, bottom);
        painter.setRenderHint(QPainter::Antialiasing, smooth);
        return;
    }
    QLinearGradient gradient(block.topLeft(), block.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(gradient);
    painter.setPen(edge.isValid() ? QPen(edge, 1) : QPen(Qt::NoPen));
    const double inset = edge.isValid() ? 0.5 : 0;
    painter.drawRoundedRect(block.adjusted(inset, inset, -inset, -inset), radius, radius);
}

void paintFocusRing(QPainter &painter, const QWidget &control) {
    if (control.hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(skinAround(control).accent, 2));
        painter.drawRoundedRect(QRectF(control.rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
}

void paintFocusFrame(QAbstractScrollArea &area, bool focused) {
    area.setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    area.setLineWidth(2);
    QPalette colours = area.palette();
    colours.setColor(QPalette::WindowText,
                     focused ? skinAround(area).accent : colours.color(QPalette::Active, QPalette::Base));
    area.setPalette(colours);
}

void colourScrollBar(QAbstractScrollArea &area, const QColor &ground) {
    QPalette colours = area.palette();
    colours.setColor(QPalette::Window, ground.lighter(108));
    colours.setColor(QPalette::Base, ground.lighter(108));
    colours.setColor(QPalette::Button, ground.lighter(125));
    area.verticalScrollBar()->setPalette(colours);
}

} // namespace platform::controls
