#pragma once

#include <QImage>
#include <QWidget>

namespace platform::scandialogs {

/// The glass of the scanner: its preview, and the part of it that the user draws with the pointer.
class PreviewArea : public QWidget {
    Q_OBJECT

public:
    explicit PreviewArea(QWidget *parent);

    /// Width and height of the glass, in any unit.
    void setGlass(QSizeF glass);

    void setPreview(const QImage &preview);

    /// As fractions of the glass; the whole of it until something is drawn, and again after a click.
    QRectF selection() const { return m_selection; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRectF glassOnWidget() const;
    QPointF onGlass(QPointF point) const;

    QSizeF m_glass{1, 1};
    QImage m_preview;
    QPointF m_start; // of the drawing, on the glass
    QRectF m_selection{0, 0, 1, 1};
};

} // namespace platform::scandialogs
