#include "Page.h"

#include "Places.h"

#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>

#include <array>

namespace platform::webview {

// The browser lets pages from the net not near any file, but pages of files near all.
void FileGuard::interceptRequest(QWebEngineUrlRequestInfo &request) {
    request.block(request.requestUrl().isLocalFile() && !isPlaceToGo(request.requestUrl(), m_folder));
}

Page::Page(QWebEngineProfile *profile, const QString &folder)
    : QWebEnginePage(profile), m_folder(folder), m_guard(folder) {
    setUrlRequestInterceptor(&m_guard);
    restrict();
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest &request) {
                if (request.isUserInitiated() && isPlaceToGo(request.requestedUrl(), m_folder)) {
                    setUrl(request.requestedUrl());
                }
            });
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
}

void Page::restrict() {
    constexpr std::array kRefused{
        QWebEngineSettings::LocalStorageEnabled,
        QWebEngineSettings::JavascriptCanOpenWindows,
        QWebEngineSettings::JavascriptCanAccessClipboard,
        QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::PdfViewerEnabled,
        QWebEngineSettings::FullScreenSupportEnabled,
        QWebEngineSettings::ScreenCaptureEnabled,
        QWebEngineSettings::DnsPrefetchEnabled,
    };
    for (const auto attribute : kRefused) {
        settings()->setAttribute(attribute, false);
    }
    // Also decides whether one may go back to a page of the net that was reached from a file.
    settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

bool Page::acceptNavigationRequest(const QUrl &url, NavigationType /*type*/, bool isMainFrame) {
    // Frames are often made of a text or left blank; what they may not show is decided by the browser's own rules.
    return isPlaceToGo(url, m_folder) || (!isMainFrame && !url.isLocalFile());
}

QStringList Page::chooseFiles(FileSelectionMode /*mode*/, const QStringList & /*oldFiles*/,
                              const QStringList & /*acceptedMimeTypes*/) {
    return {};
}

void Page::javaScriptAlert(const QUrl & /*origin*/, const QString & /*text*/) {}

bool Page::javaScriptConfirm(const QUrl & /*origin*/, const QString & /*text*/) {
    // Also asked of the user who leaves a page that wants to keep him.
    return true;
}

bool Page::javaScriptPrompt(const QUrl & /*origin*/, const QString & /*text*/, const QString & /*proposal*/,
                            QString * /*answer*/) {
    return false;
}

void Page::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/, const QString & /*text*/,
                                    int /*line*/, const QString & /*source*/) {}

} // namespace platform::webview
