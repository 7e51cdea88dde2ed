#include "widgets/DateControl.h"

#include "platform/Clock.h"

using namespace Qt::StringLiterals;

DateControl::DateControl(QWidget* parent)
    : QDateEdit(parent)
{
    setCalendarPopup(false);
    setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    // The form the transactions' dates have, the same on every system.
    setDisplayFormat(u"yyyy-MM-dd"_s);
    setDateValue(Clock::now());
}

QDateTime DateControl::DateValue() const
{
    return QDateTime(date(), timeOfDay_);
}

void DateControl::setDateValue(const QDateTime& value)
{
    timeOfDay_ = value.time();
    setDate(value.date());
}
