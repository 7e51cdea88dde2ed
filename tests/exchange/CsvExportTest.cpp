// The CSV export, byte for byte, and read back by the import's defaults.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "exchange/CsvExport.h"
#include "exchange/TransactionImport.h"
#include "support/DataFolder.h"
#include "support/QtPrinters.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void addRow(Listbox& transactions, const QString& account, const QString& date, const QString& description,
            const QString& total)
{
    transactions.AddRow();
    const int row = transactions.LastIndex();
    transactions.SetCell(row, TransCol::Account, account);
    transactions.SetCell(row, TransCol::Date, date);
    transactions.SetCell(row, TransCol::Description, description);
    transactions.SetCell(row, TransCol::Transaction, total);
}

} // namespace

TEST(CsvExportTest, RecordsByteForByteThatTheDefaultMappingReadsBack)
{
    Listbox transactions(u"transBox"_s, TransCol::Count);
    EXPECT_EQ(exportRecords(transactions), "Account,Transaction Type,Date Posted,Transaction Amount,Description\r\n")
        << "the header alone, a carriage return before its line end";
    addRow(transactions, u"Office"_s, u"2014-03-05"_s, u"Paper"_s, u"-12.50"_s);
    addRow(transactions, u"Sales"_s, u"1999-12-31"_s, u"Invoice 7"_s, u"1234.00"_s);
    addRow(transactions, u"Rent"_s, u"2014-02-01"_s, u""_s, u"-800"_s);
    const ImportPlan back = planImport(exportRecords(transactions), ImportMapping(), Listbox(u"t"_s, TransCol::Count));
    ASSERT_EQ(back.rows.size(), 3u) << back.refusal.toStdString();
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(back.rows[row].account, transactions.Cell(row, TransCol::Account));
        EXPECT_EQ(back.rows[row].date, transactions.Cell(row, TransCol::Date));
        EXPECT_EQ(back.rows[row].description, transactions.Cell(row, TransCol::Description));
        EXPECT_EQ(back.rows[row].amount, transactions.Cell(row, TransCol::Transaction));
    }

    addRow(transactions, u"Sales"_s, u"2014-12-25"_s, u" Invoice 7, paid "_s, u"100.00 "_s);
    addRow(transactions, u"GST"_s, u"2014-3-5"_s, u""_s, u""_s);
    addRow(transactions, u"Caf\u00e9"_s, u"someday"_s, u"x"_s, u" -0"_s);
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
    addRow(transactions, u"Office"_s, u"2014-03-05"_s, u"Paper"_s, u"-12.50"_s);
    const QString chosen = folder.path() + u"/march"_s;
    EXPECT_EQ(exportData(transactions, chosen), u"");
    EXPECT_FALSE(fileExists(chosen));
    const QByteArray first = exportRecords(transactions);
    EXPECT_EQ(readBytes(chosen + u".csv"_s), first);

    // "march.csv" is there now: the next export keeps the name chosen, and says so.
    addRow(transactions, u"Sales"_s, u"2014-03-06"_s, u"More"_s, u"1.00"_s);
    const QString problem = exportData(transactions, chosen);
    EXPECT_TRUE(problem.contains(u"\"march\"")) << problem.toStdString();
    EXPECT_EQ(readBytes(chosen + u".csv"_s), first);
    EXPECT_EQ(readBytes(chosen), exportRecords(transactions));
    EXPECT_FALSE(exportData(transactions, folder.path() + u"/no/such/folder/x"_s).isEmpty());
}
