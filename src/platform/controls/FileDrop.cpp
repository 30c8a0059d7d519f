#include "FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace platform::controls {

namespace {

/// Path of the one file of this computer that is being dragged; empty for anything else.
QString draggedFile(const QMimeData &dragged) {
    const QList<QUrl> places = dragged.urls();
    return places.size() == 1 ? places.first().toLocalFile() : QString();
}

} // namespace

FileDrop::FileDrop(QWidget &area) : QObject(&area) {
    area.setAcceptDrops(true);
    area.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto &drag = dynamic_cast<QDropEvent &>(*event);
    const QString path = draggedFile(*drag.mimeData());
    if (!path.isEmpty()) {
        // The file stays where it is, also where the other program proposes to move it.
        drag.setDropAction(Qt::CopyAction);
        drag.accept();
        if (event->type() == QEvent::Drop) {
            Q_EMIT Dropped(path);
        }
    }
    return true;
}

} // namespace platform::controls
