#include "support/DataFolder.h"
#include "update/VersionCheckSocket.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// An HTTP server on 127.0.0.1 that answers every request with what respond
// gives for its path; an empty answer says nothing and keeps the line open.
class LocalServer {
public:
    explicit LocalServer(std::function<QByteArray(const QByteArray& path)> respond)
    {
        EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this, respond] {
            QTcpSocket* client = server.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, client, [client, respond, this] {
                const QByteArray request = client->readAll();
                ++requests;
                const QByteArray answer = respond(request.split(' ').value(1));
                if (!answer.isEmpty()) {
                    client->write(answer);
                    client->disconnectFromHost();
                }
            });
        });
    }

    QString url(const QString& path = u"/VersionInfo/QuillmarkVersion.txt"_s) const
    {
        return u"http://127.0.0.1:%1%2"_s.arg(server.serverPort()).arg(path);
    }

    QTcpServer server;
    int requests = 0;
};

QByteArray response(const QByteArray& status, const QByteArray& body, const QByteArray& headers = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n" + headers
        + "Connection: close\r\n\r\n" + body;
}

class VersionCheckSocketTest : public ::testing::Test {
protected:
    // Runs one check against url; the offers made, or nothing.
    QStringList check(const QString& url, int timeLimitMs = 10000)
    {
        VersionCheckSocket socket;
        socket.timeLimitMs = timeLimitMs;
        QSignalSpy ended(&socket, &VersionCheckSocket::requestEnded);
        QSignalSpy offers(&socket, &VersionCheckSocket::newerVersion);
        socket.Get(url, path);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !ended.isEmpty(); }, 20000));
        QStringList texts;
        for (const QList<QVariant>& offer : offers)
            texts << offer.at(0).toString();
        return texts;
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"Temporary Version File"_s);
    const QString offer = u"There is a newer version of Quillmark available. Would you like to download it now?"_s;
};

} // namespace

TEST_F(VersionCheckSocketTest, AnAnswerIsReadWhateverItsStatusAndTheFileGoes)
{
    const struct {
        QByteArray answer;
        bool offered;
    } cases[] = {
        {response("200 OK", "Quillmark\n2.4.3\n"), false},
        {response("200 OK", "Quillmark\n2.4.4\n"), false},
        {response("200 OK", "Quillmark\n2.5\n"), true},
        {response("404 Not Found", "<html><body>Not here</body></html>"), false},
        {response("500 Internal Server Error", "Quillmark\n9\n"), true},
        {response("200 OK", "Quillmark\n3\n" + QByteArray(50 * 1024 * 1024, 'x')), true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer.left(40).toStdString());
        LocalServer server([&](const QByteArray&) { return c.answer; });
        EXPECT_EQ(check(server.url()), c.offered ? QStringList{offer} : QStringList{});
        EXPECT_FALSE(fileExists(path));
    }
}

TEST_F(VersionCheckSocketTest, AnEmptyFirstLineKeepsTheFileForTheNextCheckToMakeAfresh)
{
    LocalServer server([](const QByteArray&) { return response("200 OK", "\n2.5\n"); });
    EXPECT_EQ(check(server.url()), QStringList{});
    EXPECT_EQ(readBytes(path), "\n2.5\n");
    LocalServer newer([](const QByteArray&) { return response("200 OK", "Quillmark\n2.5\n"); });
    EXPECT_EQ(check(newer.url()), QStringList{offer});
    EXPECT_FALSE(fileExists(path));
}

TEST_F(VersionCheckSocketTest, NoAnswerOffersNothingAndLeavesNoFile)
{
    LocalServer silent([](const QByteArray&) { return QByteArray(); });
    EXPECT_EQ(check(silent.url(), 300), QStringList{});
    EXPECT_EQ(silent.requests, 1);
    EXPECT_FALSE(fileExists(path));

    LocalServer loop([&](const QByteArray& asked) {
        return response("302 Found", {}, "Location: " + asked + "x\r\n");
    });
    EXPECT_EQ(check(loop.url()), QStringList{});
    EXPECT_GT(loop.requests, 1);
    EXPECT_LE(loop.requests, 6);
    EXPECT_FALSE(fileExists(path));

    quint16 closedPort = 0;
    {
        QTcpServer gone;
        gone.listen(QHostAddress::LocalHost);
        closedPort = gone.serverPort();
    }
    EXPECT_EQ(check(u"http://127.0.0.1:%1/VersionInfo/QuillmarkVersion.txt"_s.arg(closedPort)), QStringList{});
    EXPECT_FALSE(fileExists(path));
}

TEST_F(VersionCheckSocketTest, ARequestDroppedWithItsSocketLeavesNoFileAndNoOffer)
{
    LocalServer silent([](const QByteArray&) { return QByteArray(); });
    {
        VersionCheckSocket socket;
        socket.Get(silent.url(), path);
        EXPECT_TRUE(QTest::qWaitFor([&] { return silent.requests == 1; }));
        EXPECT_TRUE(fileExists(path));
    }
    EXPECT_FALSE(fileExists(path));
}
