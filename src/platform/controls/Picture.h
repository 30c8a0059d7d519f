#pragma once

#include "Placed.h"

#include <QImage>
#include <QPixmap>

namespace platform::controls {

/// Shows a picture stretched over its whole area, smooth, in the resolution of the screen.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget *parent);

    /// A null image clears the picture.
    void SetPicture(const QImage &picture);

    const QImage &Picture() const { return m_picture; }

    /// Width and height of the unstretched picture, in twips.
    Extent NaturalSize() const;

Q_SIGNALS:
    /// It was pressed; what it stands in takes the press too.
    void Pressed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QImage m_picture;
    QPixmap m_scaled; // the picture at the size last painted
};

using Image = Placed<PictureBox>;

} // namespace platform::controls
