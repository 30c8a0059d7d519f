#pragma once

#include <QString>

class QWidget;

namespace platform::dialogs {

/// What a file dialog shows first: a folder, or the nearest one above it that there is, and the name in its field.
struct Start {
    QString folder, name{};

    /// The folder and the name of a file.
    static Start at(const QString &path);
};

/// Asks for an existing file; its full path, empty on cancel. The filter holds pairs of a description, shown
/// as it stands, and patterns, which apply in any case: "Images (*.bmp,*.gif)|*.bmp;*.gif|Tout|*". The parent may
/// be null or hidden.
QString ShowOpen(QWidget *parent, const QString &title, const QString &filter, const Start &start);

/// Asks for the file to write, and before an existing one is taken. A name without an ending gets the suffix,
/// which is given without its dot. Otherwise like ShowOpen.
QString ShowSave(QWidget *parent, const QString &title, const QString &filter, const Start &start,
                 const QString &suffix);

} // namespace platform::dialogs
