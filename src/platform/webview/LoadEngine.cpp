#include "LoadEngine.h"

#include "Engine.h"

#include <QPluginLoader>

namespace platform::webview {

Engine &loadEngine(const QString &path) {
    QPluginLoader loader(path);
    auto *engine = qobject_cast<Engine *>(loader.instance());
    if (engine == nullptr) {
        throw WebViewError(loader.errorString());
    }
    const QString obstacle = engine->obstacle();
    if (!obstacle.isEmpty()) {
        throw WebViewError(obstacle);
    }
    return *engine;
}

} // namespace platform::webview
