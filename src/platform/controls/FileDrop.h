#pragma once

#include <QObject>

class QWidget;

namespace platform::controls {

/// Lets a file of this computer be dropped onto a widget and all that stands in it, text boxes too, which take no
/// files; belongs to the widget.
class FileDrop : public QObject {
    Q_OBJECT

public:
    explicit FileDrop(QWidget &area);

Q_SIGNALS:
    /// A file was dropped, given by its full path. The program that it comes from waits for the end of the drop, so to
    /// be taken by a queued connection.
    void Dropped(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace platform::controls
