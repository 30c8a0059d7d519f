#pragma once

#include <QByteArray>

#include <optional>

class QString;
class QUrl;

namespace platform::webview {

/// What Engine::openUrl does.
std::optional<QByteArray> fetch(const QUrl &address, const QString &folder);

} // namespace platform::webview
