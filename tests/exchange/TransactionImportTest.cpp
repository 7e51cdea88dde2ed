// The import's verdict on records and its plan for a whole file.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "exchange/TransactionImport.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TransactionImportTest : public ::testing::Test {
protected:
    // Date, text, amount; one header line and one summary line to skip.
    TransactionImportTest()
    {
        mapping.separator = u';';
        mapping.skipFirst = 1;
        mapping.skipLast = 1;
        mapping.accountColumn = 0;
        mapping.typeColumn = 0;
        mapping.fixedAccount = u"Rent"_s;
        mapping.dateColumn = 1;
        mapping.descriptionColumn = 2;
        mapping.amountColumn = 3;
        mapping.dateOrder = DateOrder::DayMonthYear;
    }

    ImportPlan plan(const QByteArray& file) const { return planImport(file, mapping, ledger); }

    static QStringList rowsOf(const ImportPlan& plan)
    {
        QStringList rows;
        for (const ImportedRow& row : plan.rows)
            rows << u"%1|%2|%3|%4|%5%6"_s.arg(row.line).arg(row.account, row.date, row.description, row.amount,
                                                  row.duplicate ? u"|dup"_s : QString());
        return rows;
    }

    ImportMapping mapping;
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
}

TEST_F(TransactionImportTest, AnyRecordThatCantBeReadRefusesTheWholeFileNamingItsLine)
{
    struct Case {
        const char* name;
        QByteArray file;
        const char16_t* refusal;
    };
    const Case cases[] = {
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
    for (const Case& c : cases) {
        const ImportPlan refused = plan(c.file);
        EXPECT_EQ(refused.refusal, QStringView(c.refusal).toString()) << c.name;
        EXPECT_TRUE(refused.rows.empty()) << c.name;
    }
    mapping.decimalMark = DecimalMark::Comma;
    EXPECT_EQ(plan("h\n05.03.2014;a;1,234.56\nt\n").refusal, u"line 2: \"1,234.56\" is not an amount");
    mapping.decimalMark = DecimalMark::Auto;
    mapping.amountColumn = 0;
    mapping.debitColumn = 3;
    mapping.creditColumn = 4;
    EXPECT_EQ(plan("h\n05.03.2014;a;1,00;2,00\nt\n").refusal,
              u"line 2: both the debit \"1.00\" and the credit \"2.00\" hold an amount");
}

TEST_F(TransactionImportTest, DuplicatesMatchLedgerRowsOneToOne)
{
    // Two such rows in the ledger, three in the file: the third is new.
    for (int i = 0; i < 2; ++i) {
        ledger.AddRow();
        ledger.SetCell(i, TransCol::Account, u"rent"_s);
        ledger.SetCell(i, TransCol::Date, u"2014-03-05"_s);
        ledger.SetCell(i, TransCol::Description, u"MARCH"_s);
        ledger.SetCell(i, TransCol::Transaction, u"-800,00"_s);
    }
    const ImportPlan found = plan("h\n05.03.2014;March;-800\n05.03.2014;March;-800.00\n05.03.2014;march;-800\n"
                                  "05.03.2014;March;-80\nt\n");
    EXPECT_EQ(found.duplicates, 2);
    EXPECT_EQ(rowsOf(found), (QStringList{u"2|Rent|2014-03-05|March|-800|dup"_s,
                                          u"3|Rent|2014-03-05|March|-800.00|dup"_s,
                                          u"4|Rent|2014-03-05|march|-800"_s, u"5|Rent|2014-03-05|March|-80"_s}));
}

TEST_F(TransactionImportTest, TheMappingNeedsADateAndOneKindOfAmount)
{
    EXPECT_EQ(mappingProblem(mapping), u"");
    ImportMapping noDate = mapping;
    noDate.dateColumn = 0;
    EXPECT_FALSE(mappingProblem(noDate).isEmpty());
    ImportMapping noAmount = mapping;
    noAmount.amountColumn = 0;
    EXPECT_FALSE(mappingProblem(noAmount).isEmpty());
    ImportMapping both = mapping;
    both.debitColumn = 4;
    both.creditColumn = 5;
    EXPECT_FALSE(mappingProblem(both).isEmpty());
    both.amountColumn = 0;
    EXPECT_EQ(mappingProblem(both), u"");
    both.creditColumn = 0;
    EXPECT_FALSE(mappingProblem(both).isEmpty()) << "a debit column alone";
}
