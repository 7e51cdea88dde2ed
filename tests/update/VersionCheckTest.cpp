#include "support/DataFolder.h"
#include "support/LocalHttpServer.h"
#include "update/VersionCheck.h"
#include "update/VersionCheckSocket.h"

#include <QSignalSpy>
#include <QTest>

namespace {

const QString kOffer = u"There is a newer version of Quillmark available. Would you like to download it now?"_s;

class VersionCheckTest : public ::testing::Test {
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
};

} // namespace

TEST_F(VersionCheckTest, TheFileOffersOnlyAGreaterVersionAndIsKeptOnlyWhenItsFirstLineIsEmpty)
{
    const QString offer = u"There is a newer version of Quillmark Pro available. Would you like to download it now?"_s;
    // The versions compare as their digits joined, padded to three: 2.10 is 210.
    const std::tuple<QByteArray, bool, QString> cases[] = {
        {"Quillmark Pro\n2.4.5\n", false, offer}, {"Quillmark Pro\r\n2.10\r\n", false, {}},
        {"Quillmark Pro\r3\r", false, offer},     {"Quillmark Pro\n2.4.4\n", false, {}},
        {"Quillmark Pro\n2.5", false, offer},      {"Quillmark Pro\n99999999999999999999", false, offer},
        {"Quillmark Pro", false, {}},             {"\n9.9.9\n", true, {}},
        {"", true, {}},                           {"\x89PNG\r\n\x1a\n\0\0\xff", false, {}},
    };
    for (const auto& [text, keep, offered] : cases) {
        writeBytes(path, text);
        const VersionCheck::Verdict verdict = VersionCheck::readVersionFile(path, u"2.4.4"_s);
        EXPECT_EQ(verdict.keepFile, keep) << text.toStdString();
        EXPECT_EQ(verdict.offer, offered) << text.toStdString();
    }
    EXPECT_EQ(VersionCheck::theAppName, u"\uFFFDPNG"_s);
    const VersionCheck::Verdict missing = VersionCheck::readVersionFile(folder.filePath(u"none"_s), u"2.4.4"_s);
    EXPECT_FALSE(missing.keepFile);
    EXPECT_TRUE(missing.offer.isEmpty());
}

TEST_F(VersionCheckTest, AnAnswerIsReadWhateverItsStatusOrLengthAgainstTheBuildsVersion)
{
    const std::tuple<QByteArray, bool, bool> cases[] = {
        {httpResponse("200 OK", "\n2.5\n"), false, true}, // kept for the next check to make afresh
        {httpResponse("200 OK", "Quillmark\n2.4.4\n"), false, false},
        {httpResponse("500 Internal Server Error", "Quillmark\n2.5\n"), true, false},
        {httpResponse("200 OK", "Quillmark\n3\n" + QByteArray(100 * 1024, 'x')), true, false}, // cut at the limit
    };
    for (const auto& [answer, offered, kept] : cases) {
        LocalHttpServer server([&](const QByteArray&) { return answer; });
        EXPECT_EQ(check(server.url(file)), offered ? QStringList{kOffer} : QStringList{}) << answer.left(40).toStdString();
        EXPECT_EQ(fileExists(path), kept) << answer.left(40).toStdString();
    }
}

TEST_F(VersionCheckTest, NoAnswerInTimeARedirectLoopOrAClosedPortOffersNothingAndLeavesNoFile)
{
    LocalHttpServer silent([](const QByteArray&) { return QByteArray(); });
    LocalHttpServer loop([](const QByteArray& asked) { return httpResponse("302 Found", {}, "Location: " + asked + "x\r\n"); });
    quint16 closedPort = 0;
    {
        QTcpServer gone;
        gone.listen(QHostAddress::LocalHost);
        closedPort = gone.serverPort();
    }
    const std::pair<QString, int> urls[] = {
        {silent.url(file), 300}, {loop.url(file), 10000}, {u"http://127.0.0.1:%1%2"_s.arg(closedPort).arg(file), 10000}};
    for (const auto& [url, limit] : urls) {
        EXPECT_EQ(check(url, limit), QStringList{}) << url.toStdString();
        EXPECT_FALSE(fileExists(path));
    }
    EXPECT_EQ(silent.asked.size(), 1);
    EXPECT_GT(loop.asked.size(), 1);
    EXPECT_LE(loop.asked.size(), 6);

    // A request dropped with its socket takes its file along.
    {
        VersionCheckSocket socket;
        socket.Get(silent.url(file), path);
        EXPECT_TRUE(QTest::qWaitFor([&] { return silent.asked.size() == 2; }));
        EXPECT_TRUE(fileExists(path));
    }
    EXPECT_FALSE(fileExists(path));
}
