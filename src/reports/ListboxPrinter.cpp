#include "reports/ListboxPrinter.h"

#include "books/rowtable/Listbox.h"
#include "platform/BlockingServices.h"
#include "platform/Graphics.h"
#include "platform/PrinterSetup.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRowGap = 2;
constexpr int kBelowHeadings = 3;
constexpr int kTextInset = 3;

} // namespace

void ListboxPrinter::print(const Listbox& grid, bool fitToPage)
{
    source = &grid;
    PrinterSetup setup;
    if (!setup.PageSetupDialog())
        return;
    const std::unique_ptr<Graphics> g = OpenPrinterDialog(setup);
    if (!g)
        return;
    printRows(*g, setup, fitToPage);
}

void ListboxPrinter::printRows(Graphics& g, const PrinterSetup& setup, bool fitToPage)
{
    const Listbox& grid = *source;
    float scale = 1.0f;
    if (fitToPage) {
        int total = 0;
        for (int column = 0; column < grid.ColumnCount(); ++column)
            total += grid.WidthActual(column);
        // Columns without any width on screen have nothing to scale.
        if (total > 0)
            scale = float(setup.Width()) / float(total);
    }
    QList<int> positions;
    int y = printHeaders(0, g, scale, positions) + kBelowHeadings;
    QList<int> widths;
    // A grid without headings has its cells at the same places all the same.
    QList<int> cellPositions;
    for (int column = 0, x = 0; column < grid.ColumnCount(); ++column) {
        widths << int(grid.WidthActual(column) * scale);
        cellPositions << x;
        x += widths.last();
    }
    if (!positions.isEmpty())
        cellPositions = positions;
    const auto nextPage = [&] {
        drawColumnRules(g, positions);
        g.NextPage();
        y = printHeaders(0, g, scale, positions) + kBelowHeadings;
    };
    for (int row = 0; row < grid.ListCount(); ++row) {
        const int height = rowHeight(row, g, widths);
        // A row of more lines than the page has room for goes on over the next
        // pages, a whole number of its lines on each, so no text falls off the
        // foot of a page. A row of one line stays whole, as the system prints it.
        const int pitch = std::max(g.StringHeight(u"\n"_s, 0) - g.TextHeight(), 1);
        const auto printRowAt = [&](int top) {
            for (int column = 0; column < grid.ColumnCount(); ++column) {
                int cellHeight = 0;
                printCell(row, column, g, cellPositions[column], top, widths[column], cellHeight);
            }
            g.clearClip();
        };
        int shown = 0;
        for (;;) {
            const int room = setup.Height() - y;
            const int top = y - shown; // where the row begins, as this page reckons
            if (height - shown <= std::max(room, pitch)) {
                if (shown > 0)
                    g.setClip(QRect(0, y, g.Width(), setup.Height() + height));
                printRowAt(top);
                y = top + height + kRowGap;
                break;
            }
            const int visible = std::max(room / pitch, 1) * pitch;
            g.setClip(QRect(0, y, g.Width(), visible));
            printRowAt(top);
            shown += visible;
            nextPage();
        }
        if (y + g.TextAscent() > setup.Height())
            nextPage();
    }
    drawColumnRules(g, positions);
}

void ListboxPrinter::setCellFont(int row, int column, Graphics& g) const
{
    g.TextFont = source->TextFont();
    g.TextSize = source->TextSize();
    g.Bold = source->CellBold(row, column);
    g.Italic = source->CellItalic(row, column);
    g.Underline = source->CellUnderline(row, column);
}

int ListboxPrinter::rowHeight(int row, Graphics& g, const QList<int>& widths)
{
    int height = 0;
    for (int column = 0; column < source->ColumnCount(); ++column) {
        setCellFont(row, column, g);
        height = std::max({height, g.StringHeight(source->Cell(row, column), widths[column]), g.TextHeight()});
    }
    return height;
}

int ListboxPrinter::printHeaders(int first, Graphics& g, float scale, QList<int>& positions)
{
    const Listbox& grid = *source;
    if (!grid.HasHeading())
        return 0;
    positions.clear();
    g.TextFont = grid.TextFont();
    g.TextSize = grid.TextSize();
    int x = 0;
    int height = 0;
    for (int column = first; column < grid.ColumnCount(); ++column) {
        const QString text = grid.Heading(column);
        const int w = int(grid.WidthActual(column) * scale);
        const int h = std::max(g.StringHeight(text, w), g.TextHeight());
        height = std::max(height, h);
        const int textWidth = g.StringWidth(text);
        // Centred, or 3 in where the heading is wider than its column.
        const int off = w > textWidth ? int(w / 2.0 - textWidth / 2.0) : kTextInset;
        g.DrawString(text, x + off, g.TextAscent(), w);
        positions << x;
        x += w;
    }
    g.ForeColor = lineColor;
    g.DrawLine(0, height, g.Width(), height);
    g.ForeColor = TextColor;
    return height;
}

void ListboxPrinter::printCell(int row, int column, Graphics& g, int x, int y, int width, int& height)
{
    const Listbox& grid = *source;
    const QString text = grid.Cell(row, column);
    setCellFont(row, column, g);
    height = std::max(g.StringHeight(text, width), g.TextHeight());
    // The band lies under each cell, as high as that cell's own text.
    if (row % 2 == 0) {
        g.ForeColor = backColor;
        g.FillRect(x, y, width, height);
    }
    g.ForeColor = TextColor;
    const int textWidth = g.StringWidth(text);
    int textX = x + kTextInset;
    switch (grid.ColumnAlignment(column)) {
    case Listbox::AlignCenter:
        textX = int(x + kTextInset + width / 2.0 - textWidth / 2.0);
        if (textX < x)
            textX = x + kTextInset;
        break;
    case Listbox::AlignRight:
        textX = std::max(x + width - textWidth, x);
        break;
    default:
        break;
    }
    g.DrawString(text, textX, y + g.TextAscent(), width);
}

void ListboxPrinter::drawColumnRules(Graphics& g, const QList<int>& positions) const
{
    for (const int x : positions) {
        g.ForeColor = lineColor;
        g.DrawLine(x, 0, x, g.Height());
        g.ForeColor = TextColor;
    }
}
