#include "widgets/CalendarControl.h"

#include "platform/Clock.h"

#include <QHeaderView>
#include <QLayout>
#include <QTableView>
#include <QLocale>
#include <QPainter>
#include <QTextCharFormat>
#include <QToolButton>

CalendarControl::CalendarControl(QWidget* parent)
    : QCalendarWidget(parent)
{
    setObjectName(QStringLiteral("CalendarControl"));
    // Days and months named the same on every system.
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    setFirstDayOfWeek(Qt::Sunday);
    setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    setGridVisible(false);
    // A small calendar: 135 by 143 in its dialog, a month of six weeks and its
    // navigation in a font to match.
    QFont small = font();
    small.setPointSizeF(7.5);
    setFont(small);
    if (QWidget* navigation = findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"))) {
        navigation->setFixedHeight(18);
        if (navigation->layout())
            navigation->layout()->setContentsMargins(0, 0, 0, 0);
        // Its buttons as narrow as their text: the month's menu shows without an arrow.
        navigation->setStyleSheet(QStringLiteral("QToolButton { padding: 0px 1px; margin: 0px; }"
                                                 "QToolButton::menu-indicator { image: none; width: 0px; }"));
        for (const char* arrow : {"qt_calendar_prevmonth", "qt_calendar_nextmonth"}) {
            if (auto* button = navigation->findChild<QToolButton*>(QLatin1StringView(arrow))) {
                button->setFixedWidth(16);
                button->setIconSize(QSize(12, 12));
            }
        }
        if (auto* month = navigation->findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton")))
            month->setMaximumWidth(66);
        if (auto* year = navigation->findChild<QToolButton*>(QStringLiteral("qt_calendar_yearbutton")))
            year->setMaximumWidth(34);
    }
    // Seven days and seven rows share the room left.
    if (auto* days = findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"))) {
        days->horizontalHeader()->setMinimumSectionSize(8);
        days->verticalHeader()->setMinimumSectionSize(8);
    }
    // No limit from the application's side.
    setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
    // Weekends look like any other day: no weekday is special.
    QTextCharFormat plain;
    plain.setForeground(palette().color(QPalette::Text));
    setWeekdayTextFormat(Qt::Saturday, plain);
    setWeekdayTextFormat(Qt::Sunday, plain);
    SetSelectedDate(Clock::today());
}

void CalendarControl::SetSelectedDate(const QDate& date)
{
    if (!date.isValid())
        return;
    setSelectedDate(date);
    showSelectedDate();
}

void CalendarControl::paintCell(QPainter* painter, const QRect& rect, QDate date) const
{
    if (date.month() == monthShown() && date.year() == yearShown()) {
        QCalendarWidget::paintCell(painter, rect, date);
        return;
    }
    // A day of a neighbouring month: its place stays blank.
    painter->fillRect(rect, palette().brush(QPalette::Base));
}
