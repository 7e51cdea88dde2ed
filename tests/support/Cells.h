#pragma once

#include "books/rowtable/Listbox.h"
#include "support/Testing.h"

// One column of a table, top to bottom.
inline QStringList columnOf(const Listbox& table, int column)
{
    QStringList cells;
    for (int row = 0; row < table.ListCount(); ++row)
        cells << table.Cell(row, column);
    return cells;
}

// Each row's cells up to lastColumn, joined by "|".
inline QStringList rowsOf(const Listbox& table, int lastColumn)
{
    QStringList rows;
    for (int row = 0; row < table.ListCount(); ++row) {
        QStringList cells;
        for (int column = 0; column <= lastColumn; ++column)
            cells << table.Cell(row, column);
        rows << cells.join(u'|');
    }
    return rows;
}

// A row for each line, its cells split at "|".
inline void addRows(Listbox& table, const QStringList& lines)
{
    for (const QString& line : lines) {
        table.AddRow();
        const QStringList cells = line.split(u'|');
        for (int column = 0; column < cells.size(); ++column)
            table.SetCell(table.LastIndex(), column, cells[column]);
    }
}

// The user types text into a cell in place, as into the name of a ledger.
inline void typeInto(Listbox& table, int row, int column, const QString& text)
{
    table.userBeganEdit(row, column);
    table.userEditedCell(row, column, text);
    table.userEndedEdit(row, column);
}
