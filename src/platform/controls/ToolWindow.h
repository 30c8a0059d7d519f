#pragma once

#include "Picture.h"
#include "RibbonButton.h"
#include "SkinnedWindow.h"

namespace platform::controls {

/// Gives a button of a window's title band its picture at rest and under the pointer, by the name of the drawing.
void setBandPictures(RibbonButton &button, const QString &drawing);

/// A skinned window with the two buttons of its title band, Mini and Quit, at its upper right corner. A press of Quit
/// asks to close, as closing from outside does, and so does Escape.
class ToolWindow : public SkinnedWindow {
    Q_OBJECT

public:
    ToolWindow(const QString &name, Extent size);

    Image Icone;
    Ribbon Mini, Quit;

    /// Says where Quit leads, on the screen and to screen readers.
    void NameQuit(const QString &name);

protected:
    /// Whether Escape may leave the window, which it does by pressing Quit; it may ask the user.
    virtual bool MayEscape() { return true; }

Q_SIGNALS:
    void MinimiseRequested();
};

} // namespace platform::controls
