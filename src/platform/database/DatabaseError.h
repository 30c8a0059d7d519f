#pragma once

#include <QByteArray>
#include <QString>

#include <stdexcept>

namespace platform::database {

/// A failure as the engine tells it.
struct EngineFailure {
    int code;           ///< extended result code
    QByteArray message; ///< in English
    QString file;
    int systemError = 0; ///< of errno.h, where the system was the cause
};

/// The one error of this module. what() is the text for the user in UTF-8: in French, and where the failure is the
/// engine's, the file and the engine's own words behind it in brackets.
class DatabaseError : public std::runtime_error {
public:
    explicit DatabaseError(const char *text) : std::runtime_error(text) {}

    explicit DatabaseError(const QString &text) : std::runtime_error(text.toUtf8().toStdString()) {}

    explicit DatabaseError(const EngineFailure &failure);

    /// Whether another connection, here or in another program, keeps the file from being used.
    bool isInUse() const { return m_inUse; }

private:
    bool m_inUse = false;
};

} // namespace platform::database
