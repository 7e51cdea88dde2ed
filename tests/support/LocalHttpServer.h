#pragma once

#include <QByteArrayList>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>

// An HTTP server on 127.0.0.1 for one test. Each request is answered with what
// respond gives for its path and the connection closed; an empty answer says
// nothing and keeps the connection open.
class LocalHttpServer {
public:
    explicit LocalHttpServer(std::function<QByteArray(const QByteArray& path)> respond)
    {
        server.listen(QHostAddress::LocalHost);
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this, respond] {
            QTcpSocket* client = server.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, respond] {
                asked << client->readAll().split(' ').value(1);
                if (const QByteArray answer = respond(asked.back()); !answer.isEmpty()) {
                    client->write(answer);
                    client->disconnectFromHost();
                }
            });
        });
    }

    QString url(const QString& path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(server.serverPort()).arg(path);
    }

    QByteArrayList asked; // the paths requested, in order

private:
    QTcpServer server;
};

// An HTTP/1.1 response with its body's length.
inline QByteArray httpResponse(const QByteArray& status, const QByteArray& body, const QByteArray& headers = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" + headers
        + "Connection: close\r\n\r\n" + body;
}
