#pragma once

#include <QString>

#include <stdexcept>

namespace platform::files {

/// What the system says of a failed call, in French, as a sentence goes on behind a colon.
/// @param error of errno.h
QString reasonOf(int error);

/// A file that could not be read, written or replaced. what() is the text for the user, in UTF-8.
class FileError : public std::runtime_error {
public:
    explicit FileError(const QString &text) : std::runtime_error(text.toUtf8().toStdString()) {}

    /// "file : reason"
    /// @param error of errno.h
    FileError(const QString &file, int error) : FileError(file + QStringLiteral(" : ") + reasonOf(error)) {}
};

} // namespace platform::files
