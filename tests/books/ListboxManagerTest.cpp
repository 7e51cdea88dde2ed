#include "books/rowtable/ListboxManager.h"
#include "support/Cells.h"
#include "support/DataFolder.h"

namespace {

class ListboxManagerTest : public ::testing::Test {
protected:
    ListboxManagerTest() { manager.ProgramDataFolder = home.books(); home.makeFolders(); }

    QString path(const QString& name) const { return home.books() + u'/' + name; }

    TempDataHome home;
    ListboxManager manager;
};

} // namespace

TEST_F(ListboxManagerTest, SavesEveryCellFollowedByTheSeparatorAndLoadsWithColumnZeroEmpty)
{
    Listbox table(u"t"_s, 3);
    manager.saveListBox(table, u"  ShopAccountData"_s);
    EXPECT_EQ(readBytes(path(u"  ShopAccountData"_s)), QByteArray()) << "a table without rows gives a file of length 0";
    EXPECT_TRUE(fileExists(path(u"  ShopAccountData"_s)));

    // Blank lines, other systems' line ends, short lines, extra fields, a
    // separator cut short and a first field that must not survive.
    writeBytes(path(u"table"_s), "999@#@Cash@#@1200.00@#@\r\n"
                                 "\n"
                                 "\r\n"
                                 "1@#@Short\r"
                                 "2@#@a@#@b@#@extra@#@more@#@\n"
                                 "3@#@cut@#\n"
                                 "@#@\xC3\xA9t\xC3\xA9 \xF0\x9F\x92\xB6@#@@#@");
    table.AddRow(u"replaced by the load");
    manager.loadListBox(table, u"table"_s);
    EXPECT_EQ(table.ListCount(), 5);
    EXPECT_EQ(table.Cell(2, 3), u"") << "extra fields are ignored, not kept in the hidden cell";
    table.SetCell(0, 3, u"hidden, never stored");
    table.SetCell(1, 0, u"x");
    manager.saveListBox(table, u"table"_s);
    EXPECT_EQ(readBytes(path(u"table"_s)),
              QByteArray("@#@Cash@#@1200.00@#@\nx@#@Short@#@@#@\n@#@a@#@b@#@\n@#@cut@#@@#@\n"
                         "@#@\xC3\xA9t\xC3\xA9 \xF0\x9F\x92\xB6@#@@#@\n"));

    writeBytes(path(u"old"_s), "@#@Caf\xE9@#@\n"); // Latin-1, not valid UTF-8
    manager.loadListBox(table, u"old"_s);
    EXPECT_EQ(table.Cell(0, 1), u"Café") << "an older one-byte encoding loses no bit";
}

TEST_F(ListboxManagerTest, NothingIsReadOrWrittenWithoutAFileOrAFolderOrWhileADeletionRuns)
{
    Listbox table(u"t"_s, 2);
    table.AddRow(u"kept");
    manager.loadListBox(table, u"no such file"_s);
    EXPECT_EQ(table.ListCount(), 1);

    ListboxManager unset; // no "Books" folder
    writeBytes(path(u"  ShopTransData"_s), "@#@before@#@\n");
    unset.loadListBox(table, u"  ShopTransData"_s);
    unset.saveListBox(table, u"  ShopTransData"_s);
    EXPECT_EQ(table.Cell(0, 0), u"kept");

    manager.deletingOn = true;
    manager.saveListBox(table, u"  ShopTransData"_s);
    manager.saveListBox(table, u"  OtherTransData"_s);
    EXPECT_EQ(readBytes(path(u"  ShopTransData"_s)), QByteArray("@#@before@#@\n"));
    EXPECT_FALSE(fileExists(path(u"  OtherTransData"_s)));
}

TEST_F(ListboxManagerTest, AccountRowsGetPicturesAndTransactionDatesTheStoredForm)
{
    const QByteArray accounts = "@#@Balance@#@@#@\n@#@Sales@#@revenue@#@\n@#@Rent@#@Expense@#@\n@#@Old@#@asset@#@\n";
    writeBytes(path(u"  Shop accountdata"_s), accounts);
    writeBytes(path(u"  ShopNotes"_s), accounts);
    Listbox table(u"accountsBox"_s, 4);
    manager.loadListBox(table, u"  Shop accountdata"_s);
    EXPECT_EQ((QList<RowPicture>{table.rowPicture(0), table.rowPicture(1), table.rowPicture(2), table.rowPicture(3)}),
              (QList<RowPicture>{RowPicture::BookIcon, RowPicture::accountPlus9, RowPicture::accountMinus9,
                                 RowPicture::accountMinus9}));
    manager.loadListBox(table, u"  ShopNotes"_s);
    EXPECT_EQ(table.rowPicture(1), RowPicture::None) << "only account files get pictures";

    // US short dates read month first; a date that isn't one stays as it is.
    writeBytes(path(u"rows"_s), "@#@Food@#@3/9/14@#@\n@#@Food@#@20140310@#@\n@#@Food@#@31/31/14@#@\n");
    Listbox transBox(u"transBox"_s, 12);
    manager.loadListBox(transBox, u"rows"_s);
    EXPECT_EQ(columnOf(transBox, 2), (QStringList{u"2014-03-09"_s, u"2014-03-10"_s, u"31/31/14"_s}));
    manager.loadListBox(table, u"rows"_s);
    EXPECT_EQ(table.Cell(0, 2), u"3/9/14") << "only transactions";
}

TEST_F(ListboxManagerTest, LongRowsAMarkAndALateNonUtf8ByteLoadAsTheWholeFileReads)
{
    // One cell longer than any piece the file is read in, and than 16-bit
    // starts reach; a byte-order mark only counts at the very start.
    const QByteArray longCell(300000, 'x');
    writeBytes(path(u"long"_s), "\xEF\xBB\xBF@#@first@#@\n@#@" + longCell + "@#@after@#@\n\xEF\xBB\xBF@#@mid@#@");
    Listbox table(u"t"_s, 3);
    manager.loadListBox(table, u"long"_s);
    ASSERT_EQ(table.ListCount(), 3);
    EXPECT_EQ(table.Cell(0, 1), u"first");
    EXPECT_EQ(table.Cell(1, 1), QString::fromLatin1(longCell));
    EXPECT_EQ(table.Cell(1, 2), u"after");
    EXPECT_EQ(table.Cell(2, 0), u"") << "the mark of a later line stands in its first field";
    EXPECT_EQ(table.Cell(2, 1), u"mid");
    table.SetCell(1, 1, u"short now");
    EXPECT_EQ(table.Cell(1, 2), u"after");

    // A byte that isn't UTF-8 far beyond the first piece turns the whole file,
    // the lines before it included, into Latin-1.
    writeBytes(path(u"late"_s), "@#@\xC3\xA9@#@\n@#@" + longCell + "@#@\n@#@Caf\xE9@#@");
    manager.loadListBox(table, u"late"_s);
    ASSERT_EQ(table.ListCount(), 3);
    EXPECT_EQ(table.Cell(0, 1), u"\u00C3\u00A9");
    EXPECT_EQ(table.Cell(2, 1), u"Café");

    // A date in the stored form stays as it is, a day that doesn't exist included.
    writeBytes(path(u"dates"_s), "@#@A@#@2014-03-11@#@\n@#@A@#@3/12/14@#@\n@#@A@#@2014-02-31@#@\n");
    Listbox transBox(u"transBox"_s, 12);
    manager.loadListBox(transBox, u"dates"_s);
    EXPECT_EQ(columnOf(transBox, 2), (QStringList{u"2014-03-11"_s, u"2014-03-12"_s, u"2014-02-31"_s}));
}
