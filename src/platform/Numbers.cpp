#include "platform/Numbers.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

// Every power of ten up to 1e22 is exact in a double, so a mantissa that is itself
// exact, multiplied or divided once by one of them, is correctly rounded.
constexpr double kPowersOfTen[] = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22,
};
constexpr std::uint64_t kLargestExactMantissa = std::uint64_t(1) << 53;

// Enough for the longest plain rendering of a double: the smallest subnormal is
// "0." followed by 323 places, the largest finite value has 309 integer digits.
constexpr int kPlainBufferSize = 400;

bool isBlank(char16_t c)
{
    return c == u' ' || c == u'\t';
}

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// Writes the digits of n backwards, ending just before end; returns the first.
char* writeUnsigned(std::uint64_t n, char* end)
{
    do {
        *--end = char('0' + n % 10);
        n /= 10;
    } while (n != 0);
    return end;
}

double readNumber(QStringView text, bool commaIsPoint)
{
    const char16_t* p = text.utf16();
    const char16_t* const end = p + text.size();
    while (p != end && isBlank(*p))
        ++p;
    bool negative = false;
    if (p != end && (*p == u'+' || *p == u'-')) {
        negative = *p == u'-';
        ++p;
    }
    const char16_t* const numberStart = p;

    // The value read is mantissa * 10^exponent. The mantissa keeps at most 19
    // significant digits (it fits in 64 bits); dropped digits only move the exponent
    // and, when one of them isn't 0, make the fast path unusable.
    std::uint64_t mantissa = 0;
    int kept = 0;
    int exponent = 0;
    bool inexact = false;
    bool anyDigit = false;
    bool seenPoint = false;
    for (; p != end; ++p) {
        const char16_t c = *p;
        if (isDigit(c)) {
            anyDigit = true;
            const unsigned digit = c - u'0';
            if (mantissa == 0 && digit == 0) {
                if (seenPoint)
                    --exponent;
            } else if (kept < 19) {
                mantissa = mantissa * 10 + digit;
                ++kept;
                if (seenPoint)
                    --exponent;
            } else {
                if (!seenPoint)
                    ++exponent;
                if (digit != 0)
                    inexact = true;
            }
        } else if (!seenPoint && (c == u'.' || (commaIsPoint && c == u','))) {
            seenPoint = true;
        } else {
            break;
        }
    }
    if (!anyDigit || mantissa == 0)
        return anyDigit && negative ? -0.0 : 0.0;

    if (!inexact) {
        // "12.50" and "1200" are 125e-1 and 12e2: fewer digits, more fast paths.
        while (mantissa % 10 == 0) {
            mantissa /= 10;
            --kept;
            ++exponent;
        }
        if (mantissa <= kLargestExactMantissa && exponent >= -22 && exponent <= 22) {
            const double m = double(mantissa);
            const double magnitude = exponent < 0 ? m / kPowersOfTen[-exponent] : m * kPowersOfTen[exponent];
            return negative ? -magnitude : magnitude;
        }
    }

    std::string ascii;
    ascii.reserve(std::size_t(p - numberStart));
    for (const char16_t* q = numberStart; q != p; ++q)
        ascii.push_back(isDigit(*q) ? char(*q) : '.');
    double magnitude = 0;
    const auto read =
        std::from_chars(ascii.data(), ascii.data() + ascii.size(), magnitude, std::chars_format::fixed);
    if (read.ec == std::errc::result_out_of_range) {
        // The leading digit sits at 10^(kept + exponent - 1): at or above 1 the text
        // overflowed, below it underflowed.
        magnitude = kept + exponent > 0 ? HUGE_VAL : 0.0;
    }
    return negative ? -magnitude : magnitude;
}

} // namespace

StrText::StrText(double value)
{
    const auto put = [this](std::string_view written) {
        std::copy(written.begin(), written.end(), text);
        size = qsizetype(written.size());
    };
    if (std::isnan(value) || std::isinf(value)) {
        put(std::isnan(value) ? "NAN" : value < 0 ? "-INF" : "INF");
        return;
    }

    // Whole numbers below 1e15 have at most 15 digits, so they print exactly; they
    // are by far the most common (seconds, counts), hence the direct path.
    if (std::fabs(value) < 1e15 && value == std::trunc(value)) {
        char buffer[24];
        char* const end = buffer + sizeof buffer;
        const auto whole = static_cast<std::int64_t>(value);
        char* first = writeUnsigned(whole < 0 ? std::uint64_t(-whole) : std::uint64_t(whole), end);
        if (whole < 0)
            *--first = '-';
        put(std::string_view(first, size_t(end - first)));
        return;
    }

    // Rounded to 15 significant digits exactly as printf("%.15g") rounds:
    // "d.dddddddddddddde±xx".
    char scientific[32];
    const auto converted = std::to_chars(scientific, scientific + sizeof scientific, value,
                                         std::chars_format::scientific, 14);
    char digits[16];
    int digitCount = 0;
    const char* p = scientific;
    if (*p == '-')
        ++p;
    for (; *p != 'e'; ++p) {
        if (*p != '.')
            digits[digitCount++] = *p;
    }
    ++p;
    const bool negativeExponent = *p == '-';
    ++p;
    int exponent = 0;
    for (; p != converted.ptr; ++p)
        exponent = exponent * 10 + (*p - '0');
    if (negativeExponent)
        exponent = -exponent;
    // Next to the largest double, 15 digits can round up past it, to a text that
    // reads back as infinite: the 15 digits just below are the stored form then.
    double readBack = 0;
    if (std::from_chars(scientific, converted.ptr, readBack).ec == std::errc::result_out_of_range) {
        int at = digitCount - 1;
        while (digits[at] == '0')
            digits[at--] = '9';
        --digits[at];
    }
    while (digitCount > 1 && digits[digitCount - 1] == '0')
        --digitCount;

    // The value is d.ddd * 10^exponent; lay the digits out around the point.
    char* out = text;
    if (value < 0)
        *out++ = '-';
    if (exponent < 0) {
        *out++ = '0';
        *out++ = '.';
        for (int i = -1; i > exponent; --i)
            *out++ = '0';
        for (int i = 0; i < digitCount; ++i)
            *out++ = digits[i];
    } else {
        for (int i = 0; i <= exponent; ++i)
            *out++ = i < digitCount ? digits[i] : '0';
        if (digitCount > exponent + 1) {
            *out++ = '.';
            for (int i = exponent + 1; i < digitCount; ++i)
                *out++ = digits[i];
        }
    }
    size = out - text;
}

QString Str(double value)
{
    return StrText(value).view();
}

double Val(QStringView text)
{
    return readNumber(text, false);
}

double readAmount(QStringView text)
{
    return readNumber(text, true);
}

QString Format(double value, QStringView pattern)
{
    bool showSign = false;
    int minIntegerDigits = 0; // the places from the first integer "0" on
    int fractionPlaces = 0;
    int minFractionDigits = 0; // the places up to the last fraction "0"
    bool inFraction = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (i == 0 && c == u'-') {
            showSign = true;
        } else if (c == u'.' && !inFraction) {
            inFraction = true;
        } else if (inFraction) {
            if (c == u'0' || c == u'#')
                ++fractionPlaces;
            if (c == u'0')
                minFractionDigits = fractionPlaces;
        } else if (c == u'0' || (c == u'#' && minIntegerDigits > 0)) {
            ++minIntegerDigits;
        }
    }

    if (std::isnan(value))
        return u"NAN"_s;
    if (std::isinf(value))
        return showSign && value < 0 ? u"-INF"_s : u"INF"_s;

    // The shortest text that reads back as the value: "2.675" for the double just
    // below 2.675, so rounding it gives what the user sees and expects, 2.68.
    char shortest[kPlainBufferSize];
    const auto converted = std::to_chars(shortest, shortest + sizeof shortest, std::fabs(value),
                                         std::chars_format::fixed);
    const char* const shortestBegin = shortest;
    const char* const shortestEnd = converted.ptr;
    const char* point = shortestBegin;
    while (point != shortestEnd && *point != '.')
        ++point;

    // digits[0] is room for a carry out of the top ("9.995" -> "10.00").
    char digits[kPlainBufferSize + 1];
    digits[0] = '0';
    int integerCount = int(point - shortestBegin);
    std::copy(shortestBegin, point, digits + 1);
    const char* fraction = point == shortestEnd ? point : point + 1;
    const int fractionAvailable = int(shortestEnd - fraction);
    const int fractionCount = std::min(fractionAvailable, fractionPlaces);
    std::copy(fraction, fraction + fractionCount, digits + 1 + integerCount);
    if (fractionAvailable > fractionPlaces && fraction[fractionPlaces] >= '5') {
        int i = integerCount + fractionCount; // the last digit kept
        while (digits[i] == '9')
            digits[i--] = '0';
        ++digits[i];
    }
    const char* integerDigits = digits + 1;
    if (digits[0] != '0') {
        integerDigits = digits;
        ++integerCount;
    }
    const char* fractionDigits = digits + 1 + int(point - shortestBegin);
    int shownFraction = fractionPlaces;
    bool isZero = true;
    for (const char* d = integerDigits; d != fractionDigits + fractionCount; ++d)
        isZero = isZero && *d == '0';

    while (integerCount > minIntegerDigits && *integerDigits == '0') {
        ++integerDigits;
        --integerCount;
    }
    // Places beyond the shortest text are zeros; optional ones are left out.
    while (shownFraction > minFractionDigits
           && (shownFraction > fractionCount || fractionDigits[shownFraction - 1] == '0'))
        --shownFraction;

    QString result;
    const QString decimalPoint = shownFraction > 0 ? QLocale().decimalPoint() : QString();
    result.reserve(1 + minIntegerDigits + integerCount + decimalPoint.size() + shownFraction);
    if (showSign && value < 0 && !isZero)
        result += u'-';
    for (int i = integerCount; i < minIntegerDigits; ++i)
        result += u'0';
    for (int i = 0; i < integerCount; ++i)
        result += QLatin1Char(integerDigits[i]);
    if (shownFraction > 0) {
        result += decimalPoint;
        for (int i = 0; i < shownFraction; ++i)
            result += i < fractionCount ? QLatin1Char(fractionDigits[i]) : QLatin1Char('0');
    }
    return result;
}

int truncated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return int(std::trunc(std::clamp(value, lowest, highest)));
}
