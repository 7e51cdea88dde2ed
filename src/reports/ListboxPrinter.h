#pragma once

#include <QColor>
#include <QList>

class Graphics;
class Listbox;
class PrinterSetup;

// Prints the rows of a grid as the screen shows them: the same headings, cell
// text, bold, italic and underline, and the columns in the same proportions,
// with a light band on every other row and thin rules between the columns. The
// headings repeat at the top of every page.
class ListboxPrinter {
public:
    ListboxPrinter() = default;
    virtual ~ListboxPrinter() = default;

    const Listbox* source = nullptr;          // the grid being printed
    QColor lineColor{221, 221, 221};          // the rule under the headings, the column rules
    QColor TextColor{Qt::black};
    QColor backColor{245, 245, 245};          // the band of the even rows

    // Asks for the page setup and the printer, then prints every row. With
    // fitToPage the columns are scaled, up or down, to the page's width.
    // Cancelling either dialog prints nothing.
    virtual void print(const Listbox& grid, bool fitToPage);

protected:
    // Draws one cell at (x, y), its text wrapped at width; height is how high it came out.
    virtual void printCell(int row, int column, Graphics& g, int x, int y, int width, int& height);
    // Draws the headings from column first on, centred, with the rule under
    // them; positions gets each column's left edge. Returns their height, 0 for
    // a grid without headings.
    virtual int printHeaders(int first, Graphics& g, float scale, QList<int>& positions);

private:
    void printRows(Graphics& g, const PrinterSetup& setup, bool fitToPage);
    void setCellFont(int row, int column, Graphics& g) const;
    int rowHeight(int row, Graphics& g, const QList<int>& widths);
    void drawColumnRules(Graphics& g, const QList<int>& positions) const;
};
