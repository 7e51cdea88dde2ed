#include "platform/Dates.h"

#include "platform/Clock.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const QDate kEpoch(1904, 1, 1);
constexpr double kSecondsPerDay = 86400.0;

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// Years have four digits at most and QDate knows no year 0, so every date made here
// lies within the years 1 to 9999.
bool makeDate(int year, int month, int day, QDate& date)
{
    if (!QDate::isValid(year, month, day))
        return false;
    date = QDate(year, month, day);
    return true;
}

// count ASCII digits of text from at, as a number.
int asciiNumber(QStringView text, qsizetype at, qsizetype count)
{
    int value = 0;
    for (qsizetype i = at; i < at + count; ++i)
        value = value * 10 + (text[i].unicode() - u'0');
    return value;
}

// "2014-03-09" or "2014-3-9": the stored form, checked by hand because it is read
// for every date cell of the books.
bool readStoredForm(QStringView text, QDate& date)
{
    const qsizetype size = text.size();
    if (size < 8 || size > 10 || text[4] != u'-')
        return false;
    for (qsizetype i = 0; i < 4; ++i) {
        if (!isAsciiDigit(text[i]))
            return false;
    }
    qsizetype monthDigits = 0;
    while (5 + monthDigits < size && isAsciiDigit(text[5 + monthDigits]))
        ++monthDigits;
    const qsizetype dash = 5 + monthDigits;
    if (monthDigits < 1 || monthDigits > 2 || dash >= size || text[dash] != u'-')
        return false;
    const qsizetype dayDigits = size - dash - 1;
    if (dayDigits < 1 || dayDigits > 2)
        return false;
    for (qsizetype i = dash + 1; i < size; ++i) {
        if (!isAsciiDigit(text[i]))
            return false;
    }
    return makeDate(asciiNumber(text, 0, 4), asciiNumber(text, 5, monthDigits),
                    asciiNumber(text, dash + 1, dayDigits), date);
}

bool readEightDigits(QStringView text, QDate& date)
{
    if (text.size() != 8)
        return false;
    for (const QChar c : text) {
        if (!isAsciiDigit(c))
            return false;
    }
    return makeDate(asciiNumber(text, 0, 4), asciiNumber(text, 4, 2), asciiNumber(text, 6, 2), date);
}


// Reads the decimal digits at text[at] (any script's, so a locale with its own digits
// reads too), at least minCount and at most maxCount of them.
bool readNumberField(QStringView text, qsizetype& at, int minCount, int maxCount, int& value)
{
    int count = 0;
    value = 0;
    while (count < maxCount && at < text.size() && text[at].isDigit()) {
        value = value * 10 + text[at].digitValue();
        ++at;
        ++count;
    }
    return count >= minCount;
}

// The longest month name of the locale at text[at], in either grammatical form
// ("марта" and "март"), ignoring case.
bool readMonthName(QStringView text, qsizetype& at, const QLocale& locale, QLocale::FormatType type,
                   int& month)
{
    const QStringView rest = text.mid(at);
    qsizetype longest = 0;
    for (int m = 1; m <= 12; ++m) {
        for (const QString& name : {locale.monthName(m, type), locale.standaloneMonthName(m, type)}) {
            if (name.size() > longest && rest.startsWith(name, Qt::CaseInsensitive)) {
                longest = name.size();
                month = m;
            }
        }
    }
    at += longest;
    return longest > 0;
}

// Reads text with a date format of QLocale's kind ("M/d/yy", "dd.MM.yyyy",
// "d MMM yyyy", "d.MM.yy 'г'."). With fourDigitYear a "yy" reads four digits.
// Day names and unknown field widths aren't read.
bool readWithFormat(QStringView text, QStringView format, bool fourDigitYear, const QLocale& locale,
                    QDate& date)
{
    int year = -1;
    int month = -1;
    int day = -1;
    bool twoDigitYear = false;
    qsizetype at = 0;
    const auto matchLiteral = [&](QChar c) {
        if (at < text.size() && text[at] == c) {
            ++at;
            return true;
        }
        return false;
    };

    qsizetype i = 0;
    while (i < format.size()) {
        const QChar f = format[i];
        if (f == u'd' || f == u'M' || f == u'y') {
            qsizetype run = 1;
            while (i + run < format.size() && format[i + run] == f)
                ++run;
            i += run;
            bool read = false;
            if (f == u'd' && run <= 2) {
                read = readNumberField(text, at, 1, 2, day);
            } else if (f == u'M' && run <= 2) {
                read = readNumberField(text, at, 1, 2, month);
            } else if (f == u'M' && run <= 4) {
                read = readMonthName(text, at, locale, run == 3 ? QLocale::ShortFormat : QLocale::LongFormat,
                                     month);
            } else if (f == u'y' && run == 4) {
                read = readNumberField(text, at, 4, 4, year);
            } else if (f == u'y' && run == 2) {
                twoDigitYear = !fourDigitYear;
                const int width = fourDigitYear ? 4 : 2;
                read = readNumberField(text, at, width, width, year);
            }
            if (!read)
                return false;
        } else if (f == u'\'') {
            // 'text' is literal; '' is a quote, inside quotes or out.
            ++i;
            if (i < format.size() && format[i] == u'\'') {
                if (!matchLiteral(u'\''))
                    return false;
                ++i;
                continue;
            }
            while (i < format.size()) {
                if (format[i] == u'\'') {
                    if (i + 1 < format.size() && format[i + 1] == u'\'') {
                        if (!matchLiteral(u'\''))
                            return false;
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                if (!matchLiteral(format[i]))
                    return false;
                ++i;
            }
        } else if (f == u' ') {
            while (at < text.size() && isBlank(text[at]))
                ++at;
            ++i;
        } else if (f.category() == QChar::Other_Format) {
            // Direction marks ("d\u200F/M\u200F/yyyy") that nobody types.
            matchLiteral(f);
            ++i;
        } else {
            if (!matchLiteral(f))
                return false;
            ++i;
        }
    }
    if (at != text.size() || year < 0 || month < 0 || day < 0)
        return false;
    return makeDate(twoDigitYear ? yearOfTwoDigits(year) : year, month, day, date);
}

QStringView trimmedBlanks(QStringView text)
{
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && isBlank(text[first]))
        ++first;
    while (end > first && isBlank(text[end - 1]))
        --end;
    return text.sliced(first, end - first);
}

} // namespace

bool readStoredDate(QStringView text, QDate& date)
{
    return text.size() == 10 && readStoredForm(text, date);
}

int yearOfTwoDigits(int twoDigits)
{
    const int year = 2000 + twoDigits;
    return year > Clock::today().year() + 20 ? year - 100 : year;
}

bool ParseDate(QStringView text, QDate& date)
{
    text = trimmedBlanks(text);
    if (readStoredForm(text, date) || readEightDigits(text, date))
        return true;

    const QLocale locale;
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    if (readWithFormat(text, format, false, locale, date))
        return true;
    const bool twoDigitYear = format.contains(u"yy") && !format.contains(u"yyyy");
    return twoDigitYear && readWithFormat(text, format, true, locale, date);
}

QDate addMonthsCarrying(const QDate& date, int months)
{
    if (!date.isValid())
        return {};
    const QDate first = QDate(date.year(), date.month(), 1).addMonths(months);
    return first.addDays(date.day() - 1);
}

QDate addYearsCarrying(const QDate& date, int years)
{
    return addMonthsCarrying(date, 12 * years);
}

QString SQLDate(const QDate& date)
{
    if (!date.isValid())
        return {};
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < 0 || year > 9999)
        return u"%1-%2-%3"_s.arg(year).arg(month, 2, 10, QLatin1Char('0')).arg(day, 2, 10, QLatin1Char('0'));

    QString result(10, Qt::Uninitialized);
    QChar* out = result.data();
    const auto put = [&out](int value, int width) {
        for (int i = width - 1; i >= 0; --i) {
            out[i] = QChar(u'0' + value % 10);
            value /= 10;
        }
        out += width;
    };
    put(year, 4);
    *out++ = u'-';
    put(month, 2);
    *out++ = u'-';
    put(day, 2);
    return result;
}

double TotalSeconds(const QDate& date)
{
    return date.isValid() ? double(kEpoch.daysTo(date)) * kSecondsPerDay : 0.0;
}

double TotalSeconds(const QDateTime& dateTime)
{
    return TotalSeconds(dateTime.date()) + dateTime.time().msecsSinceStartOfDay() / 1000.0;
}
