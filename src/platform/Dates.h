#pragma once

#include <QDate>
#include <QDateTime>
#include <QStringView>

// Reads a date; true and the date for a text it can read, false otherwise (date untouched).
// Blanks (spaces, tabs) around the text are ignored. It reads, in this order:
// - the stored form, year-month-day with "-": "2014-03-09", "2014-3-9";
// - eight digits, "20140309";
// - the default locale's short date form ("3/9/14" or "3/9/2014" in the United
//   States). When that form has a two-digit year, a four-digit one is read too, and a
//   two-digit year falls within 20 years ahead of the current year: in 2026 "46"
//   is 2046 and "47" is 1947. A blank in the form may be left out of the text, so a
//   Slovene "9.3.14" reads like "9. 3. 14".
// Only real dates of the years 1 to 9999 are read: "2014-02-30" fails.
bool ParseDate(QStringView text, QDate& date);

// Reads a date cell exactly as the books write it, YYYY-MM-DD with both places of
// month and day: "2014-03-09" reads, "2014-3-9" and "2014-02-30" don't.
bool readStoredDate(QStringView text, QDate& date);

// The year a two-digit year stands for: at most 20 years after the current year
// by the clock ("46" is 2046 and "47" is 1947 in 2026).
int yearOfTwoDigits(int twoDigits);

// The date with its month or year moved on, keeping its day number: days the
// new month lacks carry over into the month after, as a date object of the
// platform does when its Month or Year is set. 31 January plus a month is
// 3 March (2 March in a leap year); 29 February plus a year is 1 March.
QDate addMonthsCarrying(const QDate& date, int months);
QDate addYearsCarrying(const QDate& date, int years);

// YYYY-MM-DD, zero-padded (2014-03-09); "" for an invalid date.
QString SQLDate(const QDate& date);

// Seconds since 1904-01-01 00:00:00 of the wall-clock date and time given, with no time
// zone and no daylight saving (every day is 86400 seconds). TotalSeconds(QDate(1904,1,1)) == 0,
// TotalSeconds(QDate(1904,1,2)) == 86400; a QDateTime counts its time of day too.
// An invalid date counts as 1904-01-01.
double TotalSeconds(const QDate& date);
double TotalSeconds(const QDateTime& dateTime);
