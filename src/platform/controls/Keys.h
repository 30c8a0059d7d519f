#pragma once

#include <QKeySequence>

#include <functional>
#include <span>
#include <string_view>

class QWidget;

namespace platform::controls {

/// A key of a window and the ribbon button that it presses.
struct KeyRow {
    std::string_view button;
    QKeyCombination key;
    /// Another key for the same; none by default.
    QKeyCombination other{};
    /// A control that tells the key as the button does; none by default.
    std::string_view beside{};
};

/// Lets keys press the buttons of a window, wherever in it the keyboard is, as the mouse does: not one that is hidden or
/// disabled. A row that is being edited takes its text first. The tool tips tell the keys.
void pressByKeys(QWidget &window, std::span<const KeyRow> rows);

/// Runs an act when a key goes down in a window; for Qt::WidgetShortcut, in that control alone. A key held down acts
/// once.
void onKey(QWidget &owner, QKeyCombination key, const std::function<void()> &act,
           Qt::ShortcutContext where = Qt::WindowShortcut);

/// Has a control show a key behind its tool tip, or behind its status tip where it has none. Its toolTip() stays.
void tellKey(QWidget &control, QKeyCombination key);

} // namespace platform::controls
