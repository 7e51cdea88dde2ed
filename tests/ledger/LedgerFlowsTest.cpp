#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/ScriptedPlatform.h"

#include <QMap>

namespace {

using Folder = QMap<QString, QByteArray>;

// Two ledgers on disk, as a user left them, and a stray file of a third name.
class LedgerFlowsTest : public ::testing::Test {
protected:
    // Written before the books read the list.
    bool writeLedgers() const
    {
        home.writeShop("Shop\r\n\r\n  Home\n\n",
                       "999@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n@#@Sales@#@Revenue@#@0.00@#@5@#@5@#@@#@\n",
                       "7@#@Sales@#@2014-03-09@#@Sale@#@@#@5@#@@#@5.00@#@@#@@#@true@#@Never@#@\n");
        writeBook(u"  HomeAccountData"_s, "@#@Balance@#@@#@50.00@#@0@#@50@#@@#@\n");
        writeBook(u"  HomeTransData"_s, "");
        writeBook(u"  OrphanTransData"_s, "@#@someone else's@#@\n");
        return true;
    }

    QString bookList() const { return home.quillmark() + u"/BookList"_s; }
    QString book(const QString& name) const { return home.books() + u'/' + name; }
    void writeBook(const QString& name, const QByteArray& bytes) const { writeBytes(book(name), bytes); }

    Folder snapshot() const { return entriesUnder(home.path()); }
    QStringList ledgerNames() const { return columnOf(books.LedgerList, 0); }

    TempDataHome home;
    ScriptedPlatform platform;
    bool written = writeLedgers();
    SummaryBooks books{home.books()};
};

} // namespace

TEST_F(LedgerFlowsTest, OpeningAndSwitchingStoreOnlyTheLedgerLeft)
{
    EXPECT_EQ(ledgerNames(), (QStringList{u"  Shop"_s, u"  Home"_s})) << "blank lines skipped, the blanks put before";
    EXPECT_EQ(books.LedgerList.rowPicture(0), RowPicture::Book_Icon32);
    const Folder before = snapshot();
    books.accountsBox.AddRow(u""_s);
    books.calcAll();
    EXPECT_EQ(books.accountsBox.Cell(0, AccountCol::Transactions), u"") << "no ledger open: nothing calculated";
    books.LedgerList.SetListIndex(0);
    EXPECT_EQ(snapshot(), before) << "nothing stored";
    EXPECT_EQ(books.theLedger, u"  Shop");
    EXPECT_EQ(books.accountsBox.Cell(0, 0), u"") << "column 0 starts empty after a load";
    ASSERT_EQ(books.transBox.ListCount(), 1);
    EXPECT_TRUE(books.transBox.CellCheck(0, 1)) << "reconcile boxes come from the stored column";
    EXPECT_EQ(books.transBox.ListIndex(), -1);
    EXPECT_EQ(books.accountsBox.ListIndex(), -1);

    books.accountsBox.SetCell(1, 6, u"a note");         // saved on leaving
    books.transBox.SetCell(0, 3, u"changed on screen"); // put back from the file first
    books.LedgerList.SetListIndex(1);
    EXPECT_EQ(books.oldLedger, u"  Shop");
    EXPECT_EQ(books.accountsBox.Cell(0, 3), u"50.00");
    EXPECT_EQ(books.transBox.ListCount(), 0);
    EXPECT_EQ(readBytes(book(u"  ShopAccountData"_s)),
              QByteArray("@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n@#@Sales@#@Revenue@#@0.00@#@5@#@5@#@a note@#@\n"));
    EXPECT_EQ(readBytes(book(u"  ShopTransData"_s)),
              QByteArray("@#@Sales@#@2014-03-09@#@Sale@#@@#@5@#@@#@5.00@#@@#@@#@true@#@Never@#@\n"));

    // A ledger without transactions keeps whatever file it has.
    writeBook(u"  HomeTransData"_s, "\n\n");
    books.LedgerList.SetListIndex(0);
    EXPECT_EQ(readBytes(book(u"  HomeTransData"_s)), QByteArray("\n\n"));
    books.shelf.saveBooks();
    EXPECT_EQ(readBytes(bookList()), QByteArray("  Shop\n  Home\n"));
}

TEST_F(LedgerFlowsTest, RenameMovesTheFilesOrTouchesNone)
{
    books.LedgerList.SetListIndex(0);
    const Folder before = snapshot();
    for (const QString& name : {u""_s, u"   "_s, u"  home"_s, u"a/b"_s, u"tab\there"_s, u"Orphan"_s, QString(250, u'x')}) {
        typeInto(books.LedgerList, 0, 0, name);
        EXPECT_EQ(books.LedgerList.Cell(0, 0), u"  Shop") << name.toStdString();
        EXPECT_EQ(books.theLedger, u"  Shop");
        EXPECT_EQ(snapshot(), before) << name.toStdString();
    }
    EXPECT_EQ(platform.messages.size(), 7);

    typeInto(books.LedgerList, 0, 0, u"Store"_s); // typed without the blanks
    EXPECT_EQ(books.theLedger, u"  Store");
    EXPECT_EQ(readBytes(bookList()), QByteArray("  Store\n  Home\n"));
    EXPECT_FALSE(fileExists(book(u"  ShopAccountData"_s)));
    EXPECT_FALSE(fileExists(book(u"  ShopTransData"_s)));
    EXPECT_EQ(readBytes(book(u"  StoreAccountData"_s)), before[book(u"  ShopAccountData"_s)].mid(3)) << "without the \"999\"";
    EXPECT_TRUE(readBytes(book(u"  StoreTransData"_s)).contains("Sale"));

    // Unchanged text, or only another case: stored again, nothing deleted.
    typeInto(books.LedgerList, 0, 0, u"  Store"_s);
    typeInto(books.LedgerList, 0, 0, u"  STORE"_s);
    EXPECT_TRUE(fileExists(book(u"  StoreAccountData"_s)));
    EXPECT_TRUE(fileExists(book(u"  STOREAccountData"_s)));
    EXPECT_EQ(readBytes(bookList()), QByteArray("  STORE\n  Home\n"));
    EXPECT_EQ(platform.messages.size(), 7);
}

TEST_F(LedgerFlowsTest, DeleteAsksThenRemovesTheLedgerAndItsFiles)
{
    books.shelf.deleteLedger();
    EXPECT_TRUE(platform.dialogs.empty()) << "no ledger selected: nothing happens";

    books.LedgerList.SetListIndex(0);
    const Folder before = snapshot();
    books.shelf.deleteLedger(); // answered Cancel
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(snapshot(), before);

    platform.answerNextDialog(MessageDialog::Button::Action);
    books.shelf.deleteLedger();
    EXPECT_EQ(ledgerNames(), QStringList{u"  Home"_s});
    EXPECT_EQ(books.theLedger, u"");
    EXPECT_FALSE(books.deletingOn);
    EXPECT_FALSE(books.delLedger);
    EXPECT_EQ(books.accountsBox.ListCount(), 0);
    Folder after = before;
    after.remove(book(u"  ShopAccountData"_s));
    after.remove(book(u"  ShopTransData"_s));
    after[bookList()] = "  Home\n";
    EXPECT_EQ(snapshot(), after) << "nothing else is written";

    books.LedgerList.SetListIndex(0);
    platform.answerNextDialog(MessageDialog::Button::Action);
    books.shelf.deleteLedger();
    EXPECT_EQ(readBytes(bookList()), QByteArray()) << "the last ledger gone leaves an empty list";
    EXPECT_TRUE(fileExists(bookList()));
}

TEST_F(LedgerFlowsTest, NewLedgerOpensEmptyAfterStoringTheOneLeft)
{
    books.LedgerList.SetListIndex(0);
    writeBook(u"  ShopTransData"_s, "@#@Sales@#@2014-03-09@#@From the file@#@\n");
    const Folder before = snapshot();
    for (const QString& name : {u""_s, u"shop"_s, u"Home"_s, u"x/y"_s})
        EXPECT_FALSE(books.shelf.addLedger(name)) << name.toStdString();
    EXPECT_EQ(platform.messages.size(), 4);
    EXPECT_EQ(books.theLedger, u"  Shop");
    EXPECT_EQ(snapshot(), before);

    ASSERT_TRUE(books.shelf.addLedger(u"Garden"_s));
    EXPECT_EQ(ledgerNames(), (QStringList{u"  Shop"_s, u"  Home"_s, u"  Garden"_s}));
    EXPECT_EQ(books.LedgerList.rowPicture(2), RowPicture::Book_Icon32);
    EXPECT_EQ(books.theLedger, u"  Garden");
    EXPECT_EQ(books.accountsBox.ListCount(), 0);
    EXPECT_EQ(books.transBox.ListCount(), 0);
    // The transactions left were put back from their file and stored; the
    // accounts, already cleared, were not.
    EXPECT_TRUE(readBytes(book(u"  ShopTransData"_s)).contains("From the file"));
    EXPECT_TRUE(fileExists(book(u"  ShopAccountData"_s)));
    EXPECT_FALSE(fileExists(book(u"  GardenAccountData"_s)));
}

TEST_F(LedgerFlowsTest, NothingIsReadOrWrittenWithoutABooksFolder)
{
    const Folder before = snapshot();
    SummaryBooks loose(QString{});
    EXPECT_EQ(loose.LedgerList.ListCount(), 0);
    ASSERT_TRUE(loose.shelf.addLedger(u"Loose"_s));
    loose.shelf.saveBooks();
    loose.calcAll();
    EXPECT_EQ(snapshot(), before);
}
