#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxModel.h"
#include "support/ModelContract.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The model reads its table's cells as they are; the model tester watches that
// every change of the table reaches a view as the contract of a model says.
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
    table.SetCell(3, 3, u"hidden"_s);
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
