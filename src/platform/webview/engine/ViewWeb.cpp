#include "ViewWeb.h"

#include <QAction>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <chrono>
#include <csignal>
#include <utility>

namespace platform::webview {

namespace {

/// How long a page that is left may give no sign of life.
constexpr std::chrono::seconds kPatience{5};

} // namespace

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
    // The end of a page reports aborted loads, to a window that may be half gone.
    disconnect(&m_page, nullptr, this, nullptr);
    delete m_control;
}

void ViewWeb::connectEvents() {
    connect(&m_profile, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest *request) { request->cancel(); });
    connect(&m_page, &QWebEnginePage::loadStarted, this, [this] {
        m_dead = false;
        m_events.began();
    });
    connect(&m_page, &QWebEnginePage::loadFinished, this, [this] {
        answerAll();
        m_events.complete();
    });
    connect(&m_page, &QWebEnginePage::renderProcessTerminated, this, &ViewWeb::processEnded);
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
    leave([this, address] { m_page.setUrl(address); });
}

void ViewWeb::back() {
    leave([this] { m_page.triggerAction(QWebEnginePage::Back); });
}

void ViewWeb::forward() {
    leave([this] { m_page.triggerAction(QWebEnginePage::Forward); });
}

QUrl ViewWeb::address() const {
    return m_page.url();
}

void ViewWeb::runScript(const QString &source, Result result) {
    const int script = m_scripts++;
    m_waiting.emplace(script, std::move(result));
    if (m_dead) {
        answer(script, {});
        return;
    }
    m_page.runJavaScript(source, QWebEngineScript::ApplicationWorld, [this, script](const QVariant &value) {
        answer(script, value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt);
    });
}

void ViewWeb::answer(int script, const std::optional<QString> &text) {
    const auto waiting = m_waiting.extract(script);
    if (waiting) {
        waiting.mapped()(text);
    }
}

/// The browser drops the scripts of a page that dies or makes room for another.
void ViewWeb::answerAll() {
    while (!m_waiting.empty()) {
        answer(m_waiting.begin()->first, {});
    }
}

/// Goes to another page. A page that keeps itself busy would let the browser go nowhere else on its site: where it gives
/// no sign of life, its process is ended first.
void ViewWeb::leave(const std::function<void()> &go) {
    const int sign = m_scripts;
    const qint64 process = m_page.renderProcessPid();
    runScript(QStringLiteral("''"), [](const std::optional<QString> & /*text*/) {});
    go();
    QTimer::singleShot(kPatience, this, [this, sign, process, go] {
        if (process > 0 && process == m_page.renderProcessPid() && m_waiting.count(sign) > 0) {
            m_leaving = go;
            kill(pid_t(process), SIGKILL);
        }
    });
}

/// The page stays on the screen as it was, unless it was ended because another is wanted.
void ViewWeb::processEnded() {
    m_dead = true;
    answerAll();
    if (const auto go = std::exchange(m_leaving, nullptr)) {
        go();
    } else {
        m_events.complete();
    }
}

} // namespace platform::webview
