#pragma once

#include <QString>

namespace platform::dialogs {

/// Makes the toolkit's own texts (dialogs, context menus) French whatever the system's language, from
/// "qtbase_fr.qm" in the folder given, and its dialogs the toolkit's own instead of the desktop's. A missing
/// file leaves the English texts. To be called once, with the application made.
void SpeakFrench(const QString &translationsFolder);

} // namespace platform::dialogs
