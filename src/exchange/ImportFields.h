#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

#include <optional>

// The date and amount fields of an import file, read as banks write them.

enum class DateOrder { YearMonthDay, DayMonthYear, MonthDayYear };

// A date in the order given: three parts, each a number or (for the month) an
// English month name or its three-letter abbreviation, separated by "-", "/",
// "." or blanks; in year-month-day order also eight digits. A two-digit year is
// read as the ledger reads one. A time after a blank, "T" or "," is dropped.
// Nothing for a text that isn't a real day.
// "05/03/2014" day-month-year is 5 March 2014; "2014-03-05T10:30:00" and
// "20140305" year-month-day are that day too; "Mar 5, 2014" month-day-year also.
std::optional<QDate> readImportDate(QStringView text, DateOrder order);

enum class DecimalMark { Auto, Period, Comma };

// An amount as the ledger stores it: "-" for a negative one, the digits, and
// "." with the decimals as written; "" for an empty field; nothing for a text
// that isn't an amount. Around the number there may be blanks, a currency sign
// or a three-letter currency code in capitals, a leading "+" or "-", a trailing "-" or
// parentheses. Thousands are marked by the mark that isn't the decimal one,
// "'", "’" or a blank, between groups of three digits. With Auto, where both
// "." and "," stand the last is the decimal mark; one mark standing once is the
// decimal mark, one standing more than once marks thousands.
// "1.234,56" is "1234.56"; "(12.00)" is "-12.00"; "EUR 1'000" is "1000";
// "12abc" and, with a decimal comma, "1,234.56" are nothing.
std::optional<QString> readImportAmount(QStringView text, DecimalMark mark);
