#pragma once

#include <QPixmap>
#include <QString>

namespace platform::images {

/// A picture of the program's own resources, in the resolution of the screen: ":/icones/vue-0.argb", or its
/// double ":/icones/vue-0@2x.argb" where pixels are small. Null when there is none.
/// An .argb holds width and height, 32 bits each with the highest byte first, then the pixels as
/// QImage::Format_ARGB32_Premultiplied has them; any other file is a PNG.
QPixmap resourcePicture(const QString &path);

/// The icon of the program, as its windows show it. Null in a program without the resources.
QPixmap programIcon();

} // namespace platform::images
