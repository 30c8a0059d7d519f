#include "ViewWeb.h"

#include <QAction>
#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <QWebEngineView>

namespace platform::webview {

// Without a name of its own a profile keeps everything in memory.
ViewWeb::ViewWeb(QWidget &parent, const QString &folder, Events events)
    : m_events(std::move(events)), m_page(&m_profile, folder), m_control(new QWebEngineView(&parent)) {
    m_profile.setHttpAcceptLanguage(QStringLiteral("fr"));
    m_control->setPage(&m_page);
    m_control->setContextMenuPolicy(Qt::PreventContextMenu);
    m_control->setAcceptDrops(false);
    connectEvents();
}

ViewWeb::~ViewWeb() {
    // The end of a page tells of loads broken off, to a window that may be half gone.
    disconnect(&m_page, nullptr, this, nullptr);
    delete m_control;
}

void ViewWeb::connectEvents() {
    connect(&m_profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *request) { request->cancel(); });
    connect(&m_page, &QWebEnginePage::loadStarted, this, [this] { m_events.began(); });
    connect(&m_page, &QWebEnginePage::loadFinished, this, [this] { m_events.complete(); });
    connect(&m_page, &QWebEnginePage::linkHovered, this,
            [this](const QString &url) { m_events.hovered(url); });
    QAction *back = m_page.action(QWebEnginePage::Back);
    QAction *forward = m_page.action(QWebEnginePage::Forward);
    for (const QAction *action : {back, forward}) {
        connect(action, &QAction::enabledChanged, this,
                [this, back, forward] { m_events.history(back->isEnabled(), forward->isEnabled()); });
    }
}

QWidget &ViewWeb::widget() {
    return *m_control;
}

void ViewWeb::navigate(const QUrl &address) {
    m_page.setUrl(address);
}

void ViewWeb::back() {
    m_page.triggerAction(QWebEnginePage::Back);
}

void ViewWeb::forward() {
    m_page.triggerAction(QWebEnginePage::Forward);
}

void ViewWeb::stop() {
    m_page.triggerAction(QWebEnginePage::Stop);
}

QUrl ViewWeb::address() const {
    return m_page.url();
}

QString ViewWeb::title() const {
    return m_page.title();
}

void ViewWeb::runScript(const QString &source, std::function<void(const std::optional<QString> &)> result) {
    m_page.runJavaScript(
        source, QWebEngineScript::ApplicationWorld, [result = std::move(result)](const QVariant &value) {
            result(value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt);
        });
}

} // namespace platform::webview
