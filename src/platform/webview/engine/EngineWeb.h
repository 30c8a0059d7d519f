#pragma once

#include "Engine.h"

#include <QObject>

namespace platform::webview {

/// The engine by Qt WebEngine and Qt Network.
class EngineWeb : public QObject, public Engine {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "savorel.platform.webview.Engine/1")
    Q_INTERFACES(platform::webview::Engine)

public:
    EngineWeb();

    QString obstacle() const override;
    std::unique_ptr<View> makeView(QWidget &parent, const QString &folder, Events events) override;
    std::optional<QByteArray> openUrl(const QUrl &address, const QString &folder) override;
};

} // namespace platform::webview
