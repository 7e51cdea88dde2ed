#include "update/VersionCheckSocket.h"

#include "update/BuildVersion.h"
#include "update/VersionCheck.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QNetworkRequest>

VersionCheckSocket::VersionCheckSocket(QObject* parent)
    : QObject(parent)
{
    deadline.setSingleShot(true);
    connect(&deadline, &QTimer::timeout, this, [this] {
        if (reply)
            reply->abort(); // ends as cancelled: no answer
    });
    // Quitting drops a running request too, before the file could stay half written.
    if (QCoreApplication* application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, &VersionCheckSocket::drop);
}

VersionCheckSocket::~VersionCheckSocket()
{
    drop();
}

void VersionCheckSocket::Get(const QString& url, const QString& path)
{
    drop();
    file.setFileName(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        Q_EMIT requestEnded();
        return;
    }
    cut = false;
    writeFailed = false;
    QNetworkRequest request{QUrl(url)};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(redirectLimit);
    reply = network.get(request);
    connect(reply, &QNetworkReply::readyRead, this, &VersionCheckSocket::receive);
    connect(reply, &QNetworkReply::finished, this, &VersionCheckSocket::end);
    // The whole request, not each pause in it: a server that trickles is no answer.
    deadline.start(timeLimitMs);
}

void VersionCheckSocket::receive()
{
    store(*reply);
    if (file.size() >= bodyLimit) {
        cut = true;
        reply->abort(); // finished follows at once
    }
}

void VersionCheckSocket::end()
{
    deadline.stop();
    QNetworkReply* finished = reply;
    reply = nullptr;
    finished->deleteLater();
    if (!cut)
        store(*finished);
    const bool written = !writeFailed && file.flush();
    file.close();
    if (answered(*finished) && written)
        Event_DownloadComplete(finished->url().toString(),
                               finished->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), file.fileName());
    else
        QFile::remove(file.fileName());
    Q_EMIT requestEnded();
}

void VersionCheckSocket::store(QNetworkReply& from)
{
    const QByteArray bytes = from.read(bodyLimit - file.size());
    writeFailed = writeFailed || file.write(bytes) != bytes.size();
}

// The server answered when it sent a status, an error page too; a connection
// that was never made, no answer in time or a redirect loop is no answer. A body
// cut at the limit was an answer.
bool VersionCheckSocket::answered(const QNetworkReply& finished) const
{
    if (cut)
        return true;
    switch (finished.error()) {
    case QNetworkReply::OperationCanceledError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::TooManyRedirectsError:
        return false;
    default:
        return finished.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() > 0;
    }
}

void VersionCheckSocket::drop()
{
    if (!reply)
        return;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
    reply = nullptr;
    deadline.stop();
    file.close();
    QFile::remove(file.fileName());
}

void VersionCheckSocket::Event_DownloadComplete(const QString&, int, const QString& path)
{
    const VersionCheck::Verdict verdict = VersionCheck::readVersionFile(path, buildVersion());
    if (!verdict.keepFile)
        QFile::remove(path);
    if (!verdict.offer.isEmpty())
        Q_EMIT newerVersion(verdict.offer);
}

namespace VersionCheck {

void doVersionCheck(VersionCheckSocket& socket, const QString& url)
{
    socket.Get(url, versionFilePath());
}

} // namespace VersionCheck
