#pragma once

#include <QString>

#include <stdexcept>
#include <vector>

/// A text of a source file and where it stands.
struct SourceText {
    QString text;
    QString file;
    int line = 0; ///< from 1
};

/// A mistake in a source file; what() is "file:line: reason" in UTF-8.
class SourceError : public std::runtime_error {
public:
    SourceError(const SourceText &where, const QString &reason);
};

/// The lines of a UTF-8 file, without blanks at their ends.
/// @throws SourceError when it cannot be read or is not UTF-8
std::vector<SourceText> readLines(const QString &file);
