#pragma once

#include "Placed.h"

#include <QImage>
#include <QPixmap>
#include <stdexcept>

namespace platform::controls {

/// A file that holds no picture that can be shown; what() is a French text in UTF-8.
class PictureError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a picture by the content of the file, not by the ending of its name, turned as its EXIF orientation
/// says; of several, the first. A metafile is drawn in its natural size. Throws PictureError for a file that is
/// no picture, or one of more than 200 megapixels.
QImage LoadPicture(const QString &path);

/// A picture of the program's own resources, in the resolution of the screen: ":/icones/vue-0.argb", or its
/// double ":/icones/vue-0@2x.argb" where pixels are small. Null when there is none.
/// An .argb holds width and height, 32 bits each with the highest byte first, then the pixels as
/// QImage::Format_ARGB32_Premultiplied has them; any other file is a PNG.
QPixmap resourcePicture(const QString &path);

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
