// The CSV export, byte for byte, and read back by the import's defaults.
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "exchange/CsvExport.h"
#include "exchange/TransactionImport.h"
#include "support/Cells.h"
#include "support/DataFolder.h"

#include <QTemporaryDir>

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
