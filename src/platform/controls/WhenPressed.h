#pragma once

#include <functional>

namespace platform::controls {

class RibbonButton;

/// What lets a button go that was pressed.
enum class Release {
    AfterAction, ///< the end of the action, also by an exception; the action may do it earlier
    ByAction,    ///< the action alone: without that the button stays down
};

/// Runs an action at each press of a button.
void whenPressed(RibbonButton &button, const std::function<void()> &action,
                 Release release = Release::AfterAction);

} // namespace platform::controls
