#include "support/ScriptedPlatform.h"
#include "widgets/CalendarControl.h"

#include <QAbstractItemModel>
#include <QImage>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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
