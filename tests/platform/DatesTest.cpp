#include "platform/Dates.h"
#include "support/DefaultLocale.h"
#include "support/ScriptedPlatform.h"

#include <QTimeZone>

TEST(Dates, ParseDateReadsTheStoredFormsAndTheLocalesShortForm)
{
    const FixedClock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    const QLocale us(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    const QDate march9(2014, 3, 9);
    const std::tuple<QLocale, QString, QDate> cases[] = {
        {us, u"2014-03-09"_s, march9},
        {us, u"2014-3-9"_s, march9},
        {us, u"20140309"_s, march9},
        {us, u" \t2014-03-09 "_s, march9},
        {us, u"0001-01-01"_s, QDate(1, 1, 1)},
        {us, u"99991231"_s, QDate(9999, 12, 31)},
        {us, u"3/9/14"_s, march9},
        {us, u"03/09/14"_s, march9},
        {us, u"3/9/2014"_s, march9},
        {us, u"3/9/0014"_s, QDate(14, 3, 9)},
        {us, u"2/29/00"_s, QDate(2000, 2, 29)},
        {us, u"1/1/46"_s, QDate(2046, 1, 1)},
        {us, u"1/1/47"_s, QDate(1947, 1, 1)},
        {german, u"09.03.14"_s, march9},
        {german, u"9.3.2014"_s, march9},
        {german, u"2014-03-09"_s, march9},
        {QLocale(QLocale::Slovenian), u"9.3.14"_s, march9}, // the format's blanks left out
        {QLocale(QLocale::Korean), u"14. 3. 9."_s, march9},
        {QLocale(QLocale::Bulgarian), u"9.03.14 \u0433."_s, march9}, // a quoted literal
        {QLocale(QLocale::Arabic, QLocale::Egypt), u"9\u200f/3\u200f/2014"_s, march9},
        {QLocale(QLocale::Arabic, QLocale::Egypt), u"9/3/2014"_s, march9},
        {QLocale(QLocale::Persian), u"\u06f2\u06f0\u06f1\u06f4/\u06f3/\u06f9"_s, march9},
        {QLocale::c(), u"9 mar 2014"_s, march9},
    };
    for (const auto& [locale, text, expected] : cases) {
        const DefaultLocale use(locale);
        QDate date;
        EXPECT_TRUE(ParseDate(text, date)) << text.toStdString();
        EXPECT_EQ(date, expected) << text.toStdString();
    }
    const DefaultLocale use(german);
    QDate date;
    EXPECT_FALSE(ParseDate(u"3/9/14", date)) << "the United States form isn't German";
}

TEST(Dates, TwoDigitYearsFollowTheClock)
{
    FixedClock clock(QDateTime(QDate(1990, 6, 1), QTime(10, 0)));
    const std::tuple<int, const char16_t*, int> cases[] = {
        {1990, u"1/1/10", 2010}, {1990, u"1/1/11", 1911}, {2085, u"1/1/99", 2099}, {2085, u"1/1/00", 2000}};
    for (const auto& [today, text, year] : cases) {
        clock.set(QDateTime(QDate(today, 6, 1), QTime(10, 0)));
        QDate date;
        ASSERT_TRUE(ParseDate(text, date)) << today;
        EXPECT_EQ(date.year(), year) << today;
    }
}

TEST(Dates, ParseDateRefusesWhatIsNotADate)
{
    const FixedClock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    const QString texts[] = {
        u""_s,          u"abc"_s,         u"2014-02-30"_s,  u"2014-13-01"_s,  u"20141301"_s,
        u"2014-03-09x"_s, u"2014-00-10"_s, u"2014-03-00"_s, u"0000-01-01"_s,  u"00000101"_s,
        u"2014-003-09"_s, u"2014-03-009"_s, u"14-03-09"_s,  u"2014/03/09"_s,  u"2014-03-"_s,
        u"201403091"_s, u"1900-02-29"_s,  u"2/29/01"_s,     u"13/9/14"_s,     u"3/9/1"_s,
        u"3/9/014"_s,   u"3/9/14/"_s,     u"2014-03-09 10:00"_s,
        u"\u0662\u0660\u0661\u0664-\u0660\u0663-\u0660\u0669"_s,
    };
    const QDate untouched(1999, 9, 9);
    for (const QString& text : texts) {
        QDate date = untouched;
        EXPECT_FALSE(ParseDate(text, date)) << text.toStdString();
        EXPECT_EQ(date, untouched) << text.toStdString();
    }
}

TEST(Dates, SQLDateReadsBackForEveryDay)
{
    EXPECT_EQ(SQLDate(QDate(999, 1, 2)), u"0999-01-02");
    EXPECT_EQ(SQLDate(QDate()), u"");
    for (QDate day(1895, 1, 1); day.year() < 2105; day = day.addDays(1)) {
        QDate read;
        ASSERT_TRUE(ParseDate(SQLDate(day), read)) << day.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(read, day);
        ASSERT_TRUE(ParseDate(SQLDate(day).remove(u'-'), read));
        ASSERT_EQ(read, day);
    }
}

TEST(Dates, TotalSecondsCountsWallClockDaysFrom1904)
{
    EXPECT_EQ(TotalSeconds(QDate(1904, 1, 1)), 0);
    EXPECT_EQ(TotalSeconds(QDate(1903, 12, 31)), -86400);
    EXPECT_EQ(TotalSeconds(QDate(2001, 1, 1)), 3061152000.0);
    EXPECT_EQ(TotalSeconds(QDateTime(QDate(1970, 1, 1), QTime(12, 30, 15, 500))), 2082844800.0 + 45015.5);
    // Berlin's clocks jumped from 2:00 to 3:00 that day: still 86400 seconds a day.
    const QDateTime afterJump(QDate(2014, 3, 30), QTime(3, 30), QTimeZone("Europe/Berlin"));
    EXPECT_EQ(TotalSeconds(afterJump), TotalSeconds(QDate(2014, 3, 30)) + 3.5 * 3600);
}
