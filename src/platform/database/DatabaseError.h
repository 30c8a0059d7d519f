#pragma once

#include <QByteArray>
#include <QString>

#include <stdexcept>

namespace platform::database {

/// The one error of this module. what() is the text for the user in UTF-8: the engine's own where it has one.
class DatabaseError : public std::runtime_error {
public:
    explicit DatabaseError(const char *text) : std::runtime_error(text) {}

    explicit DatabaseError(const QString &text) : std::runtime_error(text.toUtf8().toStdString()) {}
};

} // namespace platform::database
