#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "support/DataFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ListboxManagerTest : public ::testing::Test {
protected:
    ListboxManagerTest() { manager.ProgramDataFolder = home.books(); home.makeFolders(); }

    QString path(const QString& name) const { return home.books() + u'/' + name; }

    TempDataHome home;
    ListboxManager manager;
};

} // namespace

TEST_F(ListboxManagerTest, SavesEveryCellFollowedByTheSeparator)
{
    Listbox table(u"t"_s, 3);
    table.AddRow(u"");
    table.SetCell(0, 1, u"Cash");
    table.SetCell(0, 2, u"1200.00");
    table.SetCell(0, 3, u"hidden, never stored");
    table.AddRow(u"x");
    table.SetCell(1, 2, u"Épargne 💶");
    manager.saveListBox(table, u"  ShopAccountData"_s);
    EXPECT_EQ(readBytes(path(u"  ShopAccountData"_s)),
              QByteArray("@#@Cash@#@1200.00@#@\nx@#@@#@\xC3\x89pargne \xF0\x9F\x92\xB6@#@\n"));

    Listbox empty(u"t"_s, 3);
    manager.saveListBox(empty, u"  ShopAccountData"_s);
    EXPECT_EQ(readBytes(path(u"  ShopAccountData"_s)), QByteArray()) << "a table without rows gives a file of length 0";
    EXPECT_TRUE(fileExists(path(u"  ShopAccountData"_s)));
}

TEST_F(ListboxManagerTest, LoadsWhatFilesHoldAndEmptiesColumnZero)
{
    // Blank lines, other systems' line ends, short lines, extra fields, a
    // separator cut short and a first field that must not survive.
    writeBytes(path(u"table"_s), "999@#@Cash@#@1200.00@#@\r\n"
                                 "\n"
                                 "\r\n"
                                 "1@#@Short\r"
                                 "2@#@a@#@b@#@extra@#@more@#@\n"
                                 "3@#@cut@#\n"
                                 "@#@\xC3\xA9t\xC3\xA9@#@@#@");
    Listbox table(u"t"_s, 3);
    table.AddRow(u"replaced by the load");
    manager.loadListBox(table, u"table"_s);
    EXPECT_EQ(table.ListCount(), 5);
    EXPECT_EQ(table.Cell(2, 3), u"") << "extra fields are ignored, not kept in the hidden cell";

    // Stored again, every line begins with the separator.
    manager.saveListBox(table, u"table"_s);
    EXPECT_EQ(readBytes(path(u"table"_s)),
              QByteArray("@#@Cash@#@1200.00@#@\n@#@Short@#@@#@\n@#@a@#@b@#@\n@#@cut@#@@#@\n@#@\xC3\xA9t\xC3\xA9@#@@#@\n"));

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

TEST_F(ListboxManagerTest, GivesAccountRowsTheirPictures)
{
    const QByteArray accounts = "@#@Balance@#@@#@\n@#@Sales@#@revenue@#@\n@#@Rent@#@Expense@#@\n@#@Old@#@asset@#@\n";
    writeBytes(path(u"  Shop accountdata"_s), accounts);
    writeBytes(path(u"  ShopNotes"_s), accounts);
    Listbox table(u"accountsBox"_s, 4);

    manager.loadListBox(table, u"  Shop accountdata"_s);
    EXPECT_EQ(table.rowPicture(0), RowPicture::BookIcon);
    EXPECT_EQ(table.rowPicture(1), RowPicture::accountPlus9);
    EXPECT_EQ(table.rowPicture(2), RowPicture::accountMinus9);
    EXPECT_EQ(table.rowPicture(3), RowPicture::accountMinus9);

    manager.loadListBox(table, u"  ShopNotes"_s);
    EXPECT_EQ(table.rowPicture(1), RowPicture::None) << "only account files get pictures";
}

TEST_F(ListboxManagerTest, RewritesReadableDatesOfTransactionsOnly)
{
    // US short dates read month first; a year-month-day date stays as it is.
    writeBytes(path(u"rows"_s), "@#@Food@#@3/9/14@#@\n@#@Food@#@2014-03-09@#@\n@#@Food@#@20140310@#@\n"
                                "@#@Food@#@31/31/14@#@\n@#@Food@#@soon@#@\n");
    Listbox transBox(u"transBox"_s, 12);
    manager.loadListBox(transBox, u"rows"_s);
    const QStringList dates{u"2014-03-09"_s, u"2014-03-09"_s, u"2014-03-10"_s, u"31/31/14"_s, u"soon"_s};
    for (int row = 0; row < dates.size(); ++row)
        EXPECT_EQ(transBox.Cell(row, 2), dates[row]) << "row " << row;

    Listbox other(u"accountsBox"_s, 12);
    manager.loadListBox(other, u"rows"_s);
    EXPECT_EQ(other.Cell(0, 2), u"3/9/14");
}
