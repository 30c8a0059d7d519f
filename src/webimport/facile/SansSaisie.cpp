#include "SansSaisie.h"

#include <QCoreApplication>
#include <QEvent>

namespace webimport::facile {

SansSaisie::SansSaisie() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool SansSaisie::eventFilter(QObject * /*objet*/, QEvent *evenement) {
    switch (evenement->type()) {
    case QEvent::Close:
        // Not ignored, the window would be closed.
        evenement->ignore();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace webimport::facile
