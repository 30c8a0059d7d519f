#include "LoadEngine.h"

#include "Engine.h"

#include <QPluginLoader>

namespace platform::webview {

Engine &loadEngine(const QString &path) {
    QPluginLoader loader(path);
    auto *engine = qobject_cast<Engine *>(loader.instance());
    if (engine == nullptr) {
        throw WebViewError(
            QStringLiteral("Une partie du navigateur manque sur cet ordinateur.\n\n"
                           "Ce que vous pouvez faire : demandez à qui s'en occupe d'installer le "
                           "paquet libqt6webenginewidgets6, puis recommencez.\n\n") +
            loader.errorString());
    }
    const QString obstacle = engine->obstacle();
    if (!obstacle.isEmpty()) {
        throw WebViewError(obstacle);
    }
    return *engine;
}

} // namespace platform::webview
