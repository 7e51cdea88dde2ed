#include "app/SplashWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "update/StartupGlobals.h"
#include "update/ui/newVersionWindow.h"
#include "widgets/ProgressWheel.h"

#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace {

// The update server: answers every request with body, or keeps silent.
class UpdateServer {
public:
    explicit UpdateServer(QByteArray body)
    {
        EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this, body] {
            QTcpSocket* client = server.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, client, [this, client, body] {
                asked << client->readAll().split(' ').value(1);
                if (body.isEmpty())
                    return;
                client->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size())
                              + "\r\nConnection: close\r\n\r\n" + body);
                client->disconnectFromHost();
            });
        });
        qputenv("QUILLMARK_SERVER", u"http://127.0.0.1:%1/mirror/"_s.arg(server.serverPort()).toUtf8());
    }
    ~UpdateServer() { qunsetenv("QUILLMARK_SERVER"); }

    QTcpServer server;
    QByteArrayList asked;
};

class SplashWindowTest : public SummaryWindowTest {
protected:
    SplashWindowTest() { writeLedgers(); }
    ~SplashWindowTest() override { StartupGlobals::AppStoreVersion = false; }

    static newVersionWindow* offer()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<newVersionWindow*>(window); found && found->isVisible())
                return found;
        return nullptr;
    }
};

} // namespace

TEST_F(SplashWindowTest, TheMainWindowFollowsAfterASecondWhileTheServerIsSilent)
{
    UpdateServer silent({});
    QPointer<SplashWindow> splash = Windows::SplashWindow();
    splash->show();
    EXPECT_FALSE(splash->StaticText11->isHidden());
    EXPECT_TRUE(QTest::qWaitFor([&] { return silent.asked.size() == 1; }));
    EXPECT_EQ(silent.asked.front(), "/mirror/VersionInfo/QuillmarkVersion.txt");
    EXPECT_FALSE(Windows::SummaryWindow()->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return splash.isNull(); }, 3000));
    EXPECT_TRUE(Windows::SummaryWindow()->isVisible());
    EXPECT_EQ(offer(), nullptr);
    EXPECT_TRUE(platform.messages.isEmpty());
}

TEST_F(SplashWindowTest, AnAppStoreBuildAsksNothingAndSaysNothingOfIt)
{
    UpdateServer newer("Quillmark\n9\n");
    StartupGlobals::AppStoreVersion = true;
    QPointer<SplashWindow> splash = Windows::SplashWindow();
    splash->show();
    EXPECT_TRUE(splash->StaticText11->isHidden());
    EXPECT_TRUE(splash->ProgressWheel1->isHidden());
    EXPECT_TRUE(QTest::qWaitFor([&] { return splash.isNull(); }, 3000));
    EXPECT_TRUE(newer.asked.isEmpty());
    EXPECT_EQ(offer(), nullptr);
}

TEST_F(SplashWindowTest, ANewerVersionIsOfferedAndDownloadNowHandsItsAddressToTheBrowser)
{
    UpdateServer newer("Quillmark Pro\n2.5\n");
    Windows::SplashWindow()->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return offer() != nullptr; }));
    QPointer<newVersionWindow> window = offer();
    EXPECT_EQ(window->StaticText1->text(),
              u"There is a newer version of Quillmark Pro available. Would you like to download it now?"_s);
    EXPECT_EQ(window->size(), QSize(457, 147));
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_EQ(platform.urls, QStringList{u"http://127.0.0.1:%1/mirror/fernwright.zip"_s.arg(newer.server.serverPort())});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));

    Windows::SplashWindow()->Event_Open(); // a second check, a second offer
    ASSERT_TRUE(QTest::qWaitFor([&] { return offer() != nullptr; }));
    window = offer();
    window->PushButton2->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
    EXPECT_EQ(platform.urls.size(), 1);
}
