#pragma once

#include "Placed.h"

#include <QAbstractButton>
#include <QPixmap>

namespace platform::controls {

/// The look of a ribbon button; the behaviour is the same for all.
enum class Look {
    Picture, ///< a picture alone
    Tool,    ///< a picture on a ground that lights up under the pointer
    Sort,    ///< a picture over a caption, on a block of its own
    Value, ///< a flat line of text, whole in its tool tip, that shows under the pointer that it can be pressed
    Command, ///< a light block with a caption in its middle, right of a small picture if there is one
    Tile, ///< a light block with a picture above a caption, beside it where the block is much wider than high
};

/// A flat skinned button that is a toggle: pressed by the user or by code, its Value becomes true and its
/// event is raised; a handler acts when Value is true and ends by setting it false, which raises the event
/// again. The event is the signal toggled(bool) of QAbstractButton.
class RibbonButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit RibbonButton(QWidget *parent);

    bool Value() const { return isChecked(); }

    void SetValue(bool value) { setChecked(value); }

    QString Caption() const { return text(); }

    void SetCaption(const QString &caption);

    QColor ForeColor() const { return palette().color(foregroundRole()); }

    void SetForeColor(const QColor &colour);

    /// Underlines the caption.
    void SetUnderline(bool underline);

    void SetLook(Look look);

    /// One of the sort buttons; black writing marks the current one of them.
    bool IsSort() const { return m_look == Look::Sort; }

    bool IsCurrentSort() const { return IsSort() && ForeColor() == QColor(Qt::black); }

    /// The picture shown now; the three others take its place while pressed, on leaving and on entering.
    void SetPicture(const QPixmap &picture);

    const QPixmap &Picture() const { return m_picture; }

    void SetPressedPicture(const QPixmap &picture) { m_pressed = picture; }

    void SetRestingPicture(const QPixmap &picture) { m_resting = picture; }

    void SetHoverPicture(const QPixmap &picture) { m_hover = picture; }

    /// Takes all four pictures of another button.
    void CopyPictures(const RibbonButton &other);

    /// Sets Value false and shows the resting picture again, also while the pointer is still over the button.
    void Release();

Q_SIGNALS:
    void Entered();
    void Exited();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void speak();
    void paintGround(QPainter &painter) const;
    void paintPicture(QPainter &painter) const;
    void paintCaption(QPainter &painter) const;
    QRectF pictureArea() const;
    bool isWide() const;
    QRectF tilePictureArea() const;
    void paintTileCaption(QPainter &painter) const;

    Look m_look = Look::Picture;
    QString m_title; // what the button's value is of
    QPixmap m_picture, m_pressed, m_resting, m_hover;
};

using Ribbon = Placed<RibbonButton>;

} // namespace platform::controls
