#include "platform/DecimalSum.h"
#include "platform/Numbers.h"
#include "platform/TextHelpers.h"
#include "support/DefaultLocale.h"
#include "support/Testing.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

#include <QRegularExpression>

TEST(Numbers, StrIsPlainDecimalWithFifteenDigits)
{
    const double largest = std::numeric_limits<double>::max();
    const std::pair<double, QString> cases[] = {
        {0.1 + 0.2, u"0.3"_s},     {1234.5, u"1234.5"_s}, {10, u"10"_s}, {-12.5, u"-12.5"_s},
        {-3603139200.0, u"-3603139200"_s}, {-0.0, u"0"_s},
        {999999999999999.0, u"999999999999999"_s},
        {1234567890123456.0, u"1234567890123460"_s},
        {999999999999999.9, u"1000000000000000"_s},
        {1e20, u"100000000000000000000"_s}, {1.5e-7, u"0.00000015"_s},
        {123456789.123456789, u"123456789.123457"_s},
        // Rounding up would pass the largest double and read back as infinite.
        {largest, u"179769313486231"_s + QString(294, u'0')},
        {-largest, u"-179769313486231"_s + QString(294, u'0')},
        {1.7976931348623e308, u"179769313486230"_s + QString(294, u'0')},
        {HUGE_VAL, u"INF"_s}, {-HUGE_VAL, u"-INF"_s}, {std::nan(""), u"NAN"_s},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(Str(value), expected);
        if (std::isfinite(value))
            EXPECT_TRUE(std::isfinite(Val(Str(value)))) << expected.toStdString() << " reads back";
    }
}

TEST(Numbers, ValReadsTheLeadingNumber)
{
    const std::pair<QString, double> cases[] = {
        {u""_s, 0},           {u" \t "_s, 0},         {u"abc"_s, 0},        {u"-"_s, 0},
        {u"."_s, 0},          {u"$12"_s, 0},          {u"12abc"_s, 12},     {u"-.5"_s, -0.5},
        {u"1.2.3"_s, 1.2},    {u" \t7"_s, 7},         {u"12,5"_s, 12},      {u"1e5"_s, 1},
        {u"+3.25"_s, 3.25},   {u"- 5"_s, 0},          {u"5."_s, 5},         {u"007.50"_s, 7.5},
        {u"-1234.56"_s, -1234.56}, {u"\u0661\u0662"_s, 0},
        {u"1"_s + QString(400, u'0'), HUGE_VAL},
        {u"-0."_s + QString(400, u'0') + u"1"_s, 0},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Val(text), expected) << text.toStdString();
}

TEST(Numbers, StrRoundsAsPrintfDoesAndValAsStrtod)
{
    // Where "%.15g" has no exponent it is the very same text; ties of an exact
    // binary half go to even there (457700908974160.5 gives ...160). Val reads
    // texts of every length around the 15-digit and 1e22 limits of its exact path.
    std::setlocale(LC_NUMERIC, "C");
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    for (int i = 0; i < 20000; ++i) {
        const double value = mantissa(random) * std::pow(10.0, int(random() % 19) - 4) * (i % 2 ? -1 : 1);
        char printed[64];
        std::snprintf(printed, sizeof printed, "%.15g", value);
        if (!std::strchr(printed, 'e'))
            ASSERT_EQ(Str(value), QLatin1StringView(printed));

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

TEST(Numbers, FormatFollowsThePatternAndAloneTheLocale)
{
    const std::tuple<double, QString, QString> cases[] = {
        {1234.0, u"########0.00"_s, u"1234.00"_s},
        {2.675, u"########0.00"_s, u"2.68"_s}, // a half, just below it in binary
        {1.005, u"#0.00"_s, u"1.01"_s},
        {-0.125, u"-########0.00"_s, u"-0.13"_s},
        {-0.004, u"-#0.00"_s, u"0.00"_s},
        {-12.5, u"#########0.00"_s, u"12.50"_s}, // no sign in the pattern
        {0.5, u"#.00"_s, u".50"_s},
        {123456789012.345, u"#######0.00"_s, u"123456789012.35"_s},
        {99.995, u"#0.00"_s, u"100.00"_s},
        {-0.995, u"-#.00"_s, u"-1.00"_s},
        {1e17, u"#0.00"_s, u"100000000000000000.00"_s},
        {-2.5, u"-0"_s, u"-3"_s},
        {1.25, u"0.0##"_s, u"1.25"_s},
        {1.0, u"0.0#"_s, u"1.0"_s},
        {0.0001, u"#.##"_s, u""_s},
        {7.0, u"000"_s, u"007"_s},
        {-HUGE_VAL, u"-0.00"_s, u"-INF"_s},
    };
    for (const auto& [value, pattern, expected] : cases)
        EXPECT_EQ(Format(value, pattern), expected) << value << " as " << pattern.toStdString();

    // Only Format follows the locale.
    const DefaultLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(Format(-1234567.891, u"-########0.00"), u"-1234567,89");
    EXPECT_EQ(Str(1234.5), u"1234.5");
    EXPECT_EQ(Val(u"1234,5"), 1234);
    EXPECT_EQ(Val(u"1234.5"), 1234.5);
}

TEST(Numbers, DecimalSumsAreExactAndWrittenAsStrWritesThem)
{
    const auto amounts = [](std::initializer_list<QStringView> texts) {
        DecimalSum sum;
        for (QStringView text : texts)
            sum.addAmount(text);
        return sum.text();
    };
    EXPECT_EQ(amounts({u"0.1", u"0.2", u"-0.3"}), u"0");
    EXPECT_EQ(amounts({u"-0.5", u"0.5"}), u"0") << "never \"-0\"";
    EXPECT_EQ(amounts({u"-.5", u" \t+1.25abc", u"12,5"}), u"13.25") << "read as readAmount reads them";
    EXPECT_EQ(amounts({u"0.05", u"-0.10"}), u"-0.05");
    EXPECT_EQ(amounts({u"1.50", u"2.50"}), u"4") << "no zeros after the point";
    EXPECT_EQ(amounts({u"", u"n/a", u"-", u"."}), u"0");
    EXPECT_EQ(amounts({u"12345678901234567.891", u"1"}), u"12345678901234568.891") << "all the digits, no exponent";
    DecimalSum val;
    val.addVal(u"12,5");
    val.addVal(u"0.25");
    EXPECT_EQ(val.text(), u"12.25") << "Val stops at the comma";

    // Beyond 36 digits the sum falls back to the double, and reads as Str.
    const QString huge = u"1"_s + QString(40, u'0');
    EXPECT_EQ(amounts({huge, u"0.1"}), Str(1e40 + 0.1));
    EXPECT_EQ(amounts({u"0."_s + QString(40, u'0') + u"1"_s, u"2"}), u"2");

    // 100,000 cent amounts, whose double sum shows digits no amount had.
    std::mt19937 random(3);
    DecimalSum sum;
    qint64 cents = 0;
    double binary = 0;
    for (int i = 0; i < 100000; ++i) {
        const qint64 amount = qint64(random() % 1000000) - 600000;
        cents += amount;
        const QString text = QString::number(double(amount) / 100, 'f', 2);
        binary += readAmount(text);
        sum.addAmount(text);
    }
    const QString exact = QString::number(double(cents) / 100, 'f', 2).remove(QRegularExpression(u"\\.?0+$"_s));
    EXPECT_EQ(sum.text(), exact);
    EXPECT_NE(Str(binary), exact) << "the seed must show the noise the exact sum avoids";
    EXPECT_EQ(sum.value(), Val(exact));
}

TEST(TextHelpers, NthFieldCountsFromOneAndIsEmptyBeyondTheLast)
{
    const std::tuple<QString, QString, int, QString> cases[] = {
        {u"a@#@b@#@c"_s, u"@#@"_s, 1, u"a"_s},
        {u"a@#@b@#@c"_s, u"@#@"_s, 2, u"b"_s},
        {u"a@#@b@#@c"_s, u"@#@"_s, 3, u"c"_s},
        {u"a@#@b@#@c"_s, u"@#@"_s, 4, u""_s},
        {u"a@#@"_s, u"@#@"_s, 2, u""_s},
        {u"@#@b"_s, u"@#@"_s, 1, u""_s},
        {u"abc"_s, u"."_s, 1, u"abc"_s},
        {u"12"_s, u"."_s, 2, u""_s},
        {u"12.345.6"_s, u"."_s, 2, u"345"_s},
        {u"a.b"_s, u"."_s, 0, u""_s},
        {u"999-Food-Drink"_s, u"-"_s, 2, u"Food"_s},
    };
    for (const auto& [text, separator, n, expected] : cases)
        EXPECT_EQ(NthField(text, separator, n), expected) << text.toStdString() << " field " << n;
}

TEST(TextHelpers, InStrIgnoresCaseAndCountsFromOne)
{
    EXPECT_EQ(InStr(u"  ShopAccountData", u"accountdata"), 7);
    EXPECT_EQ(InStr(u"ÉTÉ", u"été"), 1);
    EXPECT_EQ(InStr(u"abcabc", u"c"), 3);
    EXPECT_EQ(InStr(4, u"abcabc", u"c"), 6);
    EXPECT_EQ(InStr(u"abc", u"x"), 0);
    EXPECT_EQ(InStr(u"abc", u""), 0);
    EXPECT_EQ(InStr(u"", u"a"), 0);
}
