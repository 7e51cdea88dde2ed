#include "books/WindowMemory.h"
#include "support/DataFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(WindowMemory, AWindowGetsBackThePlaceOfItsTitleWithinOneRun)
{
    using namespace smartWindowsGlobals;
    TempDataHome home;
    const QRect fresh(40, 30, 723, 507);
    EXPECT_EQ(getMySpecs(u"Ledger Summary"_s, fresh), fresh) << "first opening keeps its place";
    saveMySpecs(u"Ledger Summary"_s, QRect(120, 90, 723, 507));
    EXPECT_EQ(getMySpecs(u"Ledger Summary"_s, fresh), QRect(120, 90, 723, 507));
    EXPECT_EQ(getMySpecs(u"  Shop - Summary"_s, fresh), fresh) << "another title has a place of its own";

    // Only a title met at opening is stored, and an entry without a name isn't.
    windowSpecs().push_back(windowSpecsClass{QString(), 1, 2, 3, 4});
    saveMySpecs(u"  Shop - Summary"_s, QRect(-5, 0, 300, 200));
    saveMySpecs(u"Never Opened"_s, QRect(1, 2, 3, 4));
    EXPECT_EQ(readBytes(home.path() + u"/Quillmark_WindowData"_s),
              QByteArray("Ledger Summary;120;90;723;507\n  Shop - Summary;-5;0;300;200\n"));

    // The main window's place in the books: top, left, width, height.
    home.makeFolders();
    writeWindowData(home.books(), QRect(15, 25, 990, 712));
    EXPECT_EQ(readBytes(home.books() + u"/WindowData"_s), QByteArray("25\n15\n990\n712\n"));
    writeWindowData(QString(), QRect(15, 25, 990, 712)); // no folder: nothing, and no crash
}
