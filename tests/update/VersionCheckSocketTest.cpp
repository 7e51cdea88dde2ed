#include "support/DataFolder.h"
#include "support/LocalHttpServer.h"
#include "update/VersionCheckSocket.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

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

    const QString file = u"/VersionInfo/QuillmarkVersion.txt"_s;
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
        {httpResponse("200 OK", "Quillmark\n2.4.3\n"), false},
        {httpResponse("200 OK", "Quillmark\n2.4.4\n"), false},
        {httpResponse("200 OK", "Quillmark\n2.5\n"), true},
        {httpResponse("404 Not Found", "<html><body>Not here</body></html>"), false},
        {httpResponse("500 Internal Server Error", "Quillmark\n9\n"), true},
        {httpResponse("200 OK", "Quillmark\n3\n" + QByteArray(50 * 1024 * 1024, 'x')), true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer.left(40).toStdString());
        LocalHttpServer server([&](const QByteArray&) { return c.answer; });
        EXPECT_EQ(check(server.url(file)), c.offered ? QStringList{offer} : QStringList{});
        EXPECT_FALSE(fileExists(path));
    }
}

TEST_F(VersionCheckSocketTest, AnEmptyFirstLineKeepsTheFileForTheNextCheckToMakeAfresh)
{
    LocalHttpServer server([](const QByteArray&) { return httpResponse("200 OK", "\n2.5\n"); });
    EXPECT_EQ(check(server.url(file)), QStringList{});
    EXPECT_EQ(readBytes(path), "\n2.5\n");
    LocalHttpServer newer([](const QByteArray&) { return httpResponse("200 OK", "Quillmark\n2.5\n"); });
    EXPECT_EQ(check(newer.url(file)), QStringList{offer});
    EXPECT_FALSE(fileExists(path));
}

TEST_F(VersionCheckSocketTest, NoAnswerOffersNothingAndLeavesNoFile)
{
    LocalHttpServer silent([](const QByteArray&) { return QByteArray(); });
    EXPECT_EQ(check(silent.url(file), 300), QStringList{});
    EXPECT_EQ(silent.asked.size(), 1);
    EXPECT_FALSE(fileExists(path));

    LocalHttpServer loop([&](const QByteArray& asked) {
        return httpResponse("302 Found", {}, "Location: " + asked + "x\r\n");
    });
    EXPECT_EQ(check(loop.url(file)), QStringList{});
    EXPECT_GT(loop.asked.size(), 1);
    EXPECT_LE(loop.asked.size(), 6);
    EXPECT_FALSE(fileExists(path));

    quint16 closedPort = 0;
    {
        QTcpServer gone;
        gone.listen(QHostAddress::LocalHost);
        closedPort = gone.serverPort();
    }
    EXPECT_EQ(check(u"http://127.0.0.1:%1%2"_s.arg(closedPort).arg(file)), QStringList{});
    EXPECT_FALSE(fileExists(path));
}

TEST_F(VersionCheckSocketTest, ARequestDroppedWithItsSocketLeavesNoFileAndNoOffer)
{
    LocalHttpServer silent([](const QByteArray&) { return QByteArray(); });
    {
        VersionCheckSocket socket;
        socket.Get(silent.url(file), path);
        EXPECT_TRUE(QTest::qWaitFor([&] { return silent.asked.size() == 1; }));
        EXPECT_TRUE(fileExists(path));
    }
    EXPECT_FALSE(fileExists(path));
}
