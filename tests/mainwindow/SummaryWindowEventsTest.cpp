#include "mainwindow/SummaryWindowFixture.h"
#include "support/FailingSaves.h"
#include "widgets/WindowSplitter.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class SummaryWindowEventsTest : public SummaryWindowTest {
protected:
    // "  Shop" with the Base Account and three more, and three transactions.
    SummaryWindow* openShop()
    {
        writeLedgers();
        writeBytes(home.books() + u"/  ShopAccountData"_s,
                   "@#@Cash@#@Base Account@#@100.00@#@0@#@100@#@@#@\n"
                   "@#@Rent@#@Expense@#@0.00@#@-20@#@-20@#@@#@\n"
                   "@#@Sales@#@Revenue@#@0.00@#@30@#@30@#@@#@\n"
                   "@#@Fuel@#@Expense@#@0.00@#@0@#@0@#@@#@\n");
        writeBytes(home.books() + u"/  ShopTransData"_s,
                   "@#@Rent@#@2026-01-02@#@January@#@@#@-20@#@0@#@-20@#@@#@@#@@#@Never@#@\n"
                   "@#@Sales@#@2026-01-03@#@till@#@@#@10@#@0@#@10@#@@#@@#@@#@Never@#@\n"
                   "@#@Sales@#@2026-01-04@#@till@#@@#@20@#@0@#@20@#@@#@@#@@#@Never@#@\n");
        SummaryWindow* window = shownWindow();
        window->LedgerList().SetListIndex(0);
        QApplication::processEvents();
        return window;
    }

    static QStringList names(const Listbox& accounts)
    {
        QStringList result;
        for (int row = 0; row < accounts.ListCount(); ++row)
            result << accounts.Cell(row, 1);
        return result;
    }

    // A drag with the mouse from the middle of one row to a point in the grid.
    static void dragRow(ListboxView* grid, int row, QPoint drop)
    {
        QWidget* area = grid->viewport();
        const QPoint start = rowCenter(grid, row);
        QTest::mousePress(area, Qt::LeftButton, {}, start);
        QTest::mouseMove(area, start + QPoint(0, drop.y() > start.y() ? 8 : -8));
        QTest::mouseMove(area, drop);
        QTest::mouseRelease(area, Qt::LeftButton, {}, drop);
    }

    QByteArray accountsFile() const { return readBytes(home.books() + u"/  ShopAccountData"_s); }
    QByteArray transFile() const { return readBytes(home.books() + u"/  ShopTransData"_s); }
};

} // namespace

TEST_F(SummaryWindowEventsTest, ClosingStoresTheOpenLedgerAndTheWindowsPlace)
{
    SummaryWindow* window = openShop();
    window->accountsBox().SetCell(1, 6, u"kept on closing");
    window->transBox().SetCell(2, 9, u"memo on closing");
    window->setGeometry(30, 40, 900, 650);
    window->close();

    EXPECT_EQ(platform.quits, 1);
    EXPECT_TRUE(accountsFile().contains("@#@Rent@#@Expense@#@0.00@#@-20@#@-20@#@kept on closing@#@\n"));
    EXPECT_TRUE(transFile().contains("@#@20@#@@#@memo on closing@#@@#@Never@#@\n"));
    EXPECT_EQ(readBytes(home.books() + u"/WindowData"_s), QByteArray("40\n30\n900\n650\n"));
    EXPECT_EQ(readBytes(home.path() + u"/Quillmark_WindowData"_s), QByteArray("Quillmark;30;40;900;650\n"));
}

TEST_F(SummaryWindowEventsTest, ClosingOnAFullDiskSaysSoOnceBeforeTheEndAndKeepsTheFiles)
{
    SummaryWindow* window = openShop();
    window->accountsBox().SetCell(1, 6, u"not stored"_s);
    const QByteArray accounts = accountsFile();
    const QByteArray transactions = transFile();
    int quitsWhenTold = -1;
    const BlockingServiceHooks scripted = blockingServices();
    BlockingServiceHooks watching;
    watching.msgBox = [&](const QString& message) {
        quitsWhenTold = platform.quits;
        scripted.msgBox(message);
    };
    installBlockingServices(watching);
    {
        const FailingSaves full(FailingSaves::Step::Write, 0);
        window->close();
    }
    EXPECT_EQ(platform.quits, 1);
    EXPECT_EQ(quitsWhenTold, 0) << "told before the application ends";
    EXPECT_EQ(platform.messages,
              QStringList{u"Quillmark couldn't save the places of its windows: No space left on device.\n\n"
                          "Quillmark couldn't save the ledger \"Shop\": No space left on device. It stays as it was "
                          "before this change."_s});
    EXPECT_EQ(accountsFile(), accounts);
    EXPECT_EQ(transFile(), transactions);
    EXPECT_FALSE(fileExists(home.books() + u"/WindowData"_s));
    EXPECT_EQ(QDir(home.books()).entryList(QDir::Files).size(), 2) << "nothing left beside the files";
}

TEST_F(SummaryWindowEventsTest, TheWindowTakesBackItsPlaceWithinOneRunOnly)
{
    QPointer<SummaryWindow> first = Windows::SummaryWindow();
    EXPECT_EQ(first->size(), QSize(990, 712));
    first->setGeometry(50, 60, 800, 600);
    first->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    ASSERT_TRUE(first.isNull());
    SummaryWindow* second = Windows::SummaryWindow();
    EXPECT_EQ(second->geometry(), QRect(50, 60, 800, 600));
    second->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    smartWindowsGlobals::windowSpecs().clear(); // the application starts again
    EXPECT_EQ(Windows::SummaryWindow()->size(), QSize(990, 712));
}

TEST_F(SummaryWindowEventsTest, AnAccountDroppedOnTopIsRefusedAndAnyOtherDropIsStored)
{
    SummaryWindow* window = openShop();
    ListboxView* grid = window->accountsBoxView;
    const QByteArray stored = accountsFile();

    dragRow(grid, 2, QPoint(30, 2));
    EXPECT_EQ(platform.beeps, 1);
    EXPECT_EQ(names(window->accountsBox()), (QStringList{u"Cash"_s, u"Rent"_s, u"Sales"_s, u"Fuel"_s}));
    EXPECT_EQ(accountsFile(), stored);

    // Dropped on the lower half of the last row: Rent goes to the end.
    const QRect last = grid->visualRect(grid->model()->index(3, 1));
    dragRow(grid, 1, QPoint(30, last.bottom() - 2));
    EXPECT_EQ(platform.beeps, 1);
    EXPECT_EQ(names(window->accountsBox()), (QStringList{u"Cash"_s, u"Sales"_s, u"Fuel"_s, u"Rent"_s}));
    EXPECT_TRUE(accountsFile().endsWith("@#@Rent@#@Expense@#@0.00@#@-20@#@-20@#@@#@\n"));
    EXPECT_EQ(window->accountsBox().ListIndex(), 3) << "the dragged row stays selected";

    // The Base Account itself may go down: only the drop position is looked at.
    dragRow(grid, 0, rowCenter(grid, 1) + QPoint(0, 8));
    EXPECT_EQ(platform.beeps, 1);
    EXPECT_EQ(window->accountsBox().Cell(1, 1), u"Cash");
}

TEST_F(SummaryWindowEventsTest, AReconcileBoxStoresItsRowAndRecalculatesOnlyInReconcileMode)
{
    SummaryWindow* window = openShop();
    QAbstractItemModel* model = window->transBoxView->model();
    const QString salesBefore = window->accountsBox().Cell(2, 4);

    model->setData(model->index(1, 1), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(window->transBox().Cell(1, 10), u"true");
    EXPECT_EQ(window->accountsBox().Cell(2, 4), salesBefore) << "reconcile mode is off";
    EXPECT_TRUE(transFile().contains("@#@10@#@@#@@#@true@#@Never@#@\n"));

    window->reconcilecheckbox->setChecked(true);
    model->setData(model->index(0, 1), Qt::Unchecked, Qt::CheckStateRole); // never checked: stays off
    model->setData(model->index(0, 1), Qt::Checked, Qt::CheckStateRole);
    model->setData(model->index(0, 1), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(window->transBox().Cell(0, 10), u"false");
    EXPECT_EQ(window->accountsBox().Cell(2, 4).trimmed(), u"10.00") << "only the checked row counts";
    EXPECT_EQ(window->accountsBox().Cell(1, 4).trimmed(), u"0.00");
    EXPECT_EQ(window->taxText->text(), window->books().taxText);
    EXPECT_EQ(window->balText->text(), u"10");
    EXPECT_FALSE(window->balText->isVisible()) << "the totals are kept, not shown";

    window->reconcilecheckbox->setChecked(false);
    EXPECT_EQ(window->accountsBox().Cell(2, 4).trimmed(), u"30.00");
}

TEST_F(SummaryWindowEventsTest, TheAccountHeadingsCantBePressed)
{
    SummaryWindow* window = openShop();
    QSignalSpy pressed(&window->accountsBox(), &Listbox::HeaderPressed);
    QHeaderView* headings = window->accountsBoxView->horizontalHeader();
    const QPoint onName(headings->sectionViewportPosition(1) + 10, headings->height() / 2);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, headings->mapTo(window, onName));
    EXPECT_EQ(pressed.count(), 0);
    EXPECT_EQ(names(window->accountsBox()), (QStringList{u"Cash"_s, u"Rent"_s, u"Sales"_s, u"Fuel"_s}));

    // The transactions' headings can: the same click there sorts.
    QSignalSpy sorted(&window->transBox(), &Listbox::HeaderPressed);
    QHeaderView* transHeadings = window->transBoxView->horizontalHeader();
    const QPoint onDate(transHeadings->sectionViewportPosition(2) + 10, transHeadings->height() / 2);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, transHeadings->mapTo(window, onDate));
    EXPECT_EQ(sorted.count(), 1);
}

TEST_F(SummaryWindowEventsTest, TheSplitterCarriesTheTwoRegionsAndNothingElse)
{
    writeLedgers();
    SummaryWindow* window = shownWindow();
    WindowSplitter* splitter = window->WindowSplitter1;
    EXPECT_EQ(splitter->MinBeforeArea(), 150);
    EXPECT_EQ(splitter->MinAfterArea(), 150);
    std::vector<std::pair<QWidget*, bool>> registered;
    for (splitter->MoveFirst(); splitter->HasNext();) {
        const bool before = splitter->NextIsBefore();
        registered.emplace_back(splitter->GetNext(), before);
    }
    const std::vector<std::pair<QWidget*, bool>> expected{
        {window->accountsBoxView, true}, {window->GroupBox1, true}, {window->GroupBox2, false}};
    EXPECT_EQ(registered, expected);
    EXPECT_TRUE(window->GroupBox1->isAncestorOf(window->accountsBoxView));
    EXPECT_TRUE(window->GroupBox2->isAncestorOf(window->transBoxView));
    EXPECT_EQ(window->separatorFld->text(), u"1234.00");

    // Opening a ledger empties the search field.
    window->EditField1->setText(u"rent"_s);
    window->LedgerList().SetListIndex(0);
    EXPECT_EQ(window->EditField1->text(), u"");
    EXPECT_EQ(window->books().separatorType, u"period");
}
