#include "Fetch.h"

#include "Places.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include <chrono>

namespace platform::webview {

namespace {

constexpr std::chrono::seconds kPatience{30};
constexpr qint64 kLargest = 33'554'432; // bytes

std::optional<QByteArray> fetchFile(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargest) {
        return {};
    }
    return file.readAll();
}

QNetworkRequest requestOf(const QUrl &address) {
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute}) {
        request.setAttribute(attribute, QNetworkRequest::Manual);
    }
    return request;
}

std::optional<QByteArray> fetchFromWeb(const QUrl &address) {
    QNetworkAccessManager network;
    const std::unique_ptr<QNetworkReply> reply(network.get(requestOf(address)));
    QEventLoop waiting;
    QObject::connect(reply.get(), &QNetworkReply::finished, &waiting, &QEventLoop::quit);
    // Counted in what has come, since a server may tell any length. Unpacking may make more of it.
    QByteArray body;
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &waiting, [&body, &reply] {
        body += reply->readAll();
        if (body.size() > kLargest) {
            reply->abort();
        }
    });
    QTimer::singleShot(kPatience, reply.get(), [&reply] { reply->abort(); });
    if (!reply->isFinished()) {
        waiting.exec();
    }
    if (reply->error() != QNetworkReply::NoError) {
        return {};
    }
    body += reply->readAll();
    return body.size() <= kLargest ? std::optional(body) : std::nullopt;
}

} // namespace

std::optional<QByteArray> fetch(const QUrl &address, const QString &folder) {
    if (!isPlaceToGo(address, folder)) {
        return {};
    }
    return address.isLocalFile() ? fetchFile(address.toLocalFile()) : fetchFromWeb(address);
}

} // namespace platform::webview
