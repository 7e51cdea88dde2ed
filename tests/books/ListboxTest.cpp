#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxManager.h"
#include "books/rowtable/ListboxModel.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/ModelContract.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <random>

TEST(Listbox, CellsOfDifferentLengthsKeepTheirPlaces)
{
    Listbox table(u"t"_s, 4);
    table.AddRow(u"first");
    // Growing, shrinking and emptying cells in the middle must not disturb the others.
    table.SetCell(0, 2, u"a much longer text than before");
    table.SetCell(0, 1, u"x");
    table.SetCell(0, 4, u"hidden");
    table.SetCell(0, 2, u"");
    table.SetCell(0, 3, u"@#@ inside");
    table.SetCell(0, 1, table.CellView(0, 3)); // a view into the very row it changes
    EXPECT_EQ(table.Cell(0, 1), u"@#@ inside");
    table.SetCell(0, 1, u"x");
    EXPECT_EQ(table.Cell(0, 4), u"hidden");
    EXPECT_EQ(table.storedLine(0), u"first@#@x@#@@#@@#@ inside@#@") << "the hidden cell isn't stored";

    // Outside the row or beyond the hidden cell: reads "", writes nothing.
    table.SetCell(0, 5, u"nowhere");
    table.SetCell(3, 0, u"nowhere");
    EXPECT_EQ(table.Cell(0, 5), u"");
    EXPECT_EQ(table.Cell(-1, 0), u"");
    EXPECT_EQ(table.ListCount(), 1);
}

TEST(Listbox, ChangeFiresInsideTheCallThatChangedTheSelection)
{
    Listbox table(u"t"_s, 1);
    addRows(table, {u"a"_s, u"b"_s, u"c"_s});
    QList<int> seen;
    QObject::connect(&table, &Listbox::Change, [&] { seen << table.ListIndex(); });

    table.SetListIndex(1);
    table.SetListIndex(1); // the same value fires nothing
    EXPECT_EQ(table.Text(), u"b");
    table.RemoveRow(0); // above the selection: the row moves up, still selected
    EXPECT_EQ(table.ListIndex(), 0);
    table.RemoveRow(0); // the selected row itself
    EXPECT_EQ(table.ListIndex(), -1);
    table.SetListIndex(7); // no such row: ignored
    EXPECT_EQ(table.ListIndex(), -1);
    table.SetListIndex(0);
    table.DeleteAllRows();
    EXPECT_EQ(seen, (QList<int>{1, -1, 0, -1})) << "fired before the call returned, with the new index";
    EXPECT_EQ(table.LastIndex(), -1);
}

TEST(Listbox, MultipleSelectionSurvivesRemovalFromTheLastRowUp)
{
    Listbox table(u"t"_s, 2, Listbox::SelectionType::Multiple);
    for (int i = 0; i < 6; ++i)
        table.AddRow(QString::number(i));
    for (int row : {1, 3, 4})
        table.SetSelected(row, true);
    EXPECT_EQ(table.ListIndex(), 1);
    for (int row = table.ListCount() - 1; row >= 0; --row) {
        if (table.Selected(row))
            table.RemoveRow(row);
    }
    EXPECT_EQ(columnOf(table, 0), (QStringList{u"0"_s, u"2"_s, u"5"_s}));
    EXPECT_EQ(table.ListIndex(), -1);

    Listbox single(u"s"_s, 1);
    addRows(single, {u"a"_s, u"b"_s});
    single.SetSelected(0, true);
    single.SetSelected(1, true);
    EXPECT_FALSE(single.Selected(0)) << "a single-selection table keeps one row at most";
    EXPECT_EQ(single.ListIndex(), 1);
}

TEST(Listbox, SortingReordersTheRowsThemselves)
{
    Listbox table(u"t"_s, 3, Listbox::SelectionType::Multiple);
    addRows(table, {u"0|2014-03-09|Banana"_s, u"1|2013-12-31|apple"_s, u"2|2014-03-09|Banana"_s, u"3|2014-01-15|apple"_s});
    table.SetSelected(0, true);
    table.SetCellCheck(0, 1, true);

    table.SortRows(1, Qt::AscendingOrder);
    EXPECT_EQ(columnOf(table, 0), (QStringList{u"1"_s, u"3"_s, u"0"_s, u"2"_s})) << "stable, by text: date order";
    EXPECT_EQ(table.ListIndex(), 2) << "the selection moves with its row";
    EXPECT_TRUE(table.CellCheck(2, 1)) << "so does the check box";

    table.SortRows(2, Qt::AscendingOrder); // case is ignored
    EXPECT_EQ(table.Cell(0, 2), u"apple");
    table.SortRows(2, Qt::DescendingOrder);
    EXPECT_EQ(table.Cell(0, 2), u"Banana");
}

TEST(Listbox, RowsKeepTheirCellsThroughEditsMovesAndTheReclaimingOfSpace)
{
    // Random work on a table beside a plain model of it: cells that grow move
    // their row, shrinking ones stay, rows longer than 16-bit starts reach,
    // and enough growth that the space of old rows is reclaimed many times.
    std::mt19937 random(5);
    constexpr int kColumns = 5;
    Listbox table(u"t"_s, kColumns);
    std::vector<QStringList> model;
    const auto text = [&random] {
        const int length = random() % 400 == 0 ? 70000 : int(random() % 40);
        return QString(length, QChar(char16_t(u'a' + random() % 26)));
    };
    const auto emptyRow = [] { return QStringList(kColumns + 1, QString()); };
    for (int step = 0; step < 20000; ++step) {
        const int rows = int(model.size());
        const int row = rows ? int(random() % rows) : 0;
        switch (random() % 12) {
        case 0: {
            const QString first = text();
            table.AddRow(first);
            model.push_back(emptyRow());
            model.back()[0] = first;
            break;
        }
        case 1:
            if (rows) {
                table.RemoveRow(row);
                model.erase(model.begin() + row);
            }
            break;
        case 2:
            if (rows > 1) {
                const int to = int(random() % rows);
                table.moveRow(row, to);
                const QStringList moved = model[row];
                model.erase(model.begin() + row);
                model.insert(model.begin() + to, moved);
            }
            break;
        case 3: {
            Listbox::Rows more(kColumns);
            const QString cells[2] = {text(), text()};
            const QStringView views[2] = {cells[0], cells[1]};
            more.add(views, 2);
            table.appendRows(std::move(more));
            model.push_back(emptyRow());
            model.back()[0] = cells[0];
            model.back()[1] = cells[1];
            break;
        }
        default:
            if (rows) {
                const int column = int(random() % (kColumns + 1));
                const QString cell = text();
                table.SetCell(row, column, cell);
                model[row][column] = cell;
            }
        }
        if (step % 500 == 0 || step == 19999) {
            ASSERT_EQ(table.ListCount(), int(model.size())) << "step " << step;
            for (int r = 0; r < table.ListCount(); ++r)
                for (int c = 0; c <= kColumns; ++c)
                    ASSERT_EQ(table.CellView(r, c), model[r][c]) << "step " << step << ", row " << r << ", column " << c;
        }
    }

    // Marks and styles stay with their rows when the space is reclaimed.
    Listbox styled(u"t"_s, 2);
    addRows(styled, {u"a"_s, u"b"_s});
    styled.SetCellBold(0, 1, true);
    styled.SetCellCheck(0, 0, true);
    for (int i = 0; i < 4000; ++i)
        styled.SetCell(1, 1, QString(60 + i % 2, u'z'));
    EXPECT_TRUE(styled.CellBold(0, 1));
    EXPECT_TRUE(styled.CellCheck(0, 0));
    EXPECT_FALSE(styled.CellBold(1, 1));
}

// The model reads its table's cells as they are; the model tester watches that
// every change of the table reaches a view as the contract of a model says.
TEST(ListboxModel, FollowsEveryChangeOfItsTableWithinTheModelContract)
{
    Listbox table(u"transBox"_s, 3, Listbox::SelectionType::Multiple);
    table.SetColumnType(0, Listbox::TypeCheckbox);
    table.SetColumnAlignment(2, Listbox::AlignRight);
    ListboxModel model(table);
    ModelContract contract(&model);

    addRows(table, {u"|Rent|0"_s, u"|sales|10"_s, u"|Fuel|20"_s, u"|Bank|30|hidden"_s, u"|cash|40"_s});
    table.SetRowPicture(0, RowPicture::accountPlus9);
    table.SetCellCheck(1, 0, true);
    table.SetCellBold(2, 1, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(model.columnCount(), 3) << "the cell past the last column is no column of the view";
    EXPECT_EQ(model.data(model.index(4, 1)).toString(), u"cash");
    EXPECT_EQ(model.data(model.index(3, 2)).toString(), u"30");
    EXPECT_EQ(model.data(model.index(1, 0), Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Checked);

    table.SetSelected(3, true);
    table.SortRows(1, Qt::AscendingOrder);
    table.SortRows(1, Qt::DescendingOrder);
    table.moveRow(0, 4);
    table.moveRow(3, 1);
    // A change is gathered, then its row goes before the model reports it.
    table.SetCell(4, 2, u"99"_s);
    table.RemoveRow(4);
    table.RemoveRow(table.ListIndex());
    QCoreApplication::processEvents();
    table.removeRowsWhere([&](int row) { return table.CellView(row, 1).startsWith(u'F'); });
    EXPECT_EQ(model.rowCount(), 2);
    table.DeleteAllRows();
    QCoreApplication::processEvents();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(contract.breaches(), "");
}

TEST(ListboxModel, CellChangesOfOneTurnReachTheViewAsOneRange)
{
    Listbox table(u"accountsBox"_s, 4);
    for (int row = 0; row < 5; ++row)
        table.AddRow(u""_s);
    ListboxModel model(table);
    ModelContract contract(&model);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    table.SetCell(1, 2, u"12.00"_s);
    table.SetCell(3, 0, u"999"_s);
    table.SetCell(1, 2, u"12.00"_s); // no change, nothing to report
    EXPECT_EQ(changed.count(), 0) << "reported at the next turn, not cell by cell";
    QCoreApplication::processEvents();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), model.index(1, 0));
    EXPECT_EQ(changed[0][1].toModelIndex(), model.index(3, 2));

    table.SetCell(2, 4, u"hidden"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1) << "the hidden cell shows nowhere";
    EXPECT_EQ(contract.breaches(), "");
}

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
                                 "@#@a@b@@#@c@#x@#@extra@#@\n"
                                 "3@#@cut@#\n"
                                 "@#@\xC3\xA9t\xC3\xA9 \xF0\x9F\x92\xB6@#@@#@");
    table.AddRow(u"replaced by the load");
    manager.loadListBox(table, u"table"_s);
    EXPECT_EQ(table.ListCount(), 6);
    EXPECT_EQ(table.Cell(2, 3), u"") << "extra fields are ignored, not kept in the hidden cell";
    table.SetCell(0, 3, u"hidden, never stored");
    table.SetCell(1, 0, u"x");
    manager.saveListBox(table, u"table"_s);
    EXPECT_EQ(readBytes(path(u"table"_s)),
              QByteArray("@#@Cash@#@1200.00@#@\nx@#@Short@#@@#@\n@#@a@#@b@#@\n@#@a@b@@#@c@#x@#@\n@#@cut@#@@#@\n"
                         "@#@\xC3\xA9t\xC3\xA9 \xF0\x9F\x92\xB6@#@@#@\n"));

    writeBytes(path(u"old"_s), "@#@Caf\xE9@#@\n@#@Caf\xE9@#@\xFF@#@\n"); // Latin-1, not valid UTF-8
    manager.loadListBox(table, u"old"_s);
    EXPECT_EQ(table.Cell(0, 1), u"Café") << "an older one-byte encoding loses no bit";
    EXPECT_EQ(table.Cell(1, 2), u"\u00FF");
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
