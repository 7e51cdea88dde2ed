#include "exchange/ImportFields.h"
#include "exchange/ImportText.h"
#include "support/ScriptedPlatform.h"

// Dates and amounts of import files, one table a kind of outcome.
TEST(ImportFieldsTest, DatesInEachOrder)
{
    const FixedClock clock(QDateTime(QDate(2026, 11, 23), QTime(12, 0)));
    constexpr auto ymd = DateOrder::YearMonthDay;
    constexpr auto dmy = DateOrder::DayMonthYear;
    constexpr auto mdy = DateOrder::MonthDayYear;
    const QDate march5(2014, 3, 5);
    const std::tuple<const char*, const char16_t*, DateOrder, QDate> cases[] = {
        {"stored form", u"2014-03-05", ymd, march5},
        {"single digits", u"2014-3-5", ymd, march5},
        {"eight digits", u"20140305", ymd, march5},
        {"eight digits need year first", u"20140305", dmy, {}},
        {"a time after T", u"2014-03-05T10:30:00", ymd, march5},
        {"a time after a blank", u"05.03.2014 10:30", dmy, march5},
        {"a time after a comma", u"03/05/2014,10:30", mdy, march5},
        {"dots", u"05.03.2014", dmy, march5},
        {"slashes", u"03/05/2014", mdy, march5},
        {"blanks", u"5 3 2014", dmy, march5},
        {"month name", u"5 March 2014", dmy, march5},
        {"abbreviation any case", u"05-MAR-2014", dmy, march5},
        {"Sept", u"Sept 30, 2014", mdy, QDate(2014, 9, 30)},
        {"name first with a comma", u"Mar 5, 2014", mdy, march5},
        {"two-digit year, this century", u"05/03/46", dmy, QDate(2046, 3, 5)},
        {"two-digit year, the last", u"05/03/47", dmy, QDate(1947, 3, 5)},
        {"surrounding blanks", u"  2014-03-05 ", ymd, march5},
        {"no such day", u"31.02.2014", dmy, {}},
        {"month thirteen", u"2014-13-01", ymd, {}},
        {"wrong order", u"05.03.2014", ymd, {}},
        {"unknown month", u"5 Mars 2014", dmy, {}},
        {"three-digit year", u"5.3.214", dmy, {}},
        {"three-digit day", u"005.3.2014", dmy, {}},
        {"two parts", u"2014-03", ymd, {}},
        {"letters after", u"2014-03-05x", ymd, {}},
        {"empty", u"", ymd, {}},
        {"words", u"Saldo", dmy, {}},
    };
    for (const auto& [name, text, order, expected] : cases)
        EXPECT_EQ(readImportDate(QStringView(text), order).value_or(QDate()), expected) << name;
}

TEST(ImportFieldsTest, AmountsWithTheirMarksSignsAndCurrencies)
{
    constexpr auto automatic = DecimalMark::Auto;
    constexpr auto period = DecimalMark::Period;
    constexpr auto comma = DecimalMark::Comma;
    // No amount expected: nullptr.
    const std::tuple<const char*, const char16_t*, DecimalMark, const char16_t*> cases[] = {
        {"plain", u"12.50", automatic, u"12.50"},
        {"empty", u"  ", automatic, u""},
        {"both marks, comma last", u"1.234,56", automatic, u"1234.56"},
        {"both marks, period last", u"1,234.56", automatic, u"1234.56"},
        {"one comma once", u"12,5", automatic, u"12.5"},
        {"one period once", u"1.234", automatic, u"1.234"},
        {"a mark repeated marks thousands", u"1.234.567", automatic, u"1234567"},
        {"apostrophes", u"1'234.50", automatic, u"1234.50"},
        {"typographic apostrophe", u"1\u2019234,50", comma, u"1234.50"},
        {"blank thousands", u"1 234,56", comma, u"1234.56"},
        {"parentheses", u"(12.00)", automatic, u"-12.00"},
        {"trailing minus", u"12.00-", automatic, u"-12.00"},
        {"leading plus", u"+2.000,00", automatic, u"2000.00"},
        {"currency sign before", u"-$12.00", automatic, u"-12.00"},
        {"currency sign after", u"12,00 \u20ac", comma, u"12.00"},
        {"currency code", u"EUR -5", automatic, u"-5"},
        {"code after", u"5.00 USD", period, u"5.00"},
        {"no whole digits", u".50", automatic, u"0.50"},
        {"decimals kept as written", u"3.14159", period, u"3.14159"},
        {"letters", u"12abc", automatic, nullptr},
        {"comma mark with a period after it", u"1,234.56", comma, nullptr},
        {"period mark, comma decimals", u"12,50", period, nullptr},
        {"groups not of three", u"1,23,456.00", period, nullptr},
        {"two decimal marks", u"1.2.3", period, nullptr},
        {"two signs", u"-12.00-", automatic, nullptr},
        {"sign alone", u"-", automatic, nullptr},
        {"words", u"DEBIT", automatic, nullptr},
    };
    for (const auto& [name, text, mark, expected] : cases) {
        const std::optional<QString> read = readImportAmount(QStringView(text), mark);
        EXPECT_EQ(read.value_or(u"(nothing)"_s), expected ? QStringView(expected).toString() : u"(nothing)"_s) << name;
    }
}

// Import files as text and as records.
namespace {

// Each record: the line it starts on, then its fields.
QList<QStringList> recordsOf(const RecordList& list)
{
    QList<QStringList> all;
    for (const Record& record : list.records)
        all << QStringList{QString::number(record.line)} + record.fields;
    return all;
}

} // namespace

TEST(ImportTextTest, UtfEightWithOrWithoutItsMarkElseWindows1252)
{
    EXPECT_EQ(decodeImportText("\xEF\xBB\xBF" "Caf\xC3\xA9"), u"Café");
    EXPECT_EQ(decodeImportText("Caf\xC3\xA9 \xE2\x82\xAC"), u"Café €");
    // Not UTF-8: every byte as Windows-1252, the euro and curly quotes included.
    EXPECT_EQ(decodeImportText("Caf\xE9 \x80 \x96 \x93x\x94"), u"Café € – “x”");
    EXPECT_EQ(decodeImportText("\x81\x8D"), QString(QChar(0x81)) + QChar(0x8D)) << "the holes as controls";
    EXPECT_EQ(decodeImportText(""), u"");
}

TEST(ImportTextTest, RecordsAsRfc4180HasThem)
{
    const RecordList list = readRecords(u"a,\"b,c\",\"say \"\"hi\"\"\"\r\n"
                                        "\"two\nlines\",x\"y\r"
                                        "\r\n"
                                        "last,"_s,
                                        u',');
    EXPECT_EQ(recordsOf(list), (QList<QStringList>{{u"1"_s, u"a"_s, u"b,c"_s, u"say \"hi\""_s},
                                                    {u"2"_s, u"two\nlines"_s, u"x\"y"_s},
                                                    {u"4"_s, u""_s},
                                                    {u"5"_s, u"last"_s, u""_s}}));
    EXPECT_EQ(list.unclosedQuoteLine, 0);
    EXPECT_TRUE(readRecords(u""_s, u',').records.empty());
    EXPECT_EQ(readRecords(u"one\n"_s, u',').records.size(), 1u) << "a final line break begins no record";
    EXPECT_EQ(recordsOf(readRecords(u"a;b,c\tz"_s, u';')), (QList<QStringList>{{u"1"_s, u"a"_s, u"b,c\tz"_s}}));
    EXPECT_EQ(readRecords(u"ok,1\nbad,\"never\nclosed\n"_s, u',').unclosedQuoteLine, 2);
    EXPECT_EQ(readRecords(u"ok\nx\u0000y"_s, u',').nulLine, 2);
}

TEST(ImportTextTest, TheSeparatorIsTheOneTheLinesAgreeOn)
{
    EXPECT_EQ(guessSeparator(u"Date;Text;Amount\n05.03.2014;Café, Bar;-1,50\n06.03.2014;Rent;-800,00\n"_s), u';');
    EXPECT_EQ(guessSeparator(u"a\tb\tc\n1\t2\t3\n"_s), u'\t');
    EXPECT_EQ(guessSeparator(u"a,b,c\n1,\"2;3\",4\n"_s), u',') << "a semicolon in quotes doesn't count";
    EXPECT_EQ(guessSeparator(u"no separator here\n"_s), u',');
}
