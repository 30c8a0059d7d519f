#pragma once

#include "platform/controls/ControlArray.h"
#include "platform/controls/Labels.h"
#include "platform/controls/Options.h"
#include "platform/controls/Picture.h"
#include "platform/controls/ToolWindow.h"

namespace shell {

/// The opening screen, which is also the box "A Propos". It closes itself.
class Splash : public platform::controls::ToolWindow {
    Q_OBJECT

public:
    Splash();

    platform::controls::Image Embleme;
    platform::controls::Label L, Label1;
    platform::controls::ControlArray<platform::controls::Ribbon> MesSofts;
    platform::controls::Ribbon Orvane;
    /// Whether the program opens with this screen.
    platform::controls::CheckBox SphashAuto;

private:
    void Peindre();
    void Brancher();
};

} // namespace shell
