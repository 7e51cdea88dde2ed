#include "platform/TextHelpers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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
