#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QKeyEvent>

namespace platform::dialogs {

/// Keeps the repeats of a key that was held down when a dialog came from answering it unseen. To be made when
/// the dialog has all its buttons; its fields still take repeated keys.
class FirstPressOnly : public QObject {
public:
    explicit FirstPressOnly(QDialog &dialog) {
        dialog.installEventFilter(this);
        const auto buttons = dialog.findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            button->installEventFilter(this);
        }
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override {
        return event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->isAutoRepeat();
    }
};

} // namespace platform::dialogs
