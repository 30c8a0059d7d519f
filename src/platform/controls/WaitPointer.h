#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace platform::controls {

/// Shows the hourglass pointer over the whole program while it lives.
class WaitPointer {
public:
    WaitPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

    ~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }

    WaitPointer(const WaitPointer &) = delete;
    WaitPointer &operator=(const WaitPointer &) = delete;
};

} // namespace platform::controls
