#pragma once

#include <QDate>
#include <QDateTime>

#include <functional>

// "Now" and "today" for repeats, the report's current year and date fields.
// Replaceable, so that a test can fix the day.
namespace Clock {

QDateTime now();
QDate today();

// Installs a source of the current time; an empty function restores the system
// clock. Returns the previous source.
std::function<QDateTime()> install(std::function<QDateTime()> source);

} // namespace Clock
