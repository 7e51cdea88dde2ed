// The grid printer, printing to PDF through the printer hook; what it printed
// is read back with pdftotext -bbox (where each word stands, in points from the
// top left of its page) and pdftoppm (its pixels).
#include "books/rowtable/Listbox.h"
#include "reports/ListboxPrinter.h"
#include "support/PdfReading.h"
#include "support/ScriptedPlatform.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

// A4 with half an inch all round.
constexpr double kMargin = 36;
constexpr double kPageHeight = 842;

class ListboxPrinterTest : public ::testing::Test {
protected:
    ListboxPrinterTest() { platform.printToPdf(pdf); }

    // A grid of three columns, 20%, 30% and 50% of 400 pixels, with a row for
    // each text.
    static void fill(Listbox& grid, const QStringList& firstCells)
    {
        const QStringList headings{u"Alpha"_s, u"Beta"_s, u"Gamma"_s};
        const double shares[] = {20, 30, 50};
        for (int column = 0; column < 3; ++column) {
            grid.SetHeading(column, headings[column]);
            grid.setColumnWidthPercent(column, shares[column]);
        }
        grid.layOutColumns(400);
        for (const QString& text : firstCells) {
            grid.AddRow(text);
            grid.SetCell(grid.LastIndex(), 1, u"b"_s);
        }
    }

    static QStringList numbered(int count, const QString& prefix = u"r"_s)
    {
        QStringList texts;
        for (int i = 1; i <= count; ++i)
            texts << prefix + u"%1"_s.arg(i, 4, 10, QChar(u'0'));
        return texts;
    }

    // The pages the grid's rows, printed fitted to the page, take.
    int pagesFor(int rows)
    {
        Listbox grid(u"grid"_s, 3);
        fill(grid, numbered(rows));
        ListboxPrinter().print(grid, true);
        return pageCountOf(pdf);
    }

    QTemporaryDir folder;
    QString pdf = folder.path() + u"/grid.pdf"_s;
    ScriptedPlatform platform;
};

} // namespace

TEST_F(ListboxPrinterTest, EveryRowOnceUnderTheHeadingsOfEveryPage)
{
    Listbox grid(u"grid"_s, 3);
    fill(grid, numbered(300));
    ListboxPrinter().print(grid, true);
    const QList<Word> words = wordsOf(pdf);
    const int pages = pagesOf(words);
    ASSERT_GT(pages, 3);

    QList<int> rowsOnPage(pages + 1);
    for (const QString& text : numbered(300)) {
        const QList<Word> row = named(words, text);
        ASSERT_EQ(row.size(), 1) << text.toStdString();
        ++rowsOnPage[row[0].page];
        EXPECT_LT(row[0].box.bottom(), kPageHeight - kMargin + 3) << "inside the printable area";
    }
    const int perPage = rowsOnPage[1];
    for (int page = 1; page < pages; ++page)
        EXPECT_EQ(rowsOnPage[page], perPage) << "page " << page;
    for (const QString& heading : {u"Alpha"_s, u"Beta"_s, u"Gamma"_s}) {
        const QList<Word> repeated = named(words, heading);
        ASSERT_EQ(repeated.size(), pages) << heading.toStdString();
        EXPECT_EQ(repeated.last().page, pages);
    }
    // The headings at the top of the page's printable area, the rows below them;
    // a full page filled to within two rows of its foot.
    const Word first = named(words, u"r0001"_s)[0];
    const Word alpha = named(words, u"Alpha"_s)[0];
    EXPECT_NEAR(alpha.box.top(), kMargin, 2);
    EXPECT_GT(first.box.top(), alpha.box.bottom());
    const double pitch = named(words, u"r0002"_s)[0].box.top() - first.box.top();
    EXPECT_GT(named(words, numbered(300)[perPage - 1])[0].box.bottom(), kPageHeight - kMargin - 2 * pitch);

    // Exactly the rows a page holds: the last one ends the page, and the next
    // page has the headings alone. One row fewer fits on one page.
    EXPECT_EQ(pagesFor(perPage), 2);
    const QList<Word> fullWords = wordsOf(pdf);
    EXPECT_EQ(std::count_if(fullWords.begin(), fullWords.end(), [](const Word& w) { return w.page == 2; }), 3);
    EXPECT_EQ(pagesFor(perPage - 1), 1);
}

TEST_F(ListboxPrinterTest, WideHeadingsAndCellsStartAtTheirColumnAndAZeroColumnTakesNoRoom)
{
    // 100, 0 and 300 points wide, unscaled.
    Listbox grid(u"grid"_s, 3);
    grid.SetHeading(0, u"A heading far wider than its column"_s);
    grid.SetHeading(1, u"Zero"_s);
    grid.SetHeading(2, u"Right"_s);
    grid.setColumnWidthPercent(0, 25);
    grid.setColumnWidthPercent(1, 0);
    grid.setColumnWidthPercent(2, 75);
    grid.layOutColumns(400);
    grid.SetColumnAlignment(0, Listbox::AlignRight);
    grid.SetColumnAlignment(2, Listbox::AlignRight);
    grid.AddRow(u"Averyveryverywidecellwithoutanybreaksatallinit"_s);
    grid.SetCell(0, 1, u"zero"_s);
    grid.SetCell(0, 2, u"right"_s);
    grid.AddRow(u"short"_s);
    grid.SetCellBold(1, 0, true);
    ListboxPrinter().print(grid, false);
    const QList<Word> words = wordsOf(pdf);
    const auto word = [&](const QString& text) { return named(words, text).value(0); };

    // The wide heading starts 3 in and wraps at the column's width.
    const QList<Word> heading = named(words, u"A"_s) + named(words, u"heading"_s) + named(words, u"column"_s);
    ASSERT_EQ(heading.size(), 3);
    EXPECT_NEAR(heading[0].box.left(), kMargin + 3, 1);
    EXPECT_GT(heading[2].box.top(), heading[0].box.top()) << "on a line below";
    for (const Word& part : heading)
        EXPECT_LT(part.box.right(), kMargin + 103);
    // "Right" centred over its 300 points, which begin where column 0 ends.
    EXPECT_NEAR(word(u"Right"_s).box.center().x(), kMargin + 100 + 150, 1.5);
    // The zero-width column: its heading and its cell 3 in from the same edge,
    // neither wrapped.
    EXPECT_NEAR(word(u"Zero"_s).box.left(), kMargin + 103, 1);
    EXPECT_NEAR(word(u"zero"_s).box.left(), kMargin + 103, 1);
    // A right-aligned cell wider than its column starts at its left edge.
    const auto wide = std::find_if(words.begin(), words.end(), [](const Word& w) { return w.text.startsWith(u"Avery"); });
    ASSERT_NE(wide, words.end());
    EXPECT_NEAR(wide->box.left(), kMargin, 1);
    EXPECT_LT(wide->box.right(), kMargin + 101) << "and wraps";
    EXPECT_NEAR(word(u"right"_s).box.right(), kMargin + 400, 1);

    // The band under row 0 only, the rules the full height of the page.
    const QImage page = pageImage(pdf, 1, folder.path());
    ASSERT_FALSE(page.isNull());
    const int band = int(kMargin) + 350;
    EXPECT_EQ(page.pixelColor(band, int(word(u"zero"_s).box.center().y())), QColor(245, 245, 245));
    EXPECT_EQ(page.pixelColor(band, int(word(u"short"_s).box.center().y())), QColor(Qt::white));
    EXPECT_EQ(page.pixelColor(band, 700), QColor(Qt::white));
    int darkest = 255;
    for (int x = int(kMargin) + 98; x <= int(kMargin) + 102; ++x)
        darkest = std::min(darkest, page.pixelColor(x, 800).red());
    EXPECT_LT(darkest, 240) << "a rule between the columns, down to the foot of the page";
}

TEST_F(ListboxPrinterTest, CancellingEitherDialogPrintsNothingAndAnEmptyGridItsHeadings)
{
    platform.confirmPageSetup = false;
    EXPECT_EQ(pagesFor(1), 0);
    EXPECT_EQ(platform.printerDialogs, 0);
    platform.confirmPageSetup = true;
    platform.printToPdf({});
    EXPECT_EQ(pagesFor(1), 0);
    EXPECT_EQ(platform.printerDialogs, 1);
    EXPECT_FALSE(QFile::exists(pdf));

    platform.printToPdf(pdf);
    EXPECT_EQ(pagesFor(0), 1);
    EXPECT_EQ(wordsOf(pdf).size(), 3);
}

TEST_F(ListboxPrinterTest, ACellLongerThanThePageGoesOnOverTheNextPagesLineByLine)
{
    Listbox grid(u"grid"_s, 3);
    const QStringList words = numbered(400, u"w"_s);
    fill(grid, {u"before"_s, words.join(u' '), u"after"_s});
    ListboxPrinter().print(grid, true);
    const QList<Word> printed = wordsOf(pdf);
    ASSERT_GT(pagesOf(printed), 2);
    const double headingsBottom = named(printed, u"Alpha"_s)[0].box.bottom();
    Word previous{1, {}, {}};
    for (const QString& text : words) {
        const QList<Word> found = named(printed, text);
        ASSERT_EQ(found.size(), 1) << text.toStdString();
        const Word& w = found[0];
        SCOPED_TRACE(text.toStdString());
        EXPECT_LT(w.box.bottom(), kPageHeight - kMargin + 3);
        // Below the headings of its page, and after the word before it.
        EXPECT_GT(w.box.top(), headingsBottom);
        EXPECT_TRUE(w.page > previous.page || (w.page == previous.page && w.box.top() >= previous.box.top()));
        previous = w;
    }
    EXPECT_EQ(named(printed, u"after"_s).value(0).page, previous.page);
}
