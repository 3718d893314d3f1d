#include "desktop/machine/http_client.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <memory>

#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr qint64 kLargestAnswer = 4096;

}  // namespace

std::optional<std::string> QtHttpClient::Get(const std::string& address, std::chrono::milliseconds limit) {
    QNetworkAccessManager network;
    QNetworkRequest request(QUrl(Shown(address)));
    request.setTransferTimeout(static_cast<int>(limit.count()));
    const std::unique_ptr<QNetworkReply> reply(network.get(request));
    QEventLoop waiting;
    QObject::connect(reply.get(), &QNetworkReply::finished, &waiting, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::downloadProgress, reply.get(),
                     [&](qint64 received, qint64) {
                         if (received > kLargestAnswer) reply->abort();
                     });
    if (!reply->isFinished()) waiting.exec();
    if (reply->error() != QNetworkReply::NoError) return std::nullopt;
    return reply->readAll().toStdString();
}

}  // namespace quillmark::desktop
