// The import's verdict on records and its plan for a whole file, and the CSV
// export, byte for byte, read back by the import's defaults.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "exchange/CsvExport.h"
#include "exchange/TransactionImport.h"
#include "support/Cells.h"
#include "support/DataFolder.h"

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
