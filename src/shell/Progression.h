#pragma once

#include "platform/controls/Labels.h"
#include "platform/controls/Picture.h"
#include "platform/controls/SkinnedWindow.h"

namespace shell {

/// A small window that shows how far a long step is, from its making to its end; it takes nothing from the user.
class Progression : public platform::controls::SkinnedWindow {
    Q_OBJECT

public:
    /// Stands in the middle of the other window, which may be hidden.
    Progression(const QWidget &sur, const QString &travail);

    platform::controls::Image Icone;
    platform::controls::Label Label1;
    platform::controls::Panel Pb;

    /// So many steps are done of so many; a total of 0 is not known yet.
    void Montrer(qint64 faites, qint64 total);
};

} // namespace shell
