// The import's verdict on records and its plan for a whole file, and the CSV
// export, byte for byte, read back by the import's defaults.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "exchange/CsvExport.h"
#include "exchange/ImportFields.h"
#include "exchange/ImportText.h"
#include "exchange/TransactionImport.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/ScriptedPlatform.h"

#include <QTemporaryDir>

namespace {

class TransactionImportTest : public ::testing::Test {
protected:
    ImportPlan plan(const QByteArray& file) const { return planImport(file, mapping, ledger); }

    static QStringList rowsOf(const ImportPlan& plan)
    {
        QStringList rows;
        for (const ImportedRow& row : plan.rows)
            rows << u"%1|%2|%3|%4|%5%6"_s.arg(row.line).arg(row.account, row.date, row.description, row.amount,
                                                  row.duplicate ? u"|dup"_s : QString());
        return rows;
    }

    // Date, text, amount; one header line and one summary line to skip.
    ImportMapping mapping{.separator = u';', .skipLast = 1, .accountColumn = 0, .fixedAccount = u"Rent"_s,
                          .typeColumn = 0, .dateColumn = 1, .amountColumn = 3, .descriptionColumn = 2,
                          .dateOrder = DateOrder::DayMonthYear};
    Listbox ledger{u"transBox"_s, TransCol::Count};
};

} // namespace

TEST_F(TransactionImportTest, RecordsBecomeRowsAndBlankOrContinuationLinesArePassedOver)
{
    const ImportPlan good = plan("Date;Text;Amount\n"
                                 "05.03.2014;\"Caf\xC3\xA9\nM\xC3\xBCller\";-1.234,56\n"
                                 "\n"
                                 ";more text;\n"
                                 "07.03.2014;Salary;+2.000,00\n"
                                 "Total;;999\n");
    EXPECT_TRUE(good.refusal.isEmpty()) << good.refusal.toStdString();
    EXPECT_EQ(rowsOf(good), (QStringList{u"2|Rent|2014-03-05|Café Müller|-1234.56"_s,
                                         u"6|Rent|2014-03-07|Salary|2000.00"_s}))
        << "a line break in a text is one blank; lines counted in the file";

    // The account from a column, debit and credit columns.
    mapping.fixedAccount.clear();
    mapping.accountColumn = 4;
    mapping.amountColumn = 0;
    mapping.debitColumn = 3;
    mapping.creditColumn = 5;
    mapping.skipLast = 0;
    const ImportPlan split = plan("h\n05.03.2014;Paper;12,00;Office;\n06.03.2014;Fee;;Bank;0\n"
                                  "07.03.2014;Refund;0,00;Office;3,50\n08.03.2014;Nothing;;  Office ;\n");
    EXPECT_EQ(rowsOf(split), (QStringList{u"2|Office|2014-03-05|Paper|-12.00"_s, u"3|Bank|2014-03-06|Fee|0"_s,
                                          u"4|Office|2014-03-07|Refund|3.50"_s, u"5|Office|2014-03-08|Nothing|"_s}));
    EXPECT_EQ(plan("h\n05.03.2014;a;1,00;x;2,00\n").refusal,
              u"line 2: both the debit \"1.00\" and the credit \"2.00\" hold an amount");
}

TEST_F(TransactionImportTest, AnyRecordThatCantBeReadRefusesTheWholeFileNamingItsLine)
{
    const std::tuple<const char*, QByteArray, const char16_t*> cases[] = {
        {"an unreal date", "h\n05.03.2014;a;1\n32.03.2014;b;2\nt\n", u"line 3: \"32.03.2014\" is not a date in the order day-month-year"},
        {"an amount with letters", "h\n05.03.2014;a;12abc\nt\n", u"line 2: \"12abc\" is not an amount"},
        {"a ragged record", "h\n05.03.2014;a\nt\n", u"line 2: the record has 2 fields, but column 3 is mapped"},
        {"an unclosed quote", "h\n05.03.2014;\"a;1\n06.03.2014;b;2\n", u"line 2: a field in quotes begins here and never ends"},
        {"the files' separator", "h\n05.03.2014;a@#@b;1\nt\n", u"line 2: the text \"a@#@b\" holds \"@#@\" or ends in \"@#\", which the ledger's files can't hold"},
        {"a binary file", QByteArray("h\n\x01\x02\x00\xFF;x;1\nt\n", 13), u"line 2: this is not a text file: the line holds a NUL character"},
        {"an empty file", "", u"There is nothing to import after the lines skipped."},
        {"headings only", "h\nt\n", u"There is nothing to import after the lines skipped."},
        {"blank lines only", "h\n\n;;\nt\n", u"The file holds no transaction to import."},
    };
    for (const auto& [name, file, refusal] : cases) {
        const ImportPlan refused = plan(file);
        EXPECT_EQ(refused.refusal, QStringView(refusal).toString()) << name;
        EXPECT_TRUE(refused.rows.empty()) << name;
    }
    mapping.decimalMark = DecimalMark::Comma;
    EXPECT_EQ(plan("h\n05.03.2014;a;1,234.56\nt\n").refusal, u"line 2: \"1,234.56\" is not an amount");
}

TEST_F(TransactionImportTest, DuplicatesMatchLedgerRowsOneToOne)
{
    // Two such rows in the ledger, three in the file: the third is new.
    addRows(ledger, {u"|rent|2014-03-05|MARCH||||-800,00"_s, u"|rent|2014-03-05|MARCH||||-800,00"_s});
    const ImportPlan found = plan("h\n05.03.2014;March;-800\n05.03.2014;March;-800.00\n05.03.2014;march;-800\n"
                                  "05.03.2014;March;-80\nt\n");
    EXPECT_EQ(found.duplicates, 2);
    EXPECT_EQ(rowsOf(found), (QStringList{u"2|Rent|2014-03-05|March|-800|dup"_s,
                                          u"3|Rent|2014-03-05|March|-800.00|dup"_s,
                                          u"4|Rent|2014-03-05|march|-800"_s, u"5|Rent|2014-03-05|March|-80"_s}));
}

TEST(TransactionImport, TheMappingNeedsADateAndOneKindOfAmount)
{
    // The date, amount, debit and credit columns, and whether they can be used.
    const std::tuple<int, int, int, int, bool> cases[] = {
        {1, 3, 0, 0, true}, {0, 3, 0, 0, false}, {1, 0, 0, 0, false},
        {1, 3, 4, 5, false}, {1, 0, 4, 5, true}, {1, 0, 4, 0, false}};
    for (const auto& [date, amount, debit, credit, usable] : cases) {
        const ImportMapping mapping{.dateColumn = date, .amountColumn = amount, .debitColumn = debit, .creditColumn = credit};
        EXPECT_EQ(mappingProblem(mapping).isEmpty(), usable) << date << amount << debit << credit;
    }
}

TEST(CsvExportTest, RecordsByteForByteThatTheDefaultMappingReadsBack)
{
    Listbox transactions(u"transBox"_s, TransCol::Count);
    EXPECT_EQ(exportRecords(transactions), "Account,Transaction Type,Date Posted,Transaction Amount,Description\r\n")
        << "the header alone, a carriage return before its line end";
    // Account, date, description and total.
    addRows(transactions, {u"|Office|2014-03-05|Paper||||-12.50"_s, u"|Sales|1999-12-31|Invoice 7||||1234.00"_s,
                           u"|Rent|2014-02-01|||||-800"_s});
    const ImportPlan back = planImport(exportRecords(transactions), ImportMapping(), Listbox(u"t"_s, TransCol::Count));
    ASSERT_EQ(back.rows.size(), 3u) << back.refusal.toStdString();
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(back.rows[row].account, transactions.Cell(row, TransCol::Account));
        EXPECT_EQ(back.rows[row].date, transactions.Cell(row, TransCol::Date));
        EXPECT_EQ(back.rows[row].description, transactions.Cell(row, TransCol::Description));
        EXPECT_EQ(back.rows[row].amount, transactions.Cell(row, TransCol::Transaction));
    }

    addRows(transactions, {u"|Sales|2014-12-25| Invoice 7, paid ||||100.00 "_s, u"|GST|2014-3-5"_s,
                           u"|Caf\u00e9|someday|x|||| -0"_s});
    EXPECT_EQ(exportRecords(transactions),
              "Account,Transaction Type,Date Posted,Transaction Amount,Description\r\n"
              "Office,DEBIT,20140305,-12.50,Paper\n"
              "Sales,CREDIT,19991231,1234.00,Invoice 7\n"
              "Rent,DEBIT,20140201,-800,\n"
              "Sales,CREDIT,20141225,100.00, Invoice 7, paid \n"
              "GST,CREDIT,20140305,,\n"
              "Caf\xC3\xA9,CREDIT,someday,-0,x\n")
        << "the sign read from the first character, the amount trimmed, the text as it is";
}

TEST(CsvExportTest, TheFileEndsInCsvAndNoFileIsWrittenOver)
{
    EXPECT_EQ(exportFileName(u"/x/untitled"_s), u"/x/untitled.csv");
    EXPECT_EQ(exportFileName(u"/x/Books.CSV"_s), u"/x/Books.CSV");
    EXPECT_EQ(exportFileName(u"/x/data.txt"_s), u"/x/data.txt.csv");

    QTemporaryDir folder;
    Listbox transactions(u"transBox"_s, TransCol::Count);
    addRows(transactions, {u"|Office|2014-03-05|Paper||||-12.50"_s});
    const QString chosen = folder.path() + u"/march"_s;
    EXPECT_EQ(exportData(transactions, chosen), u"");
    EXPECT_FALSE(fileExists(chosen));
    const QByteArray first = exportRecords(transactions);
    EXPECT_EQ(readBytes(chosen + u".csv"_s), first);

    // "march.csv" is there now: the next export keeps the name chosen, and says so.
    addRows(transactions, {u"|Sales|2014-03-06|More||||1.00"_s});
    const QString problem = exportData(transactions, chosen);
    EXPECT_TRUE(problem.contains(u"\"march\"")) << problem.toStdString();
    EXPECT_EQ(readBytes(chosen + u".csv"_s), first);
    EXPECT_EQ(readBytes(chosen), exportRecords(transactions));
    EXPECT_FALSE(exportData(transactions, folder.path() + u"/no/such/folder/x"_s).isEmpty());
}

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
