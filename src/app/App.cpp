#include "app/App.h"

#include "app/SplashWindow.h"
#include "app/Windows.h"
#include "books/AppFolders.h"
#include "books/prefsDictionary.h"
#include "books/ui/PrefsWindow.h"
#include "mainwindow/MenuBar1.h"
#include "platform/BlockingServices.h"
#include "update/Server.h"
#include "update/StartupGlobals.h"
#include "update/ui/AboutWindow.h"

#include <QApplication>
#include <QMenuBar>

using namespace Qt::StringLiterals;

void App::Event_Open()
{
    prefsDictionary::getPreferences();
    StartupGlobals::AppStoreVersion = false;
    const QString books = AppFolders::makeFolders(AppFolders::applicationData());
    AppFolders::removeSaveLeftovers(AppFolders::applicationData());
    if (!books.isEmpty())
        AppFolders::renameOldLedgerFiles(books);
    Windows::SplashWindow()->show();
}

void App::_FileAboutQuillmark_Action()
{
    Windows::AboutWindow()->show();
}

void App::_HelpUsersGuide_Action()
{
    ShowURL(serverAddress(u"/docs/QuillmarkGuide.pdf"));
}

void App::_HelpSupport_Action()
{
    ShowURL(serverAddress(u"/support.html"));
}

void App::_filePreferences_Action()
{
    Windows::PrefsWindow()->show();
}

void App::AddMenuHandlers(const QMenuBar& menuBar)
{
    QObject* context = qApp;
    MenuBar1::bind(menuBar, u"FileAboutQuillmark"_s, context, &App::_FileAboutQuillmark_Action);
    MenuBar1::bind(menuBar, u"HelpUsersGuide"_s, context, &App::_HelpUsersGuide_Action);
    MenuBar1::bind(menuBar, u"HelpSupport"_s, context, &App::_HelpSupport_Action);
    MenuBar1::bind(menuBar, u"filePreferences"_s, context, &App::_filePreferences_Action);
}
