#include "RibbonButton.h"

#include "SkinnedWindow.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

namespace platform::controls {

namespace {

constexpr Twips kTextMargin{75};
constexpr Twips kSortPicture{480};
constexpr Twips kSortTop{60};
constexpr Twips kTileMargin{60};
constexpr Twips kTilePicture{1080}; // at most
constexpr Twips kCommandPicture{360};
constexpr Twips kCommandMargin{105};
constexpr double kDisabledCaption = 0.45; // opacity
const QColor kValueHover(251, 243, 226);

} // namespace

RibbonButton::RibbonButton(QWidget *parent) : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void RibbonButton::SetCaption(const QString &caption) {
    // "&" is a plain character of a recipe's words, never a mnemonic, so no shortcut must come of it.
    if (caption != text()) {
        setText(caption);
        setShortcut({});
        speak();
    }
}

/// A screen reader says what the value is of, then the value; a dotted line says nothing.
void RibbonButton::speak() {
    if (m_title.isEmpty()) {
        m_title = accessibleName();
    }
    const bool isDotted = text().count(QLatin1Char('.')) == text().size();
    if (!m_title.isEmpty()) {
        setAccessibleName(isDotted ? m_title : QStringLiteral("%1 : %2").arg(m_title, text()));
    }
}

void RibbonButton::SetForeColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(foregroundRole(), colour);
    setPalette(colours);
}

void RibbonButton::SetUnderline(bool underline) {
    QFont face = font();
    if (face.underline() != underline) {
        face.setUnderline(underline);
        setFont(face);
    }
}

void RibbonButton::SetLook(Look look) {
    m_look = look;
    update();
}

void RibbonButton::SetPicture(const QPixmap &picture) {
    m_picture = picture;
    update();
}

void RibbonButton::CopyPictures(const RibbonButton &other) {
    m_pressed = other.m_pressed;
    m_resting = other.m_resting;
    m_hover = other.m_hover;
    SetPicture(other.m_picture);
}

void RibbonButton::Release() {
    SetValue(false);
    if (!m_resting.isNull()) {
        SetPicture(m_resting);
    }
}

void RibbonButton::enterEvent(QEnterEvent *event) {
    QAbstractButton::enterEvent(event);
    if (!m_hover.isNull()) {
        SetPicture(m_hover);
    }
    Q_EMIT Entered();
}

void RibbonButton::leaveEvent(QEvent *event) {
    QAbstractButton::leaveEvent(event);
    if (!m_resting.isNull()) {
        SetPicture(m_resting);
    }
    Q_EMIT Exited();
}

bool RibbonButton::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip && Qt::mightBeRichText(toolTip())) {
        // The words of a recipe are shown as they are stored, also where they look like markup.
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           QStringLiteral("<qt>%1</qt>").arg(toolTip().toHtmlEscaped()), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void RibbonButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // Held down, Enter would press again, and then the button of a box that the press has opened.
        if (!event->isAutoRepeat()) {
            click();
        }
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void RibbonButton::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    paintGround(painter);
    paintPicture(painter);
    paintCaption(painter);
    paintFocusRing(painter, *this);
}

void RibbonButton::paintGround(QPainter &painter) const {
    const Skin &skin = skinAround(*this);
    const bool hovered = underMouse() && isEnabled();
    switch (m_look) {
    case Look::Picture:
        break;
    case Look::Tool:
        if (hovered) {
            paintBlock(painter, rect(), 6, skin.buttonCurrent.lighter(108), skin.buttonCurrent, skin.edge);
        }
        break;
    case Look::Sort: {
        // The ground follows the writing, so that white, yellow and black all read well on it.
        const bool dark = ForeColor().lightness() > 100;
        const QColor ground = !dark ? skin.buttonCurrent : hovered ? skin.buttonHover : skin.button;
        paintBlock(painter, rect(), 8, ground.lighter(112), ground, skin.edge);
        break;
    }
    case Look::Command:
    case Look::Tile:
        paintBlock(painter, rect(), 6, skin.strip, skin.strip.darker(hovered ? 103 : 112), skin.edge);
        break;
    case Look::Value:
        painter.fillRect(rect(), hovered ? kValueHover : kPaleGround);
        painter.fillRect(QRect(0, height() - 1, width(), 1), skin.button);
        break;
    }
}

QRectF RibbonButton::pictureArea() const {
    if (m_look == Look::Sort) {
        const double side = kSortPicture.pixels();
        return {(width() - side) / 2.0, static_cast<double>(kSortTop.pixels()), side, side};
    }
    if (m_look == Look::Tile) {
        return tilePictureArea();
    }
    if (m_look == Look::Command) {
        const double side = kCommandPicture.pixels();
        return {static_cast<double>(kCommandMargin.pixels()), (height() - side) / 2.0, side, side};
    }
    const double side = m_look == Look::Tool ? 0.86 * qMin(width(), height()) : qMin(width(), height());
    return {(width() - side) / 2.0, (height() - side) / 2.0, side, side};
}

bool RibbonButton::isWide() const {
    return width() > 2 * height();
}

/// Above the caption, picture and caption stand together in the middle of the tile.
QRectF RibbonButton::tilePictureArea() const {
    const double margin = kTileMargin.pixels();
    if (isWide()) {
        const double side = height() - 2 * margin;
        return {2 * margin, margin, side, side};
    }
    const QRect room = rect().adjusted(kTileMargin.pixels(), 0, -kTileMargin.pixels(), 0);
    const int lines = fontMetrics().boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text()).height();
    const double side = std::min(
        {static_cast<double>(kTilePicture.pixels()), width() - 2 * margin, height() - lines - 3 * margin});
    return {(width() - side) / 2.0, (height() - side - margin - lines) / 2.0, side, side};
}

void RibbonButton::paintTileCaption(QPainter &painter) const {
    const double margin = kTileMargin.pixels();
    const QRectF picture = tilePictureArea();
    QRectF area = QRectF(rect()).adjusted(margin, 0, -margin, 0);
    if (isWide()) {
        area.setLeft(picture.right());
        painter.drawText(area, Qt::AlignCenter, text());
    } else {
        area.setTop(picture.bottom() + margin);
        painter.drawText(area, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text());
    }
}

void RibbonButton::paintPicture(QPainter &painter) const {
    const QPixmap &shown = isDown() && !m_pressed.isNull() ? m_pressed : m_picture;
    if (shown.isNull()) {
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setOpacity(isEnabled() ? 1.0 : 0.35);
    painter.drawPixmap(pictureArea(), shown, shown.rect());
    painter.setOpacity(1.0);
}

void RibbonButton::paintCaption(QPainter &painter) const {
    if (text().isEmpty()) {
        return;
    }
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    painter.setFont(font());
    if (!isEnabled() && (m_look == Look::Command || m_look == Look::Tile)) {
        painter.setOpacity(kDisabledCaption);
    }
    QRect area = rect();
    if (m_look == Look::Sort) {
        area.setTop(pictureArea().toRect().bottom());
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, text());
        return;
    }
    if (m_look == Look::Command) {
        if (!m_picture.isNull()) {
            area.setLeft(pictureArea().toRect().right());
        }
        // Blanks at the ends of a caption only keep room for the picture.
        painter.drawText(area, Qt::AlignCenter, m_picture.isNull() ? text() : text().trimmed());
        return;
    }
    if (m_look == Look::Tile) {
        paintTileCaption(painter);
        return;
    }
    area.adjust(kTextMargin.pixels(), 0, 0, 0);
    // No letter is narrower than a pixel: of a line of hundreds of dots only those that can show are shaped.
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text().left(area.width()));
}

} // namespace platform::controls
