#pragma once

#include "platform/controls/ControlArray.h"
#include "platform/controls/Labels.h"
#include "platform/controls/Options.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RibbonButton.h"
#include "platform/controls/SkinnedWindow.h"

namespace browser {
class Frmmain;
}

namespace shell {

/// The window in which the display mode is chosen. It closes itself.
class Patch : public platform::controls::SkinnedWindow {
    Q_OBJECT

public:
    /// Throws std::out_of_range when the stored mode is none of those offered.
    explicit Patch(browser::Frmmain &frm);

    platform::controls::Image Icone;
    platform::controls::Label Label1, Label2;
    platform::controls::ControlArray<platform::controls::OptionButton> c;
    platform::controls::Ribbon OK, Quit;

private:
    void Peindre(const browser::Frmmain &frm);
    void Brancher(browser::Frmmain &frm);
    int ModeChoisi() const;
};

} // namespace shell
