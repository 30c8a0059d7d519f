#pragma once

#include "Engine.h"
#include "Page.h"

#include <QPointer>
#include <QWebEngineProfile>

class QWebEngineView;

namespace platform::webview {

/// A view by Qt WebEngine.
class ViewWeb : public QObject, public View {
    Q_OBJECT

public:
    ViewWeb(QWidget &parent, const QString &folder, Events events);
    ~ViewWeb() override;

    QWidget &widget() override;
    void navigate(const QUrl &address) override;
    void back() override;
    void forward() override;
    void stop() override;
    QUrl address() const override;
    QString title() const override;
    void runScript(const QString &source,
                   std::function<void(const std::optional<QString> &)> result) override;

private:
    void connectEvents();

    Events m_events;
    // The page must go before its profile, and the control before the page.
    QWebEngineProfile m_profile;
    Page m_page;
    QPointer<QWebEngineView> m_control; // gone where the parent has died first
};

} // namespace platform::webview
