#pragma once

#include <QByteArrayList>
#include <QString>
#include <QTcpServer>

#include <functional>

// An HTTP server on 127.0.0.1 for one test. Each request is answered with what
// respond gives for its path and the connection closed; an empty answer says
// nothing and keeps the connection open.
class LocalHttpServer {
public:
    explicit LocalHttpServer(std::function<QByteArray(const QByteArray& path)> respond);

    // The address of path on this server.
    QString url(const QString& path) const;

    QByteArrayList asked; // the paths requested, in order

private:
    QTcpServer server;
};

// An HTTP/1.1 response with its body's length.
QByteArray httpResponse(const QByteArray& status, const QByteArray& body, const QByteArray& headers = {});
