#pragma once

#include <QString>

class QWidget;

namespace platform::dialogs {

/// Asks for an existing file; its full path, empty on cancel. The filter holds pairs of a description, shown
/// as it stands, and patterns, which apply in any case: "Images (*.bmp,*.gif)|*.bmp;*.gif|Tout|*". The start
/// is the folder shown first, or the full path of the file proposed. The parent may be null or hidden.
QString ShowOpen(QWidget *parent, const QString &title, const QString &filter, const QString &start);

/// Asks for the file to write, and before an existing one is taken. A name without an ending gets the suffix,
/// which is given without its dot. Otherwise like ShowOpen.
QString ShowSave(QWidget *parent, const QString &title, const QString &filter, const QString &start,
                 const QString &suffix);

} // namespace platform::dialogs
