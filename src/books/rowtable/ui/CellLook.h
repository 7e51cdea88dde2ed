#pragma once

#include <QColor>

#include <functional>

// How one cell of a grid is drawn, where a window wants more than the grid's own
// look. An invalid colour leaves the grid's own.
struct CellLook {
    QColor background;
    // A selected row drawn as a vertical gradient, from gradientTop to
    // gradientBottom, under a line of gradientLine, instead of the highlight.
    bool selectionGradient = false;
    QColor gradientTop;
    QColor gradientBottom;
    QColor gradientLine;
    QColor text;
    // A line down the cell's right edge: a grid with vertical lines only.
    bool verticalGridLine = false;
};

using CellLookRule = std::function<CellLook(int row, int column, bool selected)>;
