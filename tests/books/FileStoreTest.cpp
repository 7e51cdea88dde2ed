#include "books/AppFolders.h"
#include "books/FileStore.h"
#include "books/LedgerNames.h"
#include "books/WindowMemory.h"
#include "books/prefsDictionary.h"
#include "support/DataFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

TEST(FileStore, AFilesPathIsMadeInsideBooksOnly)
{
    const QString books = u"/data/Books"_s;
    const QString longest = u"  "_s + QString(228, u'x') + u"AccountData"_s; // 241 bytes
    for (const QString& good : {u"  ShopAccountData"_s, u"WindowData"_s, u"  ..TransData"_s, u"  Café ☕TransData"_s,
                                longest})
        EXPECT_EQ(bookFilePath(books, good).path, books + u'/' + good) << good.toStdString();

    const QString characters = u"a ledger's name can't hold \"/\" or a control character"_s;
    const QString tooLong = u"its name is too long for a file name"_s;
    const std::pair<QString, QString> refused[] = {
        {u"  Shared/xAccountData"_s, characters},
        {u"  ../../../../../v/kTransData"_s, characters},
        {u"  a"_s + QChar(0) + u"bTransData"_s, characters},
        {u"  tab\tTransData"_s, characters},
        {u"  line\nTransData"_s, characters},
        {u".."_s, u"\"..\" can't name a file"_s},
        {u"."_s, u"\".\" can't name a file"_s},
        {u""_s, u"\"\" can't name a file"_s},
        {longest + u'x', tooLong},
        {u"  "_s + QString(120, u'é') + u"TransData"_s, tooLong}, // 251 bytes
    };
    for (const auto& [name, problem] : refused) {
        const BookFilePath path = bookFilePath(books, name);
        EXPECT_EQ(path.path, u"") << name.toStdString();
        EXPECT_EQ(path.problem, problem) << name.toStdString();
    }
    EXPECT_EQ(bookFilePath(QString(), u"  ShopAccountData"_s).problem, u"there is no folder \"Books\" to keep it in");
}

TEST(FileStore, OnlyPlainFilesAreReadOrWritten)
{
    QTemporaryDir folder;
    QTemporaryDir outside;
    const auto at = [&](const QString& name) { return folder.path() + u'/' + name; };
    const QString target = outside.path() + u"/target"_s;
    writeBytes(target, "the books of someone else");
    ASSERT_TRUE(QFile::link(target, at(u"link"_s)));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, at(u"zero"_s)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QDir().mkdir(at(u"folder"_s)));

    const std::pair<QString, QString> entries[] = {
        {u"link"_s, u"a link"_s}, {u"zero"_s, u"a link"_s}, {u"pipe"_s, u"a named pipe"_s}, {u"folder"_s, u"a folder"_s}};
    for (const auto& [name, what] : entries) {
        const QString expected = u"\"%1\" is %2, not a plain file"_s.arg(at(name), what);
        const FileContent read = readPlainFile(at(name)); // returns at once, also for the pipe
        EXPECT_FALSE(read.bytes) << name.toStdString();
        EXPECT_EQ(read.problem, expected);
        const FileProblem written = replaceFile(at(name), "new books");
        EXPECT_EQ(written.reason, expected);
        EXPECT_TRUE(written.oldFileKept);
    }
    EXPECT_EQ(readBytes(target), "the books of someone else");
    EXPECT_TRUE(QFileInfo(at(u"link"_s)).isSymLink());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot).size(),
              4) << "nothing was left beside them";

    EXPECT_EQ(readPlainFile(u"/dev/null"_s).problem, u"\"/dev/null\" is a device, not a plain file");
    const FileContent missing = readPlainFile(at(u"missing"_s));
    EXPECT_FALSE(missing.bytes);
    EXPECT_EQ(missing.problem, u"") << "no file is no problem";
}

TEST(FileStore, ASaveKeepsTheFilesPermissionsAndReadsBackByteForByte)
{
    QTemporaryDir folder;
    const QString path = folder.path() + u"/  ShopTransData"_s;
    writeBytes(path, "old");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0600), 0);
    QByteArray bytes(300 * 1024, 'x');
    bytes[0] = '\0';
    bytes[bytes.size() - 1] = '\xff';
    EXPECT_FALSE(replaceFile(path, bytes).failed());
    EXPECT_EQ(readPlainFile(path).bytes, bytes);
    struct stat entry {};
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &entry), 0);
    EXPECT_EQ(entry.st_mode & 07777, 0600u);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"  ShopTransData"_s});
}

TEST(FileStore, LeftoversOfKilledSavesGoAtTheNextSaveOrStart)
{
    TempDataHome home;
    home.makeFolders();
    const QString books = home.books();
    for (const QString& leftover : {books + u"/  ShopTransData.saving-AbC123"_s,
                                    books + u"/  ShopAccountData.saving-Xy9876"_s,
                                    books + u"/  ShopTransData.saving-Live01"_s,
                                    books + u"/  ShopTransData.saving-abc"_s, // not the mark of a save
                                    home.quillmark() + u"/BookList.saving-Qq1234"_s,
                                    home.path() + u"/Quillmark Preferences.saving-Pp1234"_s,
                                    home.path() + u"/Other Program.saving-Oo1234"_s}) // not ours
        writeBytes(leftover, "half a ledger");
    // A save still running in another process holds its file locked.
    const int live = ::open(QFile::encodeName(books + u"/  ShopTransData.saving-Live01"_s).constData(), O_RDONLY);
    ASSERT_GE(live, 0);
    ASSERT_EQ(::flock(live, LOCK_EX), 0);

    EXPECT_FALSE(replaceFile(books + u"/  ShopTransData"_s, "the ledger").failed());
    EXPECT_EQ(QDir(books).entryList(QDir::Files),
              (QStringList{u"  ShopAccountData.saving-Xy9876"_s, u"  ShopTransData"_s, u"  ShopTransData.saving-abc"_s,
                           u"  ShopTransData.saving-Live01"_s}))
        << "the save took its own file's leftovers only";

    AppFolders::removeSaveLeftovers(home.path());
    EXPECT_EQ(QDir(books).entryList(QDir::Files),
              (QStringList{u"  ShopTransData"_s, u"  ShopTransData.saving-abc"_s, u"  ShopTransData.saving-Live01"_s}));
    EXPECT_FALSE(fileExists(home.quillmark() + u"/BookList.saving-Qq1234"_s));
    EXPECT_FALSE(fileExists(home.path() + u"/Quillmark Preferences.saving-Pp1234"_s));
    EXPECT_TRUE(fileExists(home.path() + u"/Other Program.saving-Oo1234"_s));

    ::close(live); // the other save is over, killed or not
    AppFolders::removeSaveLeftovers(home.path());
    EXPECT_FALSE(fileExists(books + u"/  ShopTransData.saving-Live01"_s));
}

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
