#include "books/AppFolders.h"
#include "books/WindowMemory.h"
#include "books/prefsDictionary.h"
#include "support/DataFolder.h"

#include <QDir>

TEST(Startup, MakesTheFoldersOnceKeepsWhatIsThereAndGivesOldLedgerFilesTheirTwoBlanks)
{
    TempDataHome home;
    EXPECT_EQ(AppFolders::applicationData(), home.path());
    EXPECT_EQ(AppFolders::existingBooks(home.path()), u"");
    const QString books = home.books();
    EXPECT_EQ(AppFolders::makeFolders(home.path()), books);
    writeBytes(books + u"/ShopAccountData"_s, "shop accounts");
    EXPECT_EQ(AppFolders::makeFolders(home.path()), books) << "a second start creates nothing";

    writeBytes(books + u"/  HomeTransData"_s, "home");
    writeBytes(books + u"/ OneBlanktransdata"_s, "one");
    writeBytes(books + u"/WindowData"_s, "window");
    writeBytes(books + u"/CafeTransData"_s, "old");
    writeBytes(books + u"/  CafeTransData"_s, "new"); // the new name is taken
    QDir(books).mkdir(u"ArchiveAccountData"_s);
    AppFolders::renameOldLedgerFiles(books);
    EXPECT_EQ(QDir(books).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{u"   OneBlanktransdata"_s, u"  ArchiveAccountData"_s, u"  CafeTransData"_s,
                           u"  HomeTransData"_s, u"  ShopAccountData"_s, u"CafeTransData"_s, u"WindowData"_s}));
    EXPECT_EQ(readBytes(books + u"/  ShopAccountData"_s), QByteArray("shop accounts"));
    EXPECT_EQ(readBytes(books + u"/  CafeTransData"_s), QByteArray("new")) << "nothing is overwritten";

    // A file where the folder should be: no folder, and no complaint.
    TempDataHome blocked;
    writeBytes(blocked.path() + u"/Quillmark"_s, "not a folder");
    EXPECT_EQ(AppFolders::makeFolders(blocked.path()), u"");
}

TEST(Preferences, ReadsAndWritesOneCountedString)
{
    TempDataHome home;
    const QString file = home.path() + u"/Quillmark Preferences"_s;
    prefsDictionary::getPreferences();
    EXPECT_EQ(prefsDictionary::prefsDict().value(u"AccountNumber"_s), u"") << "no file";

    prefsDictionary::prefsDict().insert(u"AccountNumber"_s, u"4929 1234 €"_s);
    prefsDictionary::savePreferences();
    EXPECT_EQ(readBytes(file), QByteArray("\x0d" "4929 1234 \xE2\x82\xAC"));
    prefsDictionary::getPreferences();
    EXPECT_EQ(prefsDictionary::prefsDict().value(u"AccountNumber"_s), u"4929 1234 €");

    writeBytes(file, QByteArray());
    prefsDictionary::getPreferences();
    EXPECT_EQ(prefsDictionary::prefsDict().value(u"AccountNumber"_s), u"") << "a file of length 0";

    // 254 bytes and a three-byte character: the character doesn't fit and goes whole.
    prefsDictionary::prefsDict().insert(u"AccountNumber"_s, QString(254, u'1') + u"€"_s);
    prefsDictionary::savePreferences();
    EXPECT_EQ(readBytes(file), char(254) + QByteArray(254, '1'));
}

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
