#pragma once

#include <QCalendarWidget>
#include <QDate>

// A month calendar from which the user picks one day, over Qt's calendar: the
// month on show can be moved by month and by year, and a picked day is given
// back as a date. It holds a valid day from the start, today by the clock, so
// a dialog may read it without having set it. The application uses it as it
// comes: no lower or upper limit, weeks from Sunday, English day and month
// names whatever the system's, and the days of the neighbouring months left
// blank though a click on their place still picks them.
class CalendarControl : public QCalendarWidget {
    Q_OBJECT

public:
    explicit CalendarControl(QWidget* parent = nullptr);

    QDate SelectedDate() const { return selectedDate(); }
    // Picks the day and shows its month; an invalid date changes nothing.
    void SetSelectedDate(const QDate& date);
    // Shows a month without changing the day picked.
    void BrowseTo(int year, int month) { setCurrentPage(year, month); }
    // Shows the month of the day picked.
    void BrowseToSelection() { showSelectedDate(); }
    int MonthOnScreen() const { return monthShown(); }
    int YearOnScreen() const { return yearShown(); }

    // The design values the application gives the control.
    static constexpr int FirstDayOfWeek = 0; // Sunday
    static constexpr bool AutoLocalize = false;
    static constexpr bool DrawOutOfBounds = false;
    static constexpr bool ClickableOutOfBounds = true;
    static constexpr bool HideYearArrows = false;

protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
};
