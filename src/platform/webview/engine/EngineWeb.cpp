#include "EngineWeb.h"

#include "Fetch.h"
#include "Sandbox.h"
#include "ViewWeb.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QQuickWindow>

QT_BEGIN_NAMESPACE
// The only way to give the browser a context after the start of the application; from qopenglcontext_p.h.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace platform::webview {

// Pages are drawn by the processor. Drawing by the graphics card would ask for a context shared by all windows, made
// before the first of them, in every run; and pages of recipes are no film. The browser looks at such a context without
// asking whether there is one: the one it gets was never created, and says that it is of no use.
EngineWeb::EngineWeb() {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    if (QOpenGLContext::globalShareContext() == nullptr) {
        qt_gl_set_global_share_context(new QOpenGLContext(QCoreApplication::instance()));
    }
}

QString EngineWeb::obstacle() const {
    return sandboxObstacle();
}

std::unique_ptr<View> EngineWeb::makeView(QWidget &parent, const QString &folder, Events events) {
    return std::make_unique<ViewWeb>(parent, folder, std::move(events));
}

std::optional<QByteArray> EngineWeb::openUrl(const QUrl &address, const QString &folder) {
    return fetch(address, folder);
}

} // namespace platform::webview
