#include "platform/Numbers.h"
#include "support/DefaultLocale.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

TEST(Numbers, StrIsPlainDecimalWithFifteenDigits)
{
    struct Case {
        const char* name;
        double value;
        QString expected;
    };
    const Case cases[] = {
        {"sumOfTenths", 0.1 + 0.2, u"0.3"_s},         {"fraction", 1234.5, u"1234.5"_s},
        {"whole", 10, u"10"_s},                       {"negative", -12.5, u"-12.5"_s},
        {"seconds", -3603139200.0, u"-3603139200"_s}, {"negativeZero", -0.0, u"0"_s},
        {"largestFastWhole", 999999999999999.0, u"999999999999999"_s},
        {"wholeOfSixteenDigits", 1234567890123456.0, u"1234567890123460"_s},
        {"roundsUpADigit", 999999999999999.9, u"1000000000000000"_s},
        {"hugeWhole", 1e20, u"100000000000000000000"_s}, {"tiny", 1.5e-7, u"0.00000015"_s},
        {"fifteenDigits", 123456789.123456789, u"123456789.123457"_s},
        // Rounding up would pass the largest double and read back as infinite.
        {"largest", std::numeric_limits<double>::max(), u"179769313486231"_s + QString(294, u'0')},
        {"mostNegative", -std::numeric_limits<double>::max(), u"-179769313486231"_s + QString(294, u'0')},
        {"belowLargest", 1.7976931348623e308, u"179769313486230"_s + QString(294, u'0')},
        {"infinity", HUGE_VAL, u"INF"_s}, {"negativeInfinity", -HUGE_VAL, u"-INF"_s}, {"nan", std::nan(""), u"NAN"_s},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Str(c.value), c.expected) << c.name;
        if (std::isfinite(c.value))
            EXPECT_TRUE(std::isfinite(Val(Str(c.value)))) << c.name << ": the stored text reads back";
    }
}

TEST(Numbers, StrRoundsAsPrintfDoes)
{
    // Where "%.15g" has no exponent it is the very same text; ties of an exact
    // binary half go to even there (457700908974160.5 gives ...160).
    std::setlocale(LC_NUMERIC, "C");
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, int(random() % 19) - 4) * (i % 2 ? -1 : 1);
        char printed[64];
        std::snprintf(printed, sizeof printed, "%.15g", value);
        if (!std::strchr(printed, 'e'))
            ASSERT_EQ(Str(value), QLatin1StringView(printed));
    }
}

TEST(Numbers, ValReadsTheLeadingNumber)
{
    struct Case {
        const char* name;
        QString text;
        double expected;
    };
    const Case cases[] = {
        {"empty", u""_s, 0},           {"blanks", u" \t "_s, 0},    {"letters", u"abc"_s, 0},
        {"signOnly", u"-"_s, 0},       {"pointOnly", u"."_s, 0},    {"currency", u"$12"_s, 0},
        {"trailingText", u"12abc"_s, 12}, {"noLeadingDigit", u"-.5"_s, -0.5}, {"twoPoints", u"1.2.3"_s, 1.2},
        {"leadingBlanks", u" \t7"_s, 7}, {"comma", u"12,5"_s, 12},  {"noExponent", u"1e5"_s, 1},
        {"plus", u"+3.25"_s, 3.25},    {"blankAfterSign", u"- 5"_s, 0}, {"trailingPoint", u"5."_s, 5},
        {"leadingZeros", u"007.50"_s, 7.5}, {"amount", u"-1234.56"_s, -1234.56}, {"arabicDigits", u"\u0661\u0662"_s, 0},
        {"overflow", u"1"_s + QString(400, u'0'), HUGE_VAL},
        {"underflow", u"-0."_s + QString(400, u'0') + u"1"_s, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Val(c.text), c.expected) << c.name;
}

TEST(Numbers, ValIsCorrectlyRounded)
{
    // Texts of every length around the 15-digit and 1e22 limits of the exact path.
    std::setlocale(LC_NUMERIC, "C");
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i) {
        std::string text = i % 3 ? "" : "-";
        const int integerDigits = int(random() % 26);
        const int fractionDigits = int(random() % 26);
        for (int d = 0; d < integerDigits; ++d)
            text += char('0' + random() % 10);
        text += '.';
        for (int d = 0; d < fractionDigits; ++d)
            text += char(random() % 4 ? '0' : '0' + random() % 10);
        if (integerDigits + fractionDigits > 0)
            ASSERT_EQ(Val(QString::fromLatin1(text)), std::strtod(text.c_str(), nullptr)) << text;
    }
}

TEST(Numbers, ReadAmountTakesCommaAsThePoint)
{
    EXPECT_EQ(readAmount(u"12,50"), 12.5);
    EXPECT_EQ(readAmount(u"1,234.56"), 1.234);
    const QString texts[] = {u"1.234,56"_s, u"-,5"_s, u"1,,2"_s, u","_s, u" 3,25 EUR"_s, u"+,75"_s,
                             u"0,1000000000000000055511151231257827"_s, u"9007199254740993,0"_s};
    for (const QString& text : texts)
        EXPECT_EQ(readAmount(text), Val(QString(text).replace(u',', u'.'))) << text.toStdString();
}

TEST(Numbers, FormatFollowsThePattern)
{
    struct Case {
        const char* name;
        double value;
        QString pattern;
        QString expected;
    };
    const Case cases[] = {
        {"whole", 1234.0, u"########0.00"_s, u"1234.00"_s},
        {"halfBelowInBinary", 2.675, u"########0.00"_s, u"2.68"_s},
        {"halfBelowInBinarySmall", 1.005, u"#0.00"_s, u"1.01"_s},
        {"negativeHalf", -0.125, u"-########0.00"_s, u"-0.13"_s},
        {"roundsToZero", -0.004, u"-#0.00"_s, u"0.00"_s},
        {"noSignInPattern", -12.5, u"#########0.00"_s, u"12.50"_s},
        {"noRequiredInteger", 0.5, u"#.00"_s, u".50"_s},
        {"moreDigitsThanPlaces", 123456789012.345, u"#######0.00"_s, u"123456789012.35"_s},
        {"carryIntoNewDigit", 99.995, u"#0.00"_s, u"100.00"_s},
        {"carryToOne", -0.995, u"-#.00"_s, u"-1.00"_s},
        {"large", 1e17, u"#0.00"_s, u"100000000000000000.00"_s},
        {"noFraction", -2.5, u"-0"_s, u"-3"_s},
        {"optionalPlaces", 1.25, u"0.0##"_s, u"1.25"_s},
        {"optionalPlacesDropped", 1.0, u"0.0#"_s, u"1.0"_s},
        {"noPlaceLeft", 0.0001, u"#.##"_s, u""_s},
        {"requiredIntegerPlaces", 7.0, u"000"_s, u"007"_s},
        {"infinity", -HUGE_VAL, u"-0.00"_s, u"-INF"_s},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Format(c.value, c.pattern), c.expected) << c.name;
}

TEST(Numbers, OnlyFormatFollowsTheLocale)
{
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(Format(-1234567.891, u"-########0.00"), u"-1234567,89");
    EXPECT_EQ(Str(1234.5), u"1234.5");
    EXPECT_EQ(Val(u"1234,5"), 1234);
    EXPECT_EQ(Val(u"1234.5"), 1234.5);
}
