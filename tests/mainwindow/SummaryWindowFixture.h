#pragma once

#include "books/WindowMemory.h"
#include "books/rowtable/ui/ListboxView.h"
#include "app/Windows.h"
#include "mainwindow/SummaryWindow.h"
#include "mainwindow/Toolbar1.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/ScriptedPlatform.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

// A main window over a temporary data folder with two ledgers, "  Shop" and
// "  Home". Each test is a run of its own: it starts with no window memory, and
// every window is gone after it.
class SummaryWindowTest : public ::testing::Test {
protected:
    SummaryWindowTest() { smartWindowsGlobals::windowSpecs().clear(); }
    ~SummaryWindowTest() override
    {
        QList<QPointer<QWidget>> windows;
        for (QWidget* window : QApplication::topLevelWidgets())
            windows << window;
        for (const QPointer<QWidget>& window : windows)
            delete window.data(); // a dialog goes with its main window
    }

    void writeLedgers() const
    {
        home.writeShop("  Shop\n  Home\n", "@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n",
                       "@#@Sales@#@2014-03-09@#@b@#@\n@#@Sales@#@2013-01-02@#@a@#@\n@#@Sales@#@2014-01-05@#@c@#@\n");
    }

    SummaryWindow* shownWindow() const
    {
        SummaryWindow* window = Windows::SummaryWindow();
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
        return window;
    }

    // "  Shop" with these files, open in the main window.
    SummaryWindow* openShop(const QByteArray& accounts, const QByteArray& transactions) const
    {
        home.writeShop("  Shop\n  Home\n", accounts, transactions);
        SummaryWindow* window = shownWindow();
        window->LedgerList().SetListIndex(0);
        return window;
    }

    // What "  Shop" holds on disk; kind: "Account" or "Trans".
    QByteArray stored(const char* kind) const { return readBytes(home.shop(kind)); }

    // A click on an item of the toolbar.
    static void press(SummaryWindow* window, const QString& item)
    {
        QTest::mouseClick(window->Toolbar11->widgetForAction(window->Toolbar11->item(item)), Qt::LeftButton);
    }

    static QPoint rowCenter(ListboxView* view, int row)
    {
        return view->visualRect(view->model()->index(row, 0)).center();
    }

    TempDataHome home;
    ScriptedPlatform platform;
};

