#include "ToolWindow.h"

#include "Keys.h"
#include "WhenPressed.h"

#include "platform/images/ResourcePicture.h"

namespace platform::controls {

namespace {

// Twips.
constexpr int kTop = 120;
constexpr int kSide = 360;
constexpr int kMiniFromRight = 1170;
constexpr int kQuitFromRight = 600;

constexpr ControlRow kIcone{"Icone", 150, 60, 480, 480, u"", u"", u"Emblème"};

ControlRow bandButton(const char *name, Extent window, int fromRight, std::u16string_view toolTip) {
    return {name, static_cast<int>(window.width.value()) - fromRight, kTop, kSide, kSide, u"", toolTip};
}

} // namespace

void setBandPictures(RibbonButton &button, const QString &drawing) {
    const QPixmap resting = images::resourcePicture(QStringLiteral(":/icones/%1.argb").arg(drawing));
    button.SetPicture(resting);
    button.SetRestingPicture(resting);
    button.SetHoverPicture(images::resourcePicture(QStringLiteral(":/icones/%1-survol.argb").arg(drawing)));
}

ToolWindow::ToolWindow(const QString &name, Extent size)
    : SkinnedWindow(name, size),
      Icone(this, kIcone),
      Mini(this, bandButton("Mini", size, kMiniFromRight, u"Minimiser")),
      Quit(this, bandButton("Quit", size, kQuitFromRight, u"Fermer")) {
    Icone.SetPicture(images::programIcon().toImage());
    setBandPictures(Mini, QStringLiteral("reduire"));
    setBandPictures(Quit, QStringLiteral("fermer"));
    // Pressed with the mouse they leave the keyboard to the field that has it: a minimised window comes back to it.
    Mini.setFocusPolicy(Qt::TabFocus);
    Quit.setFocusPolicy(Qt::TabFocus);
    whenPressed(Mini, [this] {
        Mini.Release();
        Q_EMIT MinimiseRequested();
    });
    whenPressed(Quit, [this] {
        Quit.Release();
        Q_EMIT CloseRequested();
    });
    onKey(*this, Qt::Key_Escape, [this] {
        if (MayEscape()) {
            Quit.SetValue(true);
        }
    });
    tellKey(Quit, Qt::Key_Escape);
}

void ToolWindow::NameQuit(const QString &name) {
    Quit.setToolTip(name);
    Quit.setAccessibleName(name);
}

} // namespace platform::controls
