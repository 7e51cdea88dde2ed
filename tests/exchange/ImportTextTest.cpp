// Import files as text and as records.
#include "exchange/ImportText.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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
