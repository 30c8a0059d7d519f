#pragma once

#include <QImage>
#include <QString>

#include <array>
#include <stdexcept>

namespace platform::images {

/// A file that holds no picture that can be shown; what() is a French text in UTF-8.
class PictureError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Endings of the picture files that LoadPicture reads wherever the program runs, in the order of the alphabet. Plugins
/// of the toolkit may add others.
inline constexpr std::array<QStringView, 7> kPictureEndings{u"bmp", u"gif", u"ico", u"jpeg",
                                                            u"jpg", u"png", u"wmf"};

/// Those endings as the patterns of a file dialog: "*.bmp;*.gif" and so on.
QString PicturePatterns();

/// Reads a picture by the content of the file, not by the ending of its name, turned as its EXIF orientation
/// says; of several, the first. A metafile is drawn in its natural size. Throws PictureError for a file that is
/// no picture, or one of more than 200 megapixels.
QImage LoadPicture(const QString &path);

} // namespace platform::images
