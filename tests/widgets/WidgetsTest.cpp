#include "support/ScriptedPlatform.h"
#include "widgets/AutoButton.h"
#include "widgets/CalendarControl.h"
#include "widgets/WindowSplitter.h"

#include <QAbstractItemModel>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QSplitterHandle>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

namespace {

// A 36 by 36 button opened with a picture, as the windows make theirs.
class AutoButtonTest : public ::testing::Test {
protected:
    AutoButtonTest()
    {
        button.resize(36, 36);
        button.setBackdrop(picture);
        button.Event_Open();
        button.show();
    }

    void press(int x, int y) { QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(x, y)); }
    void drag(int x, int y) { QTest::mouseMove(&button, QPoint(x, y)); }
    void release(int x, int y) { QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(x, y)); }
    bool pressedLook() const { return button.Backdrop() == nullptr; } // the null pressedIcon

    PictureRef picture = std::make_shared<Picture>(36, 36);
    AutoButton button;
    QSignalSpy action{&button, &AutoButton::Action};
    QSignalSpy mouseDown{&button, &AutoButton::MouseDown};
    QSignalSpy mouseUp{&button, &AutoButton::MouseUp};
};

} // namespace

TEST_F(AutoButtonTest, ClickInsideShowsThePressedLookThenRaisesActionAndMouseUp)
{
    QLabel label(u"Add"_s);
    button.myText = &label;
    press(18, 18);
    EXPECT_TRUE(pressedLook());
    EXPECT_TRUE(label.font().bold());
    release(18, 18);
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 1);
    EXPECT_EQ(button.Backdrop(), picture);
    EXPECT_FALSE(label.font().bold());
}

TEST_F(AutoButtonTest, PressIsGivenUpBeyondTheEdgeTakenBackInsideAndTheEdgeIsOutsideForTheRelease)
{
    press(18, 18);
    drag(36, 18);
    EXPECT_TRUE(pressedLook()) << "x = Width is not yet beyond the button";
    drag(18, 37);
    EXPECT_FALSE(pressedLook());
    release(18, 37);
    EXPECT_EQ(mouseUp.count(), 0) << "a press dragged away ends silently";

    press(18, 18);
    drag(-1, 18);
    EXPECT_FALSE(pressedLook());
    drag(10, 10);
    EXPECT_TRUE(pressedLook()) << "back inside it is pressed again";
    release(10, 10);
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 1) << "the silence does not carry over to the next press";

    for (const QPoint& edge : {QPoint(0, 18), QPoint(36, 18), QPoint(18, 0), QPoint(18, 36)}) {
        press(18, 18);
        drag(edge.x(), edge.y());
        release(edge.x(), edge.y());
        EXPECT_EQ(button.Backdrop(), picture);
    }
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 5) << "the press never left, so its end is reported";
}

TEST_F(AutoButtonTest, LookFollowsEnabledStateAndForgetsALaterBackdrop)
{
    button.disableMe();
    EXPECT_EQ(button.Backdrop(), nullptr);
    EXPECT_FALSE(button.isEnabled());
    button.enableMe();
    EXPECT_EQ(button.Backdrop(), picture);

    button.setBackdrop(std::make_shared<Picture>(36, 36));
    press(18, 18);
    release(18, 18);
    EXPECT_EQ(mouseDown.count() + action.count(), 0) << "the release of a declined press is not the button's";
    button.paintIcon();
    EXPECT_EQ(button.Backdrop(), picture);
}

TEST_F(AutoButtonTest, ToggleButtonStaysOnAndItsSecondPressSwitchesOffAtOnce)
{
    button.Toggle = true;
    press(18, 18);
    release(18, 18);
    EXPECT_TRUE(pressedLook()) << "keeps its pressed look";

    press(18, 18);
    EXPECT_EQ(button.Backdrop(), picture);
    EXPECT_EQ(mouseUp.count(), 2) << "the switching-off press ends at once";
    release(18, 18);
    EXPECT_EQ(action.count(), 1);
    EXPECT_EQ(mouseUp.count(), 2);
}

namespace {

// The grid's cell of a day of the month on show; its first row holds the day names.
QModelIndex cellOf(const QTableView& view, int day)
{
    const QAbstractItemModel* model = view.model();
    for (int row = 1; row < model->rowCount(); ++row)
        for (int column = 0; column < model->columnCount(); ++column)
            if (model->index(row, column).data().toInt() == 1) {
                const int place = column + day - 1;
                return model->index(row + place / 7, place % 7);
            }
    return {};
}

// Whether anything but the background is drawn in a cell.
bool drawn(const QTableView& view, const QModelIndex& cell)
{
    const QImage image = view.viewport()->grab(view.visualRect(cell).adjusted(2, 2, -2, -2)).toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return true;
    return false;
}

} // namespace

TEST(CalendarControlTest, OpensOnTodayWithoutLimitsAndIgnoresAnInvalidDay)
{
    const FixedClock clock(QDateTime(QDate(2026, 11, 23), QTime(12, 0)));
    CalendarControl calendar;
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 11, 23)) << "a valid day before anything is set";
    EXPECT_EQ(calendar.MonthOnScreen(), 11);

    calendar.SetSelectedDate(QDate(1, 1, 1));
    EXPECT_EQ(calendar.SelectedDate(), QDate(1, 1, 1));
    calendar.SetSelectedDate(QDate(9999, 12, 31));
    EXPECT_EQ(calendar.YearOnScreen(), 9999) << "the day picked is shown";
    calendar.SetSelectedDate(QDate(2026, 2, 30));
    EXPECT_EQ(calendar.SelectedDate(), QDate(9999, 12, 31));
}

TEST(CalendarControlTest, NeighbouringDaysAreBlankButAClickPicksThem)
{
    CalendarControl calendar; // as the transaction dialog holds it
    calendar.setGeometry(0, 0, 135, 143);
    calendar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&calendar));
    const auto* view = calendar.findChild<QTableView*>(u"qt_calendar_calendarview"_s);
    const auto click = [&](const QModelIndex& cell) {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    };
    calendar.SetSelectedDate(QDate(2026, 9, 23));
    EXPECT_EQ(cellOf(*view, 1).column(), 2) << "September 2026 begins on a Tuesday, weeks on a Sunday";
    click(cellOf(*view, 12));
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 9, 12));

    // The cell before the 1st holds the last day of August.
    const QModelIndex first = cellOf(*view, 1);
    const QModelIndex before = view->model()->index(first.row(), first.column() - 1);
    EXPECT_TRUE(drawn(*view, first));
    EXPECT_FALSE(drawn(*view, before));
    click(before);
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 8, 31));
    EXPECT_EQ(calendar.MonthOnScreen(), 8);
}

namespace {

// A 300 by 400 window filled by a vertical splitter with areas of at least 150.
class WindowSplitterTest : public ::testing::Test {
protected:
    WindowSplitterTest()
    {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(splitter);
        splitter->setMinBeforeArea(150);
        splitter->setMinAfterArea(150);
        host.resize(300, 400);
    }

    // The bar moves under the mouse, so each point is mapped at its moment.
    void dragBar(int dy)
    {
        host.show();
        QSplitterHandle* bar = splitter->handle(1);
        const QPoint start = bar->mapToGlobal(bar->rect().center());
        QTest::mousePress(bar, Qt::LeftButton, {}, bar->mapFromGlobal(start));
        QTest::mouseMove(bar, bar->mapFromGlobal(start + QPoint(0, dy)));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, bar->mapFromGlobal(start + QPoint(0, dy)));
    }

    QWidget host;
    QVBoxLayout* layout = new QVBoxLayout(&host);
    WindowSplitter* splitter = new WindowSplitter(Qt::Vertical, &host);
};

} // namespace

TEST_F(WindowSplitterTest, BarIsDraggedNoFurtherThanTheMinimumOfEitherArea)
{
    QSignalSpy moved(splitter, &WindowSplitter::SplitterMoved);
    dragBar(-1000);
    EXPECT_EQ(splitter->Position(), 150);
    EXPECT_EQ(splitter->afterArea()->height(), 400 - 150 - 7) << "a bar of 7";
    dragBar(1000);
    EXPECT_EQ(splitter->afterArea()->height(), 150);
    EXPECT_GE(moved.count(), 2);
}

TEST_F(WindowSplitterTest, RegisteredControlsAreIteratedInOrderWithTheirSide)
{
    auto* loose = new QLabel(&host);
    auto* pane = new QGroupBox(splitter); // QSplitter alone would make it a third pane
    auto* orphan = new QLabel;
    splitter->AddControl(loose, true);
    splitter->AddControl(pane, true);
    splitter->AddControl(orphan, false);
    EXPECT_EQ(splitter->count(), 2);
    EXPECT_EQ(orphan->parentWidget(), splitter->afterArea());

    QList<std::pair<QWidget*, bool>> seen;
    for (splitter->MoveFirst(); splitter->HasNext();) {
        seen.append({splitter->PeekNext(), splitter->NextIsBefore()});
        EXPECT_EQ(splitter->GetNext(), seen.last().first);
    }
    EXPECT_EQ(seen, (QList<std::pair<QWidget*, bool>>{{loose, true}, {pane, true}, {orphan, false}}));

    // Taking out an item already passed keeps the iteration where it was.
    splitter->MoveFirst();
    splitter->GetNext();
    splitter->RemoveControl(loose);
    EXPECT_EQ(splitter->PeekNext(), pane);
    delete orphan;
    splitter->MoveFirst();
    EXPECT_EQ(splitter->GetNext(), pane);
    EXPECT_FALSE(splitter->HasNext()) << "a destroyed control is no longer registered";
    splitter->AddControl(pane, false);
    EXPECT_EQ(pane->parentWidget(), splitter->afterArea()) << "registered again on the other side";
}
