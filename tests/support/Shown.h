#pragma once

#include <QTest>
#include <QWidget>

#include <stdexcept>

/// Shows a window and gives it the keyboard.
inline void showActive(QWidget &window) {
    window.move(1, 1); // the wait below is long for a window at the origin
    window.show();
    if (!QTest::qWaitForWindowActive(&window)) {
        throw std::runtime_error("no active window");
    }
}
