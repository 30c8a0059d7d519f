#pragma once

class QString;
class QUrl;

namespace platform::webview {

/// Whether an address may be shown or fetched: the web, or an existing file in the folder, links followed.
bool isPlaceToGo(const QUrl &address, const QString &folder);

} // namespace platform::webview
