#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxModel.h"
#include "support/ModelContract.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// What the model tells a view differs from the table: "" when they agree.
std::string mismatch(const ListboxModel& model, const Listbox& table)
{
    if (model.rowCount() != table.ListCount() || model.columnCount() != table.ColumnCount())
        return u"%1 by %2 rows and columns shown, %3 by %4 in the table"_s.arg(model.rowCount())
            .arg(model.columnCount())
            .arg(table.ListCount())
            .arg(table.ColumnCount())
            .toStdString();
    for (int row = 0; row < table.ListCount(); ++row) {
        for (int column = 0; column < table.ColumnCount(); ++column) {
            const QString shown = model.data(model.index(row, column)).toString();
            if (shown != table.Cell(row, column))
                return u"cell %1,%2 shows \"%3\", holds \"%4\""_s.arg(row).arg(column).arg(shown, table.Cell(row, column))
                    .toStdString();
        }
    }
    return {};
}

// A turn of the event loop: the model reports the cell changes it gathered.
void settle()
{
    QCoreApplication::processEvents();
}

} // namespace

TEST(ListboxModel, FollowsEveryChangeOfItsTableWithinTheModelContract)
{
    Listbox table(u"transBox"_s, 3, Listbox::SelectionType::Multiple);
    table.SetColumnType(0, Listbox::TypeCheckbox);
    table.SetColumnAlignment(2, Listbox::AlignRight);
    ListboxModel model(table);
    ModelContract contract(&model);

    for (const QString& name : {u"Rent"_s, u"sales"_s, u"Fuel"_s, u"Bank"_s, u"cash"_s}) {
        table.AddRow(u""_s);
        table.SetCell(table.LastIndex(), 1, name);
        table.SetCell(table.LastIndex(), 2, QString::number(table.LastIndex() * 10));
    }
    table.SetRowPicture(0, RowPicture::accountPlus9);
    table.SetCellCheck(1, 0, true);
    table.SetCellBold(2, 1, true);
    table.SetCell(3, 3, u"hidden"_s); // the cell past the last column is no column of the view
    settle();
    EXPECT_EQ(mismatch(model, table), "");
    EXPECT_EQ(model.data(model.index(1, 0), Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Checked);

    table.SetSelected(3, true);
    table.SortRows(1, Qt::AscendingOrder);
    EXPECT_EQ(mismatch(model, table), "");
    table.SortRows(1, Qt::DescendingOrder);
    EXPECT_EQ(mismatch(model, table), "");

    table.moveRow(0, 4);
    table.moveRow(3, 1);
    EXPECT_EQ(mismatch(model, table), "");

    // A change is gathered, then its row goes before the model reports it.
    table.SetCell(4, 2, u"99"_s);
    table.RemoveRow(4);
    table.RemoveRow(table.ListIndex());
    settle();
    EXPECT_EQ(mismatch(model, table), "");

    table.removeRowsWhere([&](int row) { return table.CellView(row, 1).startsWith(u'F'); });
    EXPECT_EQ(mismatch(model, table), "");
    table.DeleteAllRows();
    settle();
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
    settle();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), model.index(1, 0));
    EXPECT_EQ(changed[0][1].toModelIndex(), model.index(3, 2));

    table.SetCell(2, 4, u"hidden"_s);
    settle();
    EXPECT_EQ(changed.count(), 1) << "the hidden cell shows nowhere";
    EXPECT_EQ(contract.breaches(), "");
}
