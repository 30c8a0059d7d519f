#pragma once

#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

namespace platform::webview {

/// Keeps a page from the files of this computer, but for those in a folder.
class FileGuard : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

public:
    explicit FileGuard(QString folder) : m_folder(std::move(folder)) {}

    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    QString m_folder;
};

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
    bool javaScriptPrompt(const QUrl &origin, const QString &text, const QString &proposal,
                          QString *answer) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &text, int line,
                                  const QString &source) override;

private:
    void restrict();

    QString m_folder;
    FileGuard m_guard;
};

} // namespace platform::webview
