#include "support/LocalHttpServer.h"

#include <QTcpSocket>

#include <gtest/gtest.h>

LocalHttpServer::LocalHttpServer(std::function<QByteArray(const QByteArray& path)> respond)
{
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this, respond] {
        QTcpSocket* client = server.nextPendingConnection();
        QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, respond] {
            asked << client->readAll().split(' ').value(1);
            const QByteArray answer = respond(asked.back());
            if (!answer.isEmpty()) {
                client->write(answer);
                client->disconnectFromHost();
            }
        });
    });
}

QString LocalHttpServer::url(const QString& path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(server.serverPort()).arg(path);
}

QByteArray httpResponse(const QByteArray& status, const QByteArray& body, const QByteArray& headers)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" + headers
        + "Connection: close\r\n\r\n" + body;
}
