#pragma once

#include <QString>
#include <QLatin1String>
#include <QStringView>

// Numbers as the books store and show them. Str and Val are the stored form: "."
// as the decimal mark whatever the user's locale, so a file reads the same on every
// machine. Format is the shown form, with the locale's decimal mark.

// Plain decimal text of a value, at most 15 significant digits, never an exponent:
// Str(0.1 + 0.2) is "0.3", Str(1e20) is "100000000000000000000", Str(1.5e-7) is
// "0.00000015", Str(-0.0) is "0". Infinities and NaN print "INF", "-INF", "NAN".
QString Str(double value);

// Str's text in a buffer of the caller's, for loops that mostly find a cell
// holding it already and so need no new string at all.
struct StrText {
    explicit StrText(double value);
    QLatin1String view() const { return QLatin1String(text, size); }

    // The longest plain rendering of a double: the smallest subnormal is "-0."
    // followed by 323 places; the largest finite value has 309 integer digits.
    char text[400];
    qsizetype size = 0;
};

// The leading decimal number of text: blanks (spaces, tabs), an optional sign,
// digits with at most one "."; reading stops at the first character that doesn't
// fit, and a text without a number is 0. Val(u"12abc") is 12, Val(u"-.5") is -0.5,
// Val(u"1.2.3") is 1.2, Val(u"12,5") is 12, Val(u"1e5") is 1. The result is the
// correctly rounded double of the digits read, as strtod gives it.
double Val(QStringView text);

// Val that also takes "," as the decimal mark, as if every "," were a "." first:
// the reading of every stored amount cell. readAmount(u"12,50") == 12.5,
// readAmount(u"1,234.56") == 1.234 (the text reads as "1.234.56").
double readAmount(QStringView text);

// value shown by a pattern: an optional leading "-", integer places ("#" optional,
// "0" required), then optionally "." and fraction places ("0" required, "#"
// optional). The decimal mark is the default locale's, never a group separator.
// Without the leading "-" no sign is printed at all (the absolute value); with it,
// "-" only for a value that doesn't round to zero. Rounding is half away from zero
// on the shortest decimal text of the value, so 2.675 shows as "2.68" with
// "0.00" although the double is a little below 2.675.
// Format(1234.0, u"########0.00") is "1234.00" (English) or "1234,00" (German);
// Format(0.5, u"#.00") is ".50"; Format(0.0, u"#") is "".
QString Format(double value, QStringView pattern);

// A double as a whole number, cut toward zero: truncated(2.9) is 2,
// truncated(-2.9) is -2. NaN is 0; a value beyond an int's range is the nearest
// end of it.
int truncated(double value);
