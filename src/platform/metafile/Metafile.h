#pragma once

#include <QByteArray>
#include <QImage>

#include <stdexcept>

namespace platform::metafile {

/// A metafile that cannot be drawn; what() is an English text for the developer.
class MetafileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Whether a file that begins so is a Windows metafile, with or without the header that gives its size.
bool isMetafile(const QByteArray &start);

/// Draws a metafile in its natural size at 96 dots per inch, on white; one that is larger than 2,048 pixels in a
/// direction is made smaller. The drawing is done by a program of its own beside this one, so that a file made
/// to break the library, to hold it up or to eat the memory does nothing worse than fail, after ten seconds at
/// the latest.
/// @throws MetafileError
QImage readMetafile(const QByteArray &content);

} // namespace platform::metafile
