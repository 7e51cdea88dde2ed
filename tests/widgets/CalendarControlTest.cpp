#include "support/ScriptedPlatform.h"
#include "widgets/CalendarControl.h"

#include <QAbstractItemModel>
#include <QImage>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The calendar as the transaction dialog holds it, on a fixed day.
class CalendarControlTest : public ::testing::Test {
protected:
    CalendarControlTest()
    {
        calendar.setGeometry(0, 0, 135, 143);
        calendar.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&calendar));
        view = calendar.findChild<QTableView*>(u"qt_calendar_calendarview"_s);
    }

    // The grid's cell of a day of the month on show; its first row holds the day names.
    QModelIndex cellOf(int day) const
    {
        const QAbstractItemModel* model = view->model();
        for (int row = 1; row < model->rowCount(); ++row)
            for (int column = 0; column < model->columnCount(); ++column)
                if (model->index(row, column).data().toInt() == 1) {
                    const int place = column + day - 1;
                    return model->index(row + place / 7, place % 7);
                }
        return {};
    }

    void click(const QModelIndex& cell) const
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    }

    // Whether anything but the background is drawn in a cell.
    bool drawn(const QModelIndex& cell) const
    {
        const QImage image = view->viewport()->grab(view->visualRect(cell).adjusted(2, 2, -2, -2)).toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != image.pixel(0, 0))
                    return true;
        return false;
    }

    FixedClock clock{QDateTime(QDate(2026, 11, 23), QTime(12, 0))};
    CalendarControl calendar;
    QTableView* view = nullptr;
};

} // namespace

TEST_F(CalendarControlTest, OpensOnTodayAndBrowsesWithoutChangingThePick)
{
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 11, 23)) << "a valid day before anything is set";
    EXPECT_EQ(calendar.MonthOnScreen(), 11);
    EXPECT_EQ(calendar.YearOnScreen(), 2026);
    EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Sunday);

    calendar.BrowseTo(2014, 3);
    EXPECT_EQ(calendar.MonthOnScreen(), 3);
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 11, 23));
    calendar.BrowseToSelection();
    EXPECT_EQ(calendar.YearOnScreen(), 2026);

    QTest::mouseClick(calendar.findChild<QToolButton*>(u"qt_calendar_nextmonth"_s), Qt::LeftButton);
    EXPECT_EQ(calendar.MonthOnScreen(), 12);
    QTest::mouseClick(calendar.findChild<QToolButton*>(u"qt_calendar_yearbutton"_s), Qt::LeftButton);
    auto* year = calendar.findChild<QSpinBox*>(u"qt_calendar_yearedit"_s);
    ASSERT_NE(year, nullptr);
    QTest::keyClick(year, Qt::Key_Up);
    QTest::keyClick(year, Qt::Key_Return);
    EXPECT_EQ(calendar.YearOnScreen(), 2027);
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 11, 23)) << "browsing picks nothing";

    // No limits from the application's side; an invalid day changes nothing.
    calendar.SetSelectedDate(QDate(1, 1, 1));
    EXPECT_EQ(calendar.SelectedDate(), QDate(1, 1, 1));
    calendar.SetSelectedDate(QDate(9999, 12, 31));
    EXPECT_EQ(calendar.SelectedDate(), QDate(9999, 12, 31));
    calendar.SetSelectedDate(QDate(2026, 2, 30));
    EXPECT_EQ(calendar.SelectedDate(), QDate(9999, 12, 31));
}

TEST_F(CalendarControlTest, AClickOrAKeyPicksADayAndNeighbouringDaysAreBlankButClickable)
{
    calendar.SetSelectedDate(QDate(2026, 9, 23)); // September 2026 begins on a Tuesday
    const QModelIndex twelfth = cellOf(12);
    ASSERT_TRUE(twelfth.isValid());
    click(twelfth);
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 9, 12));
    QTest::keyClick(view, Qt::Key_Right);
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 9, 13));

    // The cell before the 1st holds the last day of August: drawn blank, picked by a click.
    const QModelIndex first = cellOf(1);
    const QModelIndex before = view->model()->index(first.row(), first.column() - 1);
    EXPECT_TRUE(drawn(first));
    EXPECT_FALSE(drawn(before));
    click(before);
    EXPECT_EQ(calendar.SelectedDate(), QDate(2026, 8, 31));
    EXPECT_EQ(calendar.MonthOnScreen(), 8);
}
