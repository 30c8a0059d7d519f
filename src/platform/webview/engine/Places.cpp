#include "Places.h"

#include <QFileInfo>
#include <QUrl>

namespace platform::webview {

bool isPlaceToGo(const QUrl &address, const QString &folder) {
    if (address.isLocalFile()) {
        // A file that is missing has no canonical path; the browser reports it.
        const QFileInfo file(address.toLocalFile());
        const QString path = file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
        return path.startsWith(QFileInfo(folder).canonicalFilePath() + u'/');
    }
    return address.scheme() == u"http" || address.scheme() == u"https";
}

} // namespace platform::webview
