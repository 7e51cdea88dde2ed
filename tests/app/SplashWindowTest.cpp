#include "app/SplashWindow.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "support/LocalHttpServer.h"
#include "update/StartupGlobals.h"
#include "update/VersionCheck.h"
#include "update/ui/newVersionWindow.h"
#include "widgets/ProgressWheel.h"

#include <QLabel>
#include <QPushButton>

namespace {

// The start screen with the update server of the test's run: it answers every
// request with body, or keeps silent.
class SplashWindowTest : public SummaryWindowTest {
protected:
    SplashWindowTest() { writeLedgers(); }
    ~SplashWindowTest() override
    {
        StartupGlobals::AppStoreVersion = false;
        qunsetenv("QUILLMARK_SERVER");
    }

    void serve(const QByteArray& body)
    {
        server.emplace([body](const QByteArray&) { return body.isEmpty() ? body : httpResponse("200 OK", body); });
        qputenv("QUILLMARK_SERVER", server->url(u"/mirror/"_s).toUtf8());
    }

    static newVersionWindow* offer()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<newVersionWindow*>(window); found && found->isVisible())
                return found;
        return nullptr;
    }

    std::optional<LocalHttpServer> server;
};

} // namespace

TEST_F(SplashWindowTest, TheMainWindowFollowsAfterASecondWhileTheServerIsSilentAndAnAppStoreBuildAsksNothing)
{
    serve({});
    QPointer<SplashWindow> splash = Windows::SplashWindow();
    splash->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return server->asked.size() == 1; }));
    EXPECT_EQ(server->asked.value(0), "/mirror/VersionInfo/QuillmarkVersion.txt");
    EXPECT_FALSE(splash->StaticText11->isHidden());
    EXPECT_FALSE(Windows::SummaryWindow()->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return splash.isNull(); }, 3000));
    EXPECT_TRUE(Windows::SummaryWindow()->isVisible());

    StartupGlobals::AppStoreVersion = true;
    splash = Windows::SplashWindow();
    splash->show();
    EXPECT_TRUE(splash->StaticText11->isHidden());
    EXPECT_TRUE(splash->ProgressWheel1->isHidden());
    EXPECT_TRUE(QTest::qWaitFor([&] { return splash.isNull(); }, 3000));
    EXPECT_EQ(server->asked.size(), 1);
    EXPECT_EQ(offer(), nullptr);
    EXPECT_TRUE(platform.messages.isEmpty());
}

TEST_F(SplashWindowTest, ANewerVersionIsOfferedAndDownloadNowHandsItsAddressToTheBrowser)
{
    serve("Quillmark Pro\n2.5\n");
    Windows::SplashWindow()->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return offer() != nullptr; }));
    QPointer<newVersionWindow> window = offer();
    EXPECT_EQ(window->StaticText1->text(), VersionCheck::offerText(u"Quillmark Pro"_s));
    EXPECT_EQ(window->size(), QSize(457, 147));
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_EQ(platform.urls, QStringList{server->url(u"/mirror/fernwright.zip"_s)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));

    Windows::SplashWindow()->Event_Open(); // a second check, a second offer
    ASSERT_TRUE(QTest::qWaitFor([&] { return offer() != nullptr; }));
    window = offer();
    window->PushButton2->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
    EXPECT_EQ(platform.urls.size(), 1);
}
