#include "reports/ListboxPrinter.h"

#include "books/rowtable/Listbox.h"
#include "platform/BlockingServices.h"
#include "platform/Graphics.h"
#include "platform/PrinterSetup.h"

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
    // A grid without headings has its cells at the same places all the same.
    QList<int> cellPositions = positions;
    if (cellPositions.isEmpty()) {
        int x = 0;
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            cellPositions << x;
            x += int(grid.WidthActual(column) * scale);
        }
    }
    for (int row = 0; row < grid.ListCount(); ++row) {
        int rowHeight = 0;
        for (int column = 0; column < grid.ColumnCount(); ++column) {
            int height = 0;
            printCell(row, column, g, cellPositions[column], y, int(grid.WidthActual(column) * scale), height);
            rowHeight = std::max(rowHeight, height);
        }
        y += rowHeight + kRowGap;
        if (y + g.TextAscent() > setup.Height()) {
            drawColumnRules(g, positions);
            g.NextPage();
            y = printHeaders(0, g, scale, positions) + kBelowHeadings;
        }
    }
    drawColumnRules(g, positions);
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
    g.TextFont = grid.TextFont();
    g.TextSize = grid.TextSize();
    g.Bold = grid.CellBold(row, column);
    g.Italic = grid.CellItalic(row, column);
    g.Underline = grid.CellUnderline(row, column);
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
