#pragma once

#include "platform/controls/SkinnedWindow.h"

#include <QAction>
#include <QMenu>

namespace browser {

class Frmmain;

/// The window that stands for the program on the task bar, and that carries the two popup menus of the main window:
/// Menu1 for the lists, Menu2 for the photo.
class Pop : public platform::controls::SkinnedWindow {
    Q_OBJECT

public:
    explicit Pop(Frmmain &frm);

    QMenu Menu1, Menu2;
    QAction Ajouter, Modifier, Supprimer;
    QAction ModifPhoto, SuppPhoto;

private:
    void Composer();
    void BrancherMenus(Frmmain &frm);
    void BrancherFenetre(Frmmain &frm);
    void MenuDesListes(const Frmmain &frm, const QPoint &lieu);
};

} // namespace browser
