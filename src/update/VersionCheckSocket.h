#pragma once

#include <QFile>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QNetworkReply;

// Fetches the version file over HTTP into a file, without blocking, and reads
// it when the server has answered. Whatever the server does, nothing is shown
// but an offer of a newer version: a request that fails (no connection, no
// answer in time, too many redirects) ends quietly and leaves no file behind.
class VersionCheckSocket : public QObject {
    Q_OBJECT

public:
    explicit VersionCheckSocket(QObject* parent = nullptr);
    // A request still running is dropped with its partial file.
    ~VersionCheckSocket() override;

    // Starts streaming the body at url into the file at path, made afresh.
    void Get(const QString& url, const QString& path);
    // Reads the file of a request the server answered; offers a newer version.
    void Event_DownloadComplete(const QString& url, int status, const QString& path);

    // How long a request may take in all, and how many redirects it follows.
    int timeLimitMs = 10000;
    int redirectLimit = 5;
    // The body is cut here: the file's first two lines are all that is read.
    qint64 bodyLimit = 64 * 1024;

Q_SIGNALS:
    // The file names a newer version; offer is the text to show.
    void newerVersion(const QString& offer);
    // The request is over, answered or not.
    void requestEnded();

private:
    void receive();
    // Writes what has come of the body, up to bodyLimit, to the file.
    void store(QNetworkReply& from);
    bool answered(const QNetworkReply& finished) const;
    void end();
    void drop();

    QNetworkAccessManager network;
    QPointer<QNetworkReply> reply;
    QFile file;
    QTimer deadline;
    bool cut = false;         // the body reached bodyLimit
    bool writeFailed = false; // the file didn't take every byte
};

namespace VersionCheck {
// Fetches the version file at url into versionFilePath() with the socket.
void doVersionCheck(VersionCheckSocket& socket, const QString& url);
} // namespace VersionCheck
