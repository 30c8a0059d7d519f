#pragma once

#include <QWebEnginePage>

namespace platform::webview {

/// A page that goes only where it may, and neither asks nor tells the user anything by boxes of its own.
class Page : public QWebEnginePage {
    Q_OBJECT

public:
    Page(QWebEngineProfile *profile, const QString &folder);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &oldFiles,
                            const QStringList &acceptedMimeTypes) override;
    void javaScriptAlert(const QUrl &origin, const QString &text) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &text) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &text, const QString &proposal, QString *answer) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &text, int line,
                                  const QString &source) override;

private:
    void restrict();

    QString m_folder;
};

} // namespace platform::webview
