#include "platform/Dates.h"
#include "support/DefaultLocale.h"
#include "support/ScriptedPlatform.h"

#include <QLocale>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Dates, ParseDateReadsTheStoredFormsAndTheLocalesShortForm)
{
    const FixedClock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
    const QLocale us(QLocale::English, QLocale::UnitedStates);
    const QLocale german(QLocale::German, QLocale::Germany);
    const QDate march9(2014, 3, 9);
    struct Case {
        const char* name;
        QLocale locale;
        QString text;
        QDate expected;
    };
    const Case cases[] = {
        {"stored", us, u"2014-03-09"_s, march9},
        {"storedShort", us, u"2014-3-9"_s, march9},
        {"eightDigits", us, u"20140309"_s, march9},
        {"blanksAround", us, u" \t2014-03-09 "_s, march9},
        {"firstYear", us, u"0001-01-01"_s, QDate(1, 1, 1)},
        {"lastDay", us, u"99991231"_s, QDate(9999, 12, 31)},
        {"shortForm", us, u"3/9/14"_s, march9},
        {"shortFormPadded", us, u"03/09/14"_s, march9},
        {"fourDigitYear", us, u"3/9/2014"_s, march9},
        {"fourDigitEarlyYear", us, u"3/9/0014"_s, QDate(14, 3, 9)},
        {"leapDayOfYearZero", us, u"2/29/00"_s, QDate(2000, 2, 29)},
        {"windowTop", us, u"1/1/46"_s, QDate(2046, 1, 1)},
        {"windowBottom", us, u"1/1/47"_s, QDate(1947, 1, 1)},
        {"german", german, u"09.03.14"_s, march9},
        {"germanUnpadded", german, u"9.3.2014"_s, march9},
        {"germanStored", german, u"2014-03-09"_s, march9},
        {"blanksLeftOut", QLocale(QLocale::Slovenian), u"9.3.14"_s, march9},
        {"yearFirst", QLocale(QLocale::Korean), u"14. 3. 9."_s, march9},
        {"quotedLiteral", QLocale(QLocale::Bulgarian), u"9.03.14 \u0433."_s, march9},
        {"directionMarks", QLocale(QLocale::Arabic, QLocale::Egypt), u"9\u200f/3\u200f/2014"_s, march9},
        {"noDirectionMarks", QLocale(QLocale::Arabic, QLocale::Egypt), u"9/3/2014"_s, march9},
        {"persianDigits", QLocale(QLocale::Persian), u"\u06f2\u06f0\u06f1\u06f4/\u06f3/\u06f9"_s, march9},
        {"monthName", QLocale::c(), u"9 mar 2014"_s, march9},
    };
    for (const Case& c : cases) {
        const DefaultLocale locale(c.locale);
        QDate date;
        EXPECT_TRUE(ParseDate(c.text, date)) << c.name;
        EXPECT_EQ(date, c.expected) << c.name;
    }
    const DefaultLocale locale(german);
    QDate date;
    EXPECT_FALSE(ParseDate(u"3/9/14", date)) << "the United States form isn't German";
}

TEST(Dates, TwoDigitYearsFollowTheClock)
{
    FixedClock clock(QDateTime(QDate(1990, 6, 1), QTime(10, 0)));
    QDate date;
    ASSERT_TRUE(ParseDate(u"1/1/10", date));
    EXPECT_EQ(date.year(), 2010);
    ASSERT_TRUE(ParseDate(u"1/1/11", date));
    EXPECT_EQ(date.year(), 1911);
    clock.set(QDateTime(QDate(2085, 1, 1), QTime(0, 0)));
    ASSERT_TRUE(ParseDate(u"1/1/99", date));
    EXPECT_EQ(date.year(), 2099);
    ASSERT_TRUE(ParseDate(u"1/1/00", date));
    EXPECT_EQ(date.year(), 2000);
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
    EXPECT_EQ(SQLDate(QDate(2014, 3, 9)), u"2014-03-09");
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

    // The day clocks in Berlin jumped from 2:00 to 3:00: still 86400 seconds a day.
    const QTimeZone berlin("Europe/Berlin");
    const QDateTime afterJump(QDate(2014, 3, 30), QTime(3, 30), berlin);
    EXPECT_EQ(TotalSeconds(afterJump), TotalSeconds(QDate(2014, 3, 30)) + 3.5 * 3600);
}
