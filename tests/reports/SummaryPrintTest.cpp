// The fixed-layout prints of the main window, printed to PDF through the
// printer hook and read back with pdftotext -bbox and pdftoppm.
#include "books/Globals.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "platform/PrinterSetup.h"
#include "reports/SummaryPrint.h"
#include "support/Cells.h"
#include "support/PdfReading.h"
#include "support/ScriptedPlatform.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr double kMargin = 36;

class SummaryPrintTest : public ::testing::Test {
protected:
    SummaryPrintTest()
    {
        platform.printToPdf(pdf);
        setUpAccountsBox(accounts);
        setUpTransBox(transactions);
        addRows(accounts, {u"|Cash|Base Account|100.00|-40|60.00"_s});
    }
    ~SummaryPrintTest() override { Globals::ps.clear(); }

    void accountsNamed(int count)
    {
        for (int i = 1; i <= count; ++i)
            addRows(accounts, {u"|acc%1|Expense|0.00|0|0.00"_s.arg(i, 3, 10, QChar(u'0'))});
    }

    // Pixels of the page, at four times a point, that are nearly this colour,
    // inside the box (in points).
    static int pixelsLike(const QImage& page, const QRectF& points, const QColor& colour)
    {
        const QRectF box(points.topLeft() * 4, points.size() * 4);
        int count = 0;
        for (int y = int(box.top()); y <= int(box.bottom()); ++y)
            for (int x = int(box.left()); x <= int(box.right()); ++x) {
                const QColor c = page.pixelColor(x, y);
                count += std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green())
                             + std::abs(c.blue() - colour.blue())
                         < 60;
            }
        return count;
    }

    QTemporaryDir folder;
    QString pdf = folder.path() + u"/print.pdf"_s;
    ScriptedPlatform platform;
    Listbox accounts{u"accountsBox"_s, AccountCol::Count};
    Listbox transactions{u"transBox"_s, TransCol::Count};
};

} // namespace

TEST_F(SummaryPrintTest, AccountsCutLongNamesAndColourTheFirstRowAndNegativeBalances)
{
    addRows(accounts, {u"7|ABCDEFGHIJKLMNOPQRSTUVW|Expense|-5.00|0|-5.00"_s,
                       u"8|ABCDEFGHIJKLMNOPQRSTUVWX|Revenue|-7.50|9|1.50"_s});
    printAll(u"accounts"_s, u"Quillmark"_s, accounts, transactions);
    const QList<Word> words = wordsOf(pdf);
    EXPECT_EQ(named(words, u"Quillmark:"_s).size(), 1);
    EXPECT_EQ(named(words, u"ABCDEFGHIJKLMNOPQRSTUVW"_s).size(), 1) << "23 characters: whole";
    EXPECT_EQ(named(words, u"ABCDEFGHIJKLMNOPQRSTUVW..."_s).size(), 1) << "24: cut to 23 and dots";
    EXPECT_TRUE(named(words, u"ABCDEFGHIJKLMNOPQRSTUVWX"_s).isEmpty());

    // Row 0: the first word of its type, in green on the band.
    const Word cash = named(words, u"Cash"_s).value(0);
    const Word base = named(words, u"Base"_s).value(0);
    EXPECT_NEAR(base.box.left(), kMargin + 240, 1);
    for (const Word& word : named(words, u"Account"_s))
        EXPECT_LT(word.box.left(), kMargin + 200) << "only the heading says Account";
    const QImage page = pageImage(pdf, 1, folder.path(), 288);
    EXPECT_GT(pixelsLike(page, cash.box, QColor(0, 128, 64)), 3);
    EXPECT_GT(pixelsLike(page, QRectF(kMargin + 480, cash.box.top(), 40, 4), QColor(209, 229, 255)), 20);
    // A negative balance red, right-aligned on 530; a negative opening black.
    const Word balance = named(words, u"-5.00"_s).last();
    const Word opening = named(words, u"-5.00"_s).first();
    EXPECT_NEAR(balance.box.right(), kMargin + 530, 1);
    EXPECT_NEAR(opening.box.right(), kMargin + 370, 1);
    EXPECT_GT(pixelsLike(page, balance.box, QColor(255, 0, 0)), 3);
    EXPECT_EQ(pixelsLike(page, opening.box, QColor(255, 0, 0)), 0);
}

TEST_F(SummaryPrintTest, TheTransactionsTitleStandsFirstOrFourLinesBelowTheAccounts)
{
    for (int row = 0; row < 3; ++row)
        addRows(transactions, {u"|AVeryLongAccountNameIndeed||t%1||||-1.00"_s.arg(row)});
    printAll(u"transactions"_s, u"Quillmark"_s, accounts, transactions);
    QList<Word> words = wordsOf(pdf);
    EXPECT_TRUE(named(words, u"Accounts"_s).isEmpty());
    const Word alone = named(words, u"Quillmark:"_s).value(0);
    EXPECT_NEAR(alone.box.bottom(), kMargin + 60, 4) << "on the first line of the page";
    EXPECT_EQ(named(words, u"AVeryLongAccountNa..."_s).size(), 3) << "18 characters and dots";
    EXPECT_EQ(named(words, u"Transaction"_s).size(), 1) << "the heading of transBox";

    printAll(u"all"_s, u"Quillmark"_s, accounts, transactions);
    words = wordsOf(pdf);
    const QList<Word> titles = named(words, u"Quillmark:"_s);
    ASSERT_EQ(titles.size(), 2);
    const Word cash = named(words, u"Cash"_s).value(0);
    const double pitch = named(words, u"t1"_s).value(0).box.top() - named(words, u"t0"_s).value(0).box.top();
    // The accounts end a line below Cash; a separator, then the title four lines on.
    EXPECT_NEAR(titles[1].box.bottom() - cash.box.bottom(), 6 * pitch - 20, 1.5);
    const QImage page = pageImage(pdf, 1, folder.path());
    const int separator = int(cash.box.bottom() + 3 * pitch - pitch / 2);
    int dark = 0;
    for (int y = separator - 4; y <= separator + 8; ++y)
        dark += page.pixelColor(int(kMargin) + 300, y).red() < 128;
    EXPECT_GT(dark, 0) << "the separator across the page";
}

TEST_F(SummaryPrintTest, ATableEndingJustShortOfTheLimitLeavesAnEmptyPage)
{
    // The rows a first page holds: one more than the limit.
    accountsNamed(200);
    printAll(u"accounts"_s, u"Quillmark"_s, accounts, transactions);
    const QList<Word> words = wordsOf(pdf);
    int onFirst = 1; // Cash
    for (const Word& word : words)
        onFirst += word.page == 1 && word.text.startsWith(u"acc");
    const int limit = onFirst - 1;
    ASSERT_GT(limit, 20);
    EXPECT_EQ(named(words, u"Quillmark:"_s).size(), 1) << "headings aren't repeated";

    // line = rows after the table; line + 3 above the limit: a new page, left empty.
    accounts.DeleteAllRows();
    addRows(accounts, {u"|Cash|Base Account"_s});
    accountsNamed(limit - 3);
    printAll(u"accounts"_s, u"Quillmark"_s, accounts, transactions);
    EXPECT_EQ(pageCountOf(pdf), 2);
    EXPECT_EQ(pagesOf(wordsOf(pdf)), 1);
    accounts.RemoveRow(accounts.ListCount() - 1);
    printAll(u"accounts"_s, u"Quillmark"_s, accounts, transactions);
    EXPECT_EQ(pageCountOf(pdf), 1) << "limit " << limit << ", rows " << accounts.ListCount();
}

TEST_F(SummaryPrintTest, TheRunsPageSetupIsUsedAndACancelledDialogPrintsNothing)
{
    Globals::ps = u"595x842 landscape 36 36 36 36"_s;
    printAll(u"all"_s, u"Quillmark"_s, accounts, transactions);
    EXPECT_EQ(platform.pageSetups, 0);
    const QImage landscape = pageImage(pdf, 1, folder.path());
    EXPECT_GT(landscape.width(), landscape.height());

    QFile::remove(pdf);
    platform.printToPdf({});
    printAll(u"all"_s, u"Quillmark"_s, accounts, transactions);
    printAccountTransactions(transactions, u"Rent"_s, u"-5"_s);
    EXPECT_EQ(platform.printerDialogs, 3);
    EXPECT_FALSE(QFile::exists(pdf));
}
