#include "Accessible.h"

#include "Labels.h"
#include "RibbonButton.h"

#include <QAccessibleWidget>

namespace platform::controls {

namespace {

/// What is pressed, and says its caption where it has no name.
class PressInterface : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() ? caption() : own;
    }

    QStringList actionNames() const override {
        return canBePressed() ? QStringList(pressAction()) + QAccessibleWidget::actionNames()
                              : QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override {
        if (name == pressAction() && canBePressed()) {
            press();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

protected:
    virtual QString caption() const = 0;
    virtual bool canBePressed() const = 0;
    virtual void press() = 0;
};

class RibbonInterface : public PressInterface {
public:
    explicit RibbonInterface(RibbonButton &button) : PressInterface(&button), m_button(button) {}

    QAccessible::Role role() const override {
        return m_button.IsSort() ? QAccessible::RadioButton : QAccessible::Button;
    }

    QAccessible::State state() const override {
        QAccessible::State result = QAccessibleWidget::state();
        result.checkable = m_button.IsSort();
        result.checked = m_button.IsCurrentSort();
        return result;
    }

protected:
    QString caption() const override { return m_button.Caption(); }

    bool canBePressed() const override { return m_button.isEnabled(); }

    void press() override { m_button.click(); }

private:
    RibbonButton &m_button;
};

class PanelInterface : public PressInterface {
public:
    explicit PanelInterface(CaptionPanel &panel) : PressInterface(&panel), m_panel(panel) {}

    QAccessible::Role role() const override {
        return canBePressed() ? QAccessible::Button : QAccessible::StaticText;
    }

protected:
    QString caption() const override { return m_panel.Caption(); }

    bool canBePressed() const override { return m_panel.focusPolicy() != Qt::NoFocus; }

    void press() override { Q_EMIT m_panel.Clicked(); }

private:
    CaptionPanel &m_panel;
};

QAccessibleInterface *interfaceOf(const QString & /*className*/, QObject *object) {
    if (auto *button = qobject_cast<RibbonButton *>(object)) {
        return new RibbonInterface(*button);
    }
    if (auto *panel = qobject_cast<CaptionPanel *>(object)) {
        return new PanelInterface(*panel);
    }
    return nullptr;
}

} // namespace

void announceControls() {
    static const bool once = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(once)
}

} // namespace platform::controls
