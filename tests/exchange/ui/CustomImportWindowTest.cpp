// File > Import and Export over the main window, with the file dialogs scripted.
#include "books/rowtable/ui/ListboxView.h"
#include "engine/RowLayouts.h"
#include "exchange/ui/CustomImportWindow.h"
#include "mainwindow/SummaryWindowFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

class CustomImportWindowTest : public SummaryWindowTest {
protected:
    CustomImportWindowTest()
    {
        window = openShop("@#@Balance@#@@#@100.00@#@0@#@100@#@@#@\n@#@Rent@#@Expense@#@0.00@#@0@#@0@#@@#@\n",
                          "@#@Rent@#@2014-03-01@#@Wages@#@@#@2000@#@@#@2000.00@#@@#@@#@@#@Never@#@\n");
    }

    // A bank's file: a line above the header, a total below it.
    CustomImportWindow* importBankFile()
    {
        const QString bank = home.path() + u"/bank.csv"_s;
        writeBytes(bank, "Statement\nDate;Text;Amount\n05.03.2014;Caf\xE9;-1.234,56\n\n07.03.2014;Salary;2.000,00\n"
                         "Saldo;;765,44\n");
        platform.answerFileDialogs(bank);
        window->_FileImportData_Action();
        CustomImportWindow* dialog = Windows::CustomImportWindow();
        EXPECT_TRUE(dialog->isVisible());
        dialog->SkipFirst->setValue(2);
        dialog->EditField2->setText(u"1"_s);
        dialog->EditField3->setText(u"2"_s);
        dialog->EditField5->setText(u"3.9"_s); // counts 3
        dialog->EditField31->setText(u"0"_s);
        dialog->EditField1->setText(u"x"_s); // counts 0
        dialog->DateOrderMenu->setCurrentIndex(1);
        dialog->AccountMenu->setCurrentIndex(1); // Rent for every row
        return dialog;
    }

    SummaryWindow* window = nullptr;
};

} // namespace

TEST_F(CustomImportWindowTest, ThePreviewShowsWhatEachRecordBecomesAndContinueWaitsForAReadableFile)
{
    CustomImportWindow* dialog = importBankFile();
    EXPECT_EQ(platform.fileDialogs.at(0).Filter, u"comma-separated-values (*.csv *.txt)");
    EXPECT_EQ(dialog->SeparatorMenu->currentIndex(), 1) << "semicolons, guessed";
    EXPECT_EQ(dialog->PreviewTable.ListCount(), 6);
    EXPECT_EQ(dialog->PreviewTable.Cell(2, 2), u"Café") << "read as Windows-1252";
    EXPECT_EQ(dialog->PreviewTable.Heading(1), u"1 \u2192 Date");
    // The total refuses the file: Continue stays off, and the line says why.
    EXPECT_EQ(dialog->ProblemLabel->text(), u"Line 6: \"Saldo\" is not a date in the order day-month-year.");
    EXPECT_FALSE(dialog->PushButton1->isEnabled());
    const QByteArray before = stored("Trans");

    dialog->SkipLast->setValue(1);
    EXPECT_EQ(dialog->ProblemLabel->text(), u"");
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(platform.dialogs.empty()) << "no duplicate to ask about";
    ASSERT_EQ(window->transBox().ListCount(), 3);
    EXPECT_EQ(window->transBox().Cell(1, TransCol::Transaction), u"-1234.56");
    EXPECT_NE(stored("Trans"), before) << "stored";

    // Once more: both are in the ledger now; Cancel imports nothing, nor does Skip Them.
    dialog = importBankFile();
    dialog->SkipLast->setValue(1);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].Message, u"2 of the transactions are in the ledger already.");
    EXPECT_TRUE(dialog->isVisible());
    platform.answerNextDialog(MessageDialog::Button::Action);
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().ListCount(), 3);
    dialog = importBankFile();
    dialog->SkipLast->setValue(1);
    platform.answerNextDialog(MessageDialog::Button::Alternate); // import all
    QTest::mouseClick(dialog->PushButton1, Qt::LeftButton);
    EXPECT_EQ(window->transBox().ListCount(), 5);
}

TEST_F(CustomImportWindowTest, CancelledFileDialogsDoNothingAndExportWritesTheCsv)
{
    const QByteArray before = stored("Trans");
    window->_FileImportData_Action();
    EXPECT_TRUE(window->findChildren<CustomImportWindow*>().isEmpty() || !Windows::CustomImportWindow()->isVisible());
    window->exportData();
    EXPECT_EQ(platform.fileDialogs.size(), 2u);

    const QString chosen = home.path() + u"/untitled"_s;
    platform.answerFileDialogs(chosen);
    window->exportData();
    EXPECT_TRUE(readBytes(chosen + u".csv"_s).endsWith("Rent,CREDIT,20140301,2000.00,Wages\n"));
    EXPECT_EQ(stored("Trans"), before) << "the ledger's files don't change";
    platform.answerFileDialogs(home.path() + u"/no/such/folder/x"_s);
    window->exportData();
    ASSERT_EQ(platform.messages.size(), 1);
    EXPECT_TRUE(platform.messages[0].startsWith(u"Quillmark couldn't export the transactions to \"x\""));
}
