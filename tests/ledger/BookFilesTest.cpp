// Hostile names and entries where the ledgers' files belong: nothing outside the
// folder "Books" is read or written, nothing is written through a link or into
// a pipe, nothing waits, and a file that couldn't be read isn't written over.
#include "books/prefsDictionary.h"
#include "engine/RowLayouts.h"
#include "ledger/AccountOperations.h"
#include "ledger/SummaryBooks.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/FailingSaves.h"
#include "support/ScriptedPlatform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

class BookFilesTest : public ::testing::Test {
protected:
    BookFilesTest()
    {
        home.writeShop("  Shop\n", "@#@Cash@#@@#@100.00@#@0@#@100@#@@#@\n@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n",
                       "@#@Sales@#@2026-01-03@#@till@#@@#@10@#@0@#@10@#@@#@@#@false@#@Never@#@\n");
    }

    QString book(const QString& name) const { return home.books() + u'/' + name; }

    TempDataHome home;
    const QString bookList = home.quillmark() + u"/BookList"_s;
    QTemporaryDir outside;
    ScriptedPlatform platform;
};

} // namespace

TEST_F(BookFilesTest, ABadLineOfTheListStillListsAndOpeningItSaysWhy)
{
    // Through this link a ledger "  Shared/x" would have its files outside the folder.
    ASSERT_TRUE(QFile::link(outside.path(), book(u"  Shared"_s)));
    writeBytes(bookList, "  Shop\n  Shared/x\n");
    const QMap<QString, QByteArray> before = entriesUnder(home.path());

    SummaryBooks books(home.books());
    books.LedgerList.SetListIndex(1);
    EXPECT_EQ(platform.messages, QStringList{u"Quillmark couldn't open the ledger \"Shared/x\": a ledger's name can't "
                                             "hold \"/\" or a control character."_s});
    // Whatever the user does with it stores nothing anywhere, and says so.
    platform.messages.clear();
    EXPECT_EQ(AccountOperations(books).saveAccount(AccountFields{u"Balance"_s, {}, u"5"_s, {}}, true, -1, {}), u"");
    books.calcAll();
    EXPECT_EQ(platform.messages.size(), 2);
    for (const QString& message : platform.messages)
        EXPECT_TRUE(message.startsWith(u"Quillmark couldn't save the ledger \"Shared/x\": "_s));
    books.shelf.saveBooks();
    EXPECT_EQ(entriesUnder(home.path()), before);
    EXPECT_TRUE(QDir(outside.path()).isEmpty());
}

TEST_F(BookFilesTest, WhatIsNoPlainFileIsNeitherReadNorWrittenThrough)
{
    const QString target = outside.path() + u"/someone else's"_s;
    writeBytes(target, "not the ledger");
    QFile::remove(book(u"  ShopTransData"_s));
    ASSERT_TRUE(QFile::link(target, book(u"  ShopTransData"_s)));
    QFile::remove(bookList);
    ASSERT_EQ(::mkfifo(QFile::encodeName(bookList).constData(), 0600), 0);
    ASSERT_TRUE(QDir().mkdir(home.path() + u"/Quillmark Preferences"_s));
    const QMap<QString, QByteArray> before = entriesUnder(home.path());

    // None of these waits for a pipe's writer or reads through the link.
    prefsDictionary::getPreferences();
    SummaryBooks books(home.books());
    EXPECT_EQ(books.LedgerList.ListCount(), 0);
    books.LedgerList.AddRow(u"  Shop"_s);
    books.LedgerList.SetListIndex(0);
    EXPECT_EQ(books.transBox.ListCount(), 0);
    const QString pipe = u"\"%1\" is a named pipe, not a plain file"_s.arg(bookList);
    const QString folder = u"\"%1/Quillmark Preferences\" is a folder, not a plain file"_s.arg(home.path());
    const QString link = u"\"%1\" is a link, not a plain file"_s.arg(book(u"  ShopTransData"_s));
    EXPECT_EQ(platform.messages, (QStringList{u"Quillmark couldn't read its preferences: %1."_s.arg(folder),
                                              u"Quillmark couldn't read the list of ledgers: %1."_s.arg(pipe),
                                              u"Quillmark couldn't open the ledger \"Shop\": %1."_s.arg(link)}));

    platform.messages.clear();
    books.calcAll();
    books.shelf.saveBooks();
    prefsDictionary::savePreferences();
    EXPECT_EQ(platform.messages.size(), 3);
    for (const QString& message : platform.messages)
        EXPECT_TRUE(message.contains(u"isn't written over")) << message.toStdString();
    EXPECT_EQ(entriesUnder(home.path()), before);
    EXPECT_EQ(readBytes(target), "not the ledger");
}

TEST_F(BookFilesTest, TheFolderBooksItselfMayBeALink)
{
    const QString real = outside.path() + u"/Books"_s;
    ASSERT_TRUE(QDir().rename(home.books(), real));
    ASSERT_TRUE(QFile::link(real, home.books()));
    SummaryBooks books(home.books());
    books.LedgerList.SetListIndex(0);
    books.calcAll();
    EXPECT_TRUE(platform.messages.isEmpty()) << platform.messages.join(u'\n').toStdString();
    EXPECT_TRUE(readBytes(real + u"/  ShopAccountData"_s).startsWith("@#@Cash@#@@#@100.00@#@10@#@110@#@@#@\n"));
    EXPECT_TRUE(QFileInfo(home.books()).isSymLink());
}

TEST_F(BookFilesTest, AFileThatCouldntBeReadIsNotWrittenOver)
{
    const QByteArray transactions = readBytes(book(u"  ShopTransData"_s));
    SummaryBooks books(home.books());
    {
        const FailingReads badBlock(u"  ShopTransData"_s);
        books.LedgerList.SetListIndex(0);
    }
    EXPECT_EQ(platform.messages, QStringList{u"Quillmark couldn't open the ledger \"Shop\": Input/output error."_s});
    EXPECT_EQ(books.transBox.ListCount(), 0);

    // The table shows nothing of the file; storing it would empty the ledger.
    platform.messages.clear();
    books.calcAll();
    typeInto(books.LedgerList, 0, 0, u"Store"_s);
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)), transactions);
    EXPECT_EQ(books.LedgerList.Cell(0, 0), u"  Shop") << "no rename without the files' content";
    EXPECT_EQ(platform.messages,
              (QStringList{u"Quillmark couldn't save the ledger \"Shop\": its file couldn't be read when the ledger was "
                           "opened, so it isn't written over. It stays as it was before this change."_s,
                           u"The ledger can't be renamed: its files couldn't be read when it was opened."_s}));

    // Read again once the disk answers, the ledger is whole and stored as ever.
    books.LedgerList.SetListIndex(-1);
    books.LedgerList.SetListIndex(0);
    ASSERT_EQ(books.transBox.ListCount(), 1);
    platform.messages.clear();
    books.transBox.userToggledCheck(0, TransCol::Account);
    EXPECT_TRUE(platform.messages.isEmpty());
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).contains("@#@true@#@Never@#@"));
}
