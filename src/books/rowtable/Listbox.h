#pragma once

#include "books/rowtable/RowPicture.h"
#include "books/rowtable/RowStore.h"

#include <QObject>
#include <QString>
#include <QStringView>

#include <functional>
#include <vector>

// The row table: ordered rows of text cells with a selection. It is the working
// store of the whole program; a grid on screen is only a view of it. How the
// rows keep their text is RowStore's job.
class Listbox : public QObject {
    Q_OBJECT

public:
    enum class SelectionType { Single, Multiple };
    enum ColumnTypes { TypeDefault = 0, TypeCheckbox = 2, TypeEditable = 3 };
    enum Alignments { AlignDefault = 0, AlignLeft = 1, AlignCenter = 2, AlignRight = 3 };

    // Every cell is followed by this in a row's text, as in the table files.
    static constexpr QStringView kSeparator = RowStore::kSeparator;
    static constexpr int kRowsAhead = 8;

    // Rows detached from any table, of as many columns as the table they go
    // into: what a file load or an import builds before the rows go into the
    // table in one step.
    using Rows = RowStore;

    Listbox(const QString& name, int columnCount, SelectionType selection = SelectionType::Single,
            QObject* parent = nullptr);

    const QString& Name() const { return name_; }
    int ColumnCount() const { return columnCount_; }
    int ListCount() const { return rows_.count(); }
    int LastIndex() const { return lastIndex_; }
    SelectionType selectionType() const { return selection_; }

    void AddRow(QStringView text = {});
    void RemoveRow(int row);
    void DeleteAllRows();
    // Removes every row for which remove(row) is true, with the same outcome as
    // removing them one by one from the last to the first, in one pass.
    void removeRowsWhere(const std::function<bool(int row)>& remove);
    // Puts rows in place of all present ones at once (a load).
    void replaceAllRows(Rows rows);
    // Adds rows after the last at once, as AddRow one by one would; the last of
    // them is LastIndex.
    void appendRows(Rows rows);

    // Column may be ColumnCount(), the hidden cell; anything outside reads "".
    QString Cell(int row, int column) const { return CellView(row, column).toString(); }
    // The cell without a copy; valid until the table changes (a change may
    // move every row to reclaim the space of old ones).
    // A pass over every row waits mostly on memory, each row's text being new
    // to the cache; asking early for the row a few ahead hides that wait.
    void prefetchAhead(int row) const { rows_.prefetch(row + kRowsAhead); }
    QStringView CellView(int row, int column) const
    {
        return validCell(row, column) ? rows_.cell(row, column) : QStringView();
    }
    void SetCell(int row, int column, QStringView text);
    // The columns 0 to ColumnCount() - 1 of a row as a line of the table file,
    // each cell followed by "@#@".
    QStringView storedLine(int row) const;

    int ListIndex() const { return firstSelected_; }
    void SetListIndex(int row);
    QString Text() const { return Cell(firstSelected_, 0); }
    bool Selected(int row) const;
    void SetSelected(int row, bool selected);
    // Makes exactly these rows the selection (the first only in a single-selection
    // table), firing Change once if anything changed: a click in the grid.
    void setSelectedRows(const std::vector<int>& rows);

    bool CellCheck(int row, int column) const;
    void SetCellCheck(int row, int column, bool checked);
    bool CellBold(int row, int column) const;
    void SetCellBold(int row, int column, bool bold);
    bool CellItalic(int row, int column) const;
    void SetCellItalic(int row, int column, bool italic);
    bool CellUnderline(int row, int column) const;
    void SetCellUnderline(int row, int column, bool underline);
    RowPicture rowPicture(int row) const;
    void SetRowPicture(int row, RowPicture picture);

    // Display and printing settings of the columns.
    int ColumnType(int column) const;
    void SetColumnType(int column, int type);
    int ColumnAlignment(int column) const;
    void SetColumnAlignment(int column, int alignment);
    int ColumnAlignmentOffset(int column) const;
    void SetColumnAlignmentOffset(int column, int pixels);
    QString Heading(int column) const;
    void SetHeading(int column, const QString& heading);
    bool HasHeading() const { return hasHeading_; }
    void SetHasHeading(bool has) { hasHeading_ = has; }
    // The font of the cells; "" and 0 are the system's own.
    const QString& TextFont() const { return textFont_; }
    void SetTextFont(const QString& family) { textFont_ = family; }
    int TextSize() const { return textSize_; }
    void SetTextSize(int points) { textSize_ = points; }
    // Width of a column in percent of the grid; below 0 when it has no width.
    double columnWidthPercent(int column) const;
    void setColumnWidthPercent(int column, double percent);
    // Gives the columns their widths in pixels for a grid this wide, from their
    // shares: shares that add up to more than the whole are scaled down, and a
    // column without a share (or of 0) gets none, unless it is the only one.
    void layOutColumns(int gridWidth);
    // A column's width on screen in pixels, as the last layout gave it.
    int WidthActual(int column) const;

    // Stable sort of the rows by the text of a column, ignoring case, as a grid
    // does when its heading is pressed. Selections move with their rows.
    void SortRows(int column, Qt::SortOrder order);
    // Moves a row with its flags and selection so that it ends up at index to,
    // as a grid does when a row is dragged to another place.
    void moveRow(int from, int to);

    // What the grid reports of the user: these change the table and fire the event.
    void userToggledCheck(int row, int column);
    void userBeganEdit(int row, int column) { Q_EMIT CellGotFocus(row, column); }
    void userEditedCell(int row, int column, const QString& text);
    void userEndedEdit(int row, int column) { Q_EMIT CellLostFocus(row, column); }
    void userDoubleClicked() { Q_EMIT DoubleClick(); }
    void userPressedHeading(int column) { Q_EMIT HeaderPressed(column); }

Q_SIGNALS:
    // The table's events.
    void Change();
    void CellAction(int row, int column);
    void CellTextChange(int row, int column);
    void CellGotFocus(int row, int column);
    void CellLostFocus(int row, int column);
    void DoubleClick();
    void HeaderPressed(int column);

    // What a view needs to follow the table.
    void rowsAboutToBeAdded(int first, int last);
    void rowsAdded();
    void rowsAboutToBeRemoved(int first, int last);
    void rowsRemoved();
    void aboutToReset();
    void resetDone();
    void cellChanged(int row, int column);
    void selectionChanged();

private:
    bool validRow(int row) const { return row >= 0 && row < ListCount(); }
    bool validCell(int row, int column) const { return validRow(row) && column >= 0 && column <= columnCount_; }
    bool validFlagColumn(int column) const { return column >= 0 && column < 32; }
    void clearSelectionFlags();
    void recomputeFirstSelected();
    void notifySelection();
    bool styled(RowStore::Style style, int row, int column) const;
    void setStyled(RowStore::Style style, int row, int column, bool on);
    template <typename T> static T settingOf(const std::vector<T>& settings, int column, T fallback);
    template <typename T> static void setSetting(std::vector<T>& settings, int column, T value, T fallback);

    QString name_;
    int columnCount_;
    SelectionType selection_;
    RowStore rows_;
    int lastIndex_ = -1;
    int firstSelected_ = -1;
    int selectedCount_ = 0;

    std::vector<int> columnTypes_;
    std::vector<int> alignments_;
    std::vector<int> alignmentOffsets_;
    std::vector<QString> headings_;
    std::vector<double> widths_;
    std::vector<int> widthsActual_;
    bool hasHeading_ = true;
    QString textFont_;
    int textSize_ = 0;
};
