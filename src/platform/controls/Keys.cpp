#include "Keys.h"

#include "ListView.h"
#include "RibbonButton.h"

#include <QHelpEvent>
#include <QShortcut>
#include <QToolTip>

namespace platform::controls {

namespace {

class KeyTip : public QObject {
public:
    KeyTip(QWidget &control, QKeyCombination key)
        : QObject(&control), m_key(QKeySequence(key).toString(QKeySequence::NativeText)) {}

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() != QEvent::ToolTip) {
            return QObject::eventFilter(watched, event);
        }
        auto &control = *static_cast<QWidget *>(watched);
        const QString tip = control.toolTip().isEmpty() ? control.statusTip() : control.toolTip();
        const QString shown = tip.trimmed() + u" (" + m_key + u')';
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), shown.trimmed(), &control);
        return true;
    }

private:
    QString m_key;
};

QString text(std::string_view name) {
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

/// The list whose row the control edits; null for any other control.
ListBox *listEditedBy(const QWidget *control) {
    const QWidget *viewport = control != nullptr ? control->parentWidget() : nullptr;
    return viewport != nullptr ? qobject_cast<ListBox *>(viewport->parentWidget()) : nullptr;
}

void press(QWidget &window, RibbonButton &button) {
    if (!button.isVisible() || !button.isEnabled() || button.Value()) {
        return;
    }
    if (ListBox *list = listEditedBy(window.focusWidget())) {
        list->setFocus();
    }
    button.SetValue(true);
}

} // namespace

void pressByKeys(QWidget &window, std::span<const KeyRow> rows) {
    for (const KeyRow &row : rows) {
        auto &button = *window.findChild<RibbonButton *>(text(row.button));
        for (const QKeyCombination key : {row.key, row.other}) {
            if (key != QKeyCombination()) {
                onKey(window, key, [&window, &button] { press(window, button); });
            }
        }
        tellKey(button, row.key);
        if (!row.beside.empty()) {
            tellKey(*window.findChild<QWidget *>(text(row.beside)), row.key);
        }
    }
}

void onKey(QWidget &owner, QKeyCombination key, const std::function<void()> &act, Qt::ShortcutContext where) {
    auto *shortcut = new QShortcut(key, &owner, nullptr, nullptr, where);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &owner, act);
}

void tellKey(QWidget &control, QKeyCombination key) {
    control.installEventFilter(new KeyTip(control, key));
}

} // namespace platform::controls
