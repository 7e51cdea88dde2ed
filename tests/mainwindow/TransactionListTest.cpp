// Deleting, searching and reconciling the transactions of the main window, as
// a user does it, with the files checked on disk.
#include "engine/RowLayouts.h"
#include "mainwindow/SummaryWindowFixture.h"
#include "platform/Dates.h"
#include "widgets/AutoButton.h"

#include <QCheckBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class TransactionListTest : public SummaryWindowTest {
protected:
    SummaryWindow* openShop(const QByteArray& transactions)
    {
        writeLedgers();
        writeBytes(home.books() + u"/  ShopAccountData"_s, "@#@Cash@#@@#@1000.00@#@0@#@1000@#@@#@\n"
                                                            "@#@Rent@#@Expense@#@0.00@#@0@#@0@#@@#@\n"
                                                            "@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@@#@\n");
        writeBytes(transFile(), transactions);
        SummaryWindow* window = shownWindow();
        window->LedgerList().SetListIndex(0);
        return window;
    }

    static void click(QWidget* button) { QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, 8)); }

    static QStringList descriptions(const Listbox& table)
    {
        QStringList cells;
        for (int row = 0; row < table.ListCount(); ++row)
            cells << table.Cell(row, TransCol::Description);
        return cells;
    }

    static std::vector<int> selected(const Listbox& table)
    {
        std::vector<int> rows;
        for (int row = 0; row < table.ListCount(); ++row)
            if (table.Selected(row))
                rows.push_back(row);
        return rows;
    }

    QString transFile() const { return home.books() + u"/  ShopTransData"_s; }

    FixedClock clock{QDateTime(QDate(2026, 11, 23), QTime(12, 0))};
};

const QByteArray kFive = "@#@Rent@#@2026-11-01@#@one@#@@#@-10@#@@#@-10.00@#@@#@@#@@#@Never@#@\n"
                         "@#@Sales@#@2026-11-02@#@two@#@@#@20@#@@#@20.00@#@@#@jar@#@@#@Never@#@\n"
                         "@#@Rent@#@2026-11-03@#@three@#@@#@-30@#@@#@-30.00@#@@#@@#@@#@Never@#@\n"
                         "@#@Sales@#@2026-11-04@#@four@#@@#@40@#@@#@40.00@#@@#@@#@@#@Never@#@\n"
                         "@#@Rent@#@2026-11-05@#@five@#@@#@-50@#@@#@-50.00@#@@#@@#@@#@Never@#@\n";

} // namespace

TEST_F(TransactionListTest, DeletingTakesTheSelectedRowsOnlyWhenConfirmed)
{
    SummaryWindow* window = openShop(kFive);
    click(window->deltransbtn);
    EXPECT_EQ(platform.messages, QStringList{u"No transaction selected."_s});

    window->transBox().setSelectedRows({1, 3});
    const QByteArray before = readBytes(transFile());
    platform.answerNextDialog(MessageDialog::Button::Cancel);
    click(window->deltransbtn);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].Message, u"Are you sure you want to delete the selected transaction(s)?");
    EXPECT_EQ(platform.dialogs[0].Explanation, u"This action cannot be undone.");
    EXPECT_EQ(platform.dialogs[0].ActionButton, u"Delete");
    EXPECT_EQ(platform.dialogs[0].CancelButton, u"Cancel");
    EXPECT_EQ(window->transBox().ListCount(), 5);
    EXPECT_EQ(readBytes(transFile()), before);

    platform.answerNextDialog(MessageDialog::Button::Action);
    click(window->deltransbtn);
    EXPECT_EQ(descriptions(window->transBox()), (QStringList{u"one"_s, u"three"_s, u"five"_s}));
    EXPECT_EQ(readBytes(transFile()).count('\n'), 3);
    EXPECT_TRUE(readBytes(home.books() + u"/  ShopAccountData"_s).contains("@#@Sales@#@Revenue@#@0.00@#@0@#@0@#@"))
        << "recalculated without the deleted deposits";
}

TEST_F(TransactionListTest, SearchingSelectsTheHitsUntilTheSearchEnds)
{
    SummaryWindow* window = openShop(kFive);
    QTest::keyClicks(window->EditField11, u"JAR"_s);
    QTest::keyClick(window->EditField11, Qt::Key_Return);
    EXPECT_EQ(selected(window->transBox()), std::vector<int>{1}) << "a hit in the memo, which no column shows";
    EXPECT_TRUE(window->endSearch1->isVisible());

    // Digits hit the seconds of the dates too, which the calculation wrote.
    window->calcAll();
    window->EditField11->setText(QString::number(TotalSeconds(QDate(2026, 11, 3)), 'f', 0));
    click(window->Canvas71);
    EXPECT_EQ(selected(window->transBox()), std::vector<int>{2});

    // The hits are what the delete button acts on; the end button stays.
    platform.answerNextDialog(MessageDialog::Button::Action);
    click(window->deltransbtn);
    EXPECT_EQ(descriptions(window->transBox()), (QStringList{u"one"_s, u"two"_s, u"four"_s, u"five"_s}));
    EXPECT_TRUE(window->endSearch1->isVisible());

    window->EditField11->setText(u"o"_s);
    QTest::keyClick(window->EditField11, Qt::Key_Return);
    EXPECT_EQ(selected(window->transBox()), (std::vector<int>{0, 1, 2}));
    click(window->endSearch1);
    EXPECT_TRUE(selected(window->transBox()).empty());
    EXPECT_EQ(window->EditField11->text(), u"");
    EXPECT_FALSE(window->endSearch1->isVisible());

    // The icon needs a text; another ledger empties the field.
    click(window->Canvas71);
    EXPECT_TRUE(selected(window->transBox()).empty());
    window->EditField11->setText(u"one"_s);
    window->LedgerList().SetListIndex(1);
    EXPECT_EQ(window->EditField11->text(), u"");
}

TEST_F(TransactionListTest, ReconcileModeCountsTheCheckedRowsAlone)
{
    // The monthly row is due: opening posts its copy, reconciled in text only.
    SummaryWindow* window = openShop("@#@Rent@#@2026-10-01@#@lease@#@@#@-100@#@@#@-100.00@#@@#@@#@true@#@Monthly@#@\n"
                                     "@#@Sales@#@2026-11-02@#@till@#@@#@20@#@@#@20.00@#@@#@@#@@#@Never@#@\n"
                                     "@#@Rent@#@2026-11-03@#@fuel@#@@#@-30@#@@#@-30.00@#@@#@@#@false@#@Never@#@\n");
    ASSERT_EQ(window->transBox().ListCount(), 4);
    EXPECT_TRUE(window->transBox().CellCheck(0, TransCol::Account)) << "the box follows the stored column";
    EXPECT_EQ(window->transBox().Cell(3, TransCol::Reconciled), u"true");
    EXPECT_FALSE(window->transBox().CellCheck(3, TransCol::Account));

    QTest::mouseClick(window->reconcilecheckbox, Qt::LeftButton);
    EXPECT_EQ(window->accountsBox().Cell(1, AccountCol::Transactions), u"0") << "turning it on recalculates nothing";
    window->transBox().userToggledCheck(2, TransCol::Account); // a click on the fuel row's box
    EXPECT_EQ(window->transBox().Cell(2, TransCol::Reconciled), u"true");
    // The lease counts; its posted copy doesn't until the ledger is loaded again.
    EXPECT_EQ(window->accountsBox().Cell(1, AccountCol::Transactions), u"-130.00");
    EXPECT_EQ(window->accountsBox().Cell(2, AccountCol::Transactions), u"0.00");
    EXPECT_TRUE(readBytes(home.books() + u"/  ShopAccountData"_s).contains("@#@Rent@#@Expense@#@0.00@#@-130@#@"));

    window->LedgerList().SetListIndex(-1);
    window->LedgerList().SetListIndex(0);
    window->transBox().userToggledCheck(1, TransCol::Account);
    EXPECT_EQ(window->accountsBox().Cell(1, AccountCol::Transactions), u"-230.00") << "the copy, reloaded, counts";

    QTest::mouseClick(window->reconcilecheckbox, Qt::LeftButton);
    EXPECT_EQ(window->accountsBox().Cell(1, AccountCol::Transactions), u"-230.00");
    EXPECT_EQ(window->accountsBox().Cell(2, AccountCol::Transactions), u"20.00") << "off again: every row counts";
}
