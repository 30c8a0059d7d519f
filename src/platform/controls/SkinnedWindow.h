#pragma once

#include "ControlTable.h"
#include "Skin.h"

#include <QString>
#include <QWidget>
#include <optional>
#include <vector>

class QEventLoop;

namespace platform::controls {

/// A borderless window of fixed size that paints itself in a skin, chosen by a display mode, and is moved by
/// dragging any free part of it. Its name is its class name, through which it is found.
class SkinnedWindow : public QWidget {
    Q_OBJECT

public:
    SkinnedWindow(const QString &name, Extent size);

    /// Names the window: in its band, on the task bar and to screen readers. The title of the task bar alone may then be
    /// changed by setWindowTitle().
    void SetHeading(const QString &heading);

    /// Display mode 0, 1 or 2.
    int Mode() const { return m_mode; }

    void SetMode(int mode);

    const Skin &skin() const { return skinOf(m_mode); }

    Twips Width() const { return m_size.width; }

    Twips Height() const { return m_size.height; }

    /// Place of the window on the screen; on platforms that place windows themselves it is only a wish.
    Twips Left() const;
    Twips Top() const;
    void Move(Twips left, Twips top);

    /// Puts the window over the middle of another one, inside the available area of its screen.
    void CenterOn(const QWidget &other);

    /// Shows the window and returns when it is unloaded; meanwhile, as long as it is visible, no other window takes
    /// anything. For a window that is shown so already, and has been hidden meanwhile, it shows it and returns at once.
    void ShowModal();

    /// Whether a ShowModal has not returned yet.
    bool IsModal() const { return m_loop != nullptr; }

    /// Hides the window and lets its ShowModal return.
    void Unload();

    /// Height of the title band, in twips from the top.
    static constexpr Twips kBand{600};

Q_SIGNALS:
    /// The window was asked to close, by the window menu, a key combination or code; it stays open.
    void CloseRequested();

protected:
    /// Light blocks painted under the controls, in window twips: the strip of a toolbar, grounds of groups.
    void SetStrips(std::vector<Rectangle> strips) { m_strips = std::move(strips); }

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Extent m_size;
    int m_mode = 0;
    std::vector<Rectangle> m_strips;
    QEventLoop *m_loop = nullptr; // that of ShowModal
    std::optional<QPoint> m_grip; // where on the screen the skin was pressed
};

/// Skin of the window that holds the control; the first one for a control outside a skinned window.
const Skin &skinAround(const QWidget &control);

} // namespace platform::controls
