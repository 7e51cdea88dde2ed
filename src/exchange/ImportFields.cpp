#include "exchange/ImportFields.h"

#include "platform/Dates.h"

#include <QList>

#include <array>

using namespace Qt::StringLiterals;

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

// Currency codes are written in capitals: "EUR", "USD".
bool isCodeLetter(QChar c)
{
    return c >= u'A' && c <= u'Z';
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == QChar(0x00A0) || c == QChar(0x202F) || c == QChar(0x2009);
}

// January is 1; 0 for a word that names no month.
int monthNamed(QStringView word)
{
    static const std::array<QStringView, 12> names = {u"january", u"february", u"march",     u"april",
                                                      u"may",     u"june",     u"july",      u"august",
                                                      u"september", u"october", u"november", u"december"};
    for (int month = 0; month < 12; ++month) {
        const QStringView name = names[month];
        if (word.compare(name, Qt::CaseInsensitive) == 0 || word.compare(name.left(3), Qt::CaseInsensitive) == 0
            || (month == 8 && word.compare(u"sept", Qt::CaseInsensitive) == 0))
            return month + 1;
    }
    return 0;
}

int number(QStringView digits)
{
    int value = 0;
    for (const QChar c : digits)
        value = value * 10 + (c.unicode() - u'0');
    return value;
}

std::optional<int> yearOf(QStringView part)
{
    if (part.size() == 4 && isDigit(part[0]))
        return number(part);
    if (part.size() == 2 && isDigit(part[0]))
        return yearOfTwoDigits(number(part));
    return std::nullopt;
}

std::optional<int> monthOf(QStringView part)
{
    if (isDigit(part[0]))
        return part.size() <= 2 ? std::optional<int>(number(part)) : std::nullopt;
    const int month = monthNamed(part);
    return month > 0 ? std::optional<int>(month) : std::nullopt;
}

std::optional<int> dayOf(QStringView part)
{
    return isDigit(part[0]) && part.size() <= 2 ? std::optional<int>(number(part)) : std::nullopt;
}

bool isSeparator(QChar c)
{
    return c == u'-' || c == u'/' || c == u'.' || isBlank(c);
}

// What may follow a date: nothing, or a time after a blank, "T" or ",".
bool endsDate(QStringView rest)
{
    return rest.isEmpty() || isBlank(rest[0]) || rest[0] == u'T' || rest[0] == u',';
}

} // namespace

std::optional<QDate> readImportDate(QStringView text, DateOrder order)
{
    text = text.trimmed();
    if (text.isEmpty())
        return std::nullopt;
    std::optional<int> year;
    std::optional<int> month;
    std::optional<int> day;
    // Eight digits, in year-month-day order only.
    qsizetype digits = 0;
    while (digits < text.size() && isDigit(text[digits]))
        ++digits;
    if (digits == 8 && order == DateOrder::YearMonthDay && endsDate(text.sliced(8))) {
        year = number(text.sliced(0, 4));
        month = number(text.sliced(4, 2));
        day = number(text.sliced(6, 2));
    } else {
        // Three parts, each all digits or all letters, with separators between.
        QList<QStringView> parts;
        qsizetype at = 0;
        while (parts.size() < 3) {
            if (at == text.size())
                return std::nullopt;
            const qsizetype start = at;
            const bool digitPart = isDigit(text[at]);
            while (at < text.size() && (digitPart ? isDigit(text[at]) : isLetter(text[at])))
                ++at;
            if (at == start)
                return std::nullopt;
            parts << text.sliced(start, at - start);
            if (parts.size() == 3)
                break;
            // A comma after a day or a month name, as in "Mar 5, 2014".
            if (at < text.size() && text[at] == u',')
                ++at;
            const qsizetype separators = at;
            while (at < text.size() && isSeparator(text[at]))
                ++at;
            if (at == separators && !(separators > 0 && text[separators - 1] == u','))
                return std::nullopt;
        }
        if (!endsDate(text.sliced(at)))
            return std::nullopt;
        switch (order) {
        case DateOrder::YearMonthDay:
            year = yearOf(parts[0]), month = monthOf(parts[1]), day = dayOf(parts[2]);
            break;
        case DateOrder::DayMonthYear:
            day = dayOf(parts[0]), month = monthOf(parts[1]), year = yearOf(parts[2]);
            break;
        case DateOrder::MonthDayYear:
            month = monthOf(parts[0]), day = dayOf(parts[1]), year = yearOf(parts[2]);
            break;
        }
    }
    if (!year || !month || !day || !QDate::isValid(*year, *month, *day) || *year < 1)
        return std::nullopt;
    return QDate(*year, *month, *day);
}

std::optional<QString> readImportAmount(QStringView text, DecimalMark mark)
{
    QString rest = text.trimmed().toString();
    while (!rest.isEmpty() && isBlank(rest.front()))
        rest.remove(0, 1);
    while (!rest.isEmpty() && isBlank(rest.back()))
        rest.chop(1);
    if (rest.isEmpty())
        return QString();

    bool negative = false;
    int signs = 0;
    if (rest.startsWith(u'(') && rest.endsWith(u')')) {
        negative = true;
        ++signs;
        rest = rest.sliced(1, rest.size() - 2).trimmed();
    }
    // Signs and currency around the number, in any order: "-$12", "$-12", "12 EUR-".
    bool currency = false;
    for (bool changed = true; changed && !rest.isEmpty();) {
        changed = false;
        const auto strip = [&](qsizetype from, qsizetype count) {
            rest.remove(from, count);
            rest = rest.trimmed();
            changed = true;
        };
        if (rest.front() == u'+' || rest.front() == u'-') {
            negative = negative || rest.front() == u'-';
            ++signs;
            strip(0, 1);
        } else if (rest.back() == u'-') {
            negative = true;
            ++signs;
            strip(rest.size() - 1, 1);
        } else if (!currency && rest.front().category() == QChar::Symbol_Currency) {
            currency = true;
            strip(0, 1);
        } else if (!currency && rest.back().category() == QChar::Symbol_Currency) {
            currency = true;
            strip(rest.size() - 1, 1);
        } else if (!currency && rest.size() > 3 && isCodeLetter(rest[0]) && isCodeLetter(rest[1])
                   && isCodeLetter(rest[2]) && !isLetter(rest[3])) {
            currency = true;
            strip(0, 3);
        } else if (!currency && rest.size() > 3 && isCodeLetter(rest.back()) && isCodeLetter(rest[rest.size() - 2])
                   && isCodeLetter(rest[rest.size() - 3]) && !isLetter(rest[rest.size() - 4])) {
            currency = true;
            strip(rest.size() - 3, 3);
        }
    }
    if (signs > 1 || rest.isEmpty())
        return std::nullopt;

    // What is left: digits and marks only.
    const qsizetype periods = rest.count(u'.');
    const qsizetype commas = rest.count(u',');
    for (const QChar c : rest)
        if (!isDigit(c) && c != u'.' && c != u',' && c != u'\'' && c != QChar(0x2019) && !isBlank(c))
            return std::nullopt;
    QChar decimal;
    switch (mark) {
    case DecimalMark::Period:
        decimal = u'.';
        break;
    case DecimalMark::Comma:
        decimal = u',';
        break;
    case DecimalMark::Auto:
        if (periods > 0 && commas > 0)
            decimal = rest.lastIndexOf(u'.') > rest.lastIndexOf(u',') ? u'.' : u',';
        else if (periods == 1)
            decimal = u'.';
        else if (commas == 1)
            decimal = u',';
        break;
    }
    QStringView whole = rest;
    QStringView fraction;
    if (!decimal.isNull()) {
        const qsizetype point = rest.indexOf(decimal);
        if (point >= 0) {
            if (rest.indexOf(decimal, point + 1) >= 0)
                return std::nullopt;
            whole = QStringView(rest).left(point);
            fraction = QStringView(rest).sliced(point + 1);
            for (const QChar c : fraction)
                if (!isDigit(c))
                    return std::nullopt;
        }
    }
    // The whole part: groups of three after the first, all cut by one mark.
    QString digits;
    QChar thousands;
    qsizetype group = -1; // digits since the last mark; -1 before the first mark
    qsizetype firstGroup = 0;
    for (const QChar c : whole) {
        if (isDigit(c)) {
            digits += c;
            if (group >= 0)
                ++group;
            else
                ++firstGroup;
            continue;
        }
        if (c == decimal || (!thousands.isNull() && c != thousands) || (group >= 0 && group != 3)
            || (group < 0 && (firstGroup == 0 || firstGroup > 3)))
            return std::nullopt;
        thousands = c;
        group = 0;
    }
    if (group >= 0 && group != 3)
        return std::nullopt;
    if (digits.isEmpty() && fraction.isEmpty())
        return std::nullopt;
    if (digits.isEmpty())
        digits = u"0"_s;
    QString amount = negative ? u"-"_s : QString();
    amount += digits;
    if (!fraction.isEmpty())
        amount += u'.' + fraction.toString();
    return amount;
}
