#include "WhenPressed.h"

#include "RibbonButton.h"

#include <QPointer>
#include <QScopeGuard>

namespace platform::controls {

namespace {

void runAndRelease(RibbonButton &button, const std::function<void()> &action) {
    // The action may close the window that the button stands in.
    const auto release = qScopeGuard([pressed = QPointer<RibbonButton>(&button)] {
        if (pressed) {
            pressed->SetValue(false);
        }
    });
    action();
}

} // namespace

void whenPressed(RibbonButton &button, const std::function<void()> &action, Release release) {
    QObject::connect(&button, &RibbonButton::toggled, &button, [&button, action, release](bool pressed) {
        if (!pressed) {
            return;
        }
        if (release == Release::ByAction) {
            action();
        } else {
            runAndRelease(button, action);
        }
    });
}

} // namespace platform::controls
