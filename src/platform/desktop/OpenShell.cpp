#include "OpenShell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace platform::desktop {

bool OpenShell(const QString &address) {
    QUrl url(address, QUrl::StrictMode);
    if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir()) {
        url = QUrl::fromLocalFile(url.toLocalFile() + QStringLiteral("/index.htm"));
    }
    if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile())) {
        return false;
    }
    return QDesktopServices::openUrl(url);
}

} // namespace platform::desktop
