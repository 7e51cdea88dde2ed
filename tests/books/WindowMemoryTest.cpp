#include "books/WindowMemory.h"
#include "support/DataFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class WindowMemoryTest : public ::testing::Test {
protected:
    WindowMemoryTest() { smartWindowsGlobals::windowSpecs().clear(); } // a new run
    ~WindowMemoryTest() override { smartWindowsGlobals::windowSpecs().clear(); }

    QString windowData() const { return home.path() + u"/Quillmark_WindowData"_s; }
    TempDataHome home;
};

} // namespace

TEST_F(WindowMemoryTest, AWindowGetsBackThePlaceOfItsTitleWithinOneRun)
{
    using namespace smartWindowsGlobals;
    const QRect fresh(40, 30, 723, 507);
    EXPECT_EQ(getMySpecs(u"Ledger Summary"_s, fresh), fresh) << "first opening keeps its place";
    saveMySpecs(u"Ledger Summary"_s, QRect(120, 90, 723, 507));
    EXPECT_EQ(readBytes(windowData()), QByteArray("Ledger Summary;120;90;723;507\n"));

    EXPECT_EQ(getMySpecs(u"Ledger Summary"_s, fresh), QRect(120, 90, 723, 507));
    EXPECT_EQ(getMySpecs(u"  Shop - Summary"_s, fresh), fresh) << "another title has a place of its own";
    saveMySpecs(u"  Shop - Summary"_s, QRect(-5, 0, 300, 200));
    EXPECT_EQ(readBytes(windowData()), QByteArray("Ledger Summary;120;90;723;507\n  Shop - Summary;-5;0;300;200\n"))
        << "two windows of one title share an entry";

    // Only a title met at opening is stored; the file isn't touched otherwise.
    saveMySpecs(u"Never Opened"_s, QRect(1, 2, 3, 4));
    EXPECT_EQ(readBytes(windowData()), QByteArray("Ledger Summary;120;90;723;507\n  Shop - Summary;-5;0;300;200\n"));

    // An entry without a name isn't written; nor is the title never opened.
    windowSpecs().insert(windowSpecs().begin(), windowSpecsClass{QString(), 1, 2, 3, 4});
    saveWindowSpecs();
    EXPECT_EQ(readBytes(windowData()), QByteArray("Ledger Summary;120;90;723;507\n  Shop - Summary;-5;0;300;200\n"));
}

TEST_F(WindowMemoryTest, MainWindowPlaceIsTopLeftWidthHeight)
{
    home.makeFolders();
    writeWindowData(home.books(), QRect(15, 25, 990, 712));
    EXPECT_EQ(readBytes(home.books() + u"/WindowData"_s), QByteArray("25\n15\n990\n712\n"));
    writeWindowData(QString(), QRect(15, 25, 990, 712)); // no folder: nothing, and no crash
}
