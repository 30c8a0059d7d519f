#pragma once

#include <QString>

namespace platform::desktop {

/// Opens an address, full and encoded as in a browser ("https://...", "file:///..."), with the program that the
/// desktop has for it. A folder is opened at its index.htm. False when nothing can open it.
bool OpenShell(const QString &address);

} // namespace platform::desktop
