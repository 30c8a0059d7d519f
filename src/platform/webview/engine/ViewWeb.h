#pragma once

#include "Engine.h"
#include "Page.h"

#include <QPointer>
#include <QWebEngineProfile>

#include <map>

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
    QUrl address() const override;
    void runScript(const QString &source, Result result) override;

private:
    void connectEvents();
    void answer(int script, const std::optional<QString> &text);
    void answerAll();
    void leave(const std::function<void()> &go);
    void processEnded();

    Events m_events;
    std::map<int, Result> m_waiting; ///< by number of the script
    int m_scripts = 0;
    bool m_dead = false;             ///< the process of the page has ended, and no other page is on its way
    std::function<void()> m_leaving; ///< what a page was ended for
    // The page must go before its profile, and the control before the page.
    QWebEngineProfile m_profile;
    Page m_page;
    QPointer<QWebEngineView> m_control; // gone where the parent has died first
};

} // namespace platform::webview
