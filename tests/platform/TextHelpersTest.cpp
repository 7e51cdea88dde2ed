#include "platform/TextHelpers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TextHelpers, NthFieldCountsFromOneAndIsEmptyBeyondTheLast)
{
    struct Case {
        const char* name;
        QString text;
        QString separator;
        int n;
        QString expected;
    };
    const Case cases[] = {
        {"first", u"a@#@b@#@c"_s, u"@#@"_s, 1, u"a"_s},
        {"middle", u"a@#@b@#@c"_s, u"@#@"_s, 2, u"b"_s},
        {"last", u"a@#@b@#@c"_s, u"@#@"_s, 3, u"c"_s},
        {"beyond", u"a@#@b@#@c"_s, u"@#@"_s, 4, u""_s},
        {"trailingSeparator", u"a@#@"_s, u"@#@"_s, 2, u""_s},
        {"emptyField", u"@#@b"_s, u"@#@"_s, 1, u""_s},
        {"noSeparator", u"abc"_s, u"."_s, 1, u"abc"_s},
        {"noSecondField", u"12"_s, u"."_s, 2, u""_s},
        {"decimals", u"12.345.6"_s, u"."_s, 2, u"345"_s},
        {"zeroth", u"a.b"_s, u"."_s, 0, u""_s},
        {"accountMenuItem", u"999-Food-Drink"_s, u"-"_s, 2, u"Food"_s},
    };
    for (const Case& c : cases)
        EXPECT_EQ(NthField(c.text, c.separator, c.n), c.expected) << c.name;
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
