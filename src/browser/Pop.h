#pragma once

#include "platform/controls/Labels.h"
#include "platform/controls/SkinnedWindow.h"

#include <QAction>
#include <QMenu>

namespace browser {

class Frmmain;

/// The window that stands for the program on the task bar while it is minimised, and that holds the two popup menus of
/// the main window: Menu1 for the lists, Menu2 for the photo.
class Pop : public platform::controls::SkinnedWindow {
    Q_OBJECT

public:
    explicit Pop(Frmmain &frm);

    /// Stored in FenetreOuverte while only the main window is open.
    static constexpr int kSeule = 99;

    /// Tool of the window that is to be shown again when the program comes back.
    int FenetreOuverte = 0;

    platform::controls::Label Invitation;
    QMenu Menu1, Menu2;
    QAction Ajouter, Modifier, Supprimer;
    QAction ModifPhoto, SuppPhoto;

Q_SIGNALS:
    /// The window was minimised, or brought back.
    void EtatChange();

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void Composer();
    void BrancherMenus(Frmmain &frm);
    void BrancherFenetre(Frmmain &frm);
    void MenuDesListes(Frmmain &frm, const QPoint &lieu);
};

} // namespace browser
