#pragma once

#include "books/rowtable/RowPicture.h"

#include <QObject>
#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <functional>
#include <vector>

// The row table: ordered rows of text cells with a selection. It is the working
// store of the whole program; a grid on screen is only a view of it.
//
// Each row keeps its cells in one string, every cell followed by the separator of
// the table files, then the hidden cell one place past the last column:
//     "" | "Cash" | "1200.00"   is stored as   "@#@Cash@#@1200.00@#@"
// so a row costs one allocation instead of one per cell, and a save writes each
// row's text as it stands.
class Listbox : public QObject {
    Q_OBJECT

public:
    enum class SelectionType { Single, Multiple };
    enum ColumnTypes { TypeDefault = 0, TypeCheckbox = 2, TypeEditable = 3 };
    enum Alignments { AlignDefault = 0, AlignLeft = 1, AlignCenter = 2, AlignRight = 3 };

    // Every cell is followed by this in a row's text, as in the table files.
    static constexpr QStringView kSeparator = u"@#@";
    static constexpr qsizetype kSeparatorSize = 3;

    // One row, detached from any table: what a file load builds before the
    // rows go into the table in one step.
    class Row {
    public:
        Row() = default;
        Row(const QStringView* cells, int cellCount, int columnCount);
        QStringView cell(int column) const
        {
            const int count = columnCount();
            if (column < 0 || column > count)
                return {};
            const qsizetype start = column == 0 ? 0 : starts_[column - 1];
            const qsizetype end = column < count ? starts_[column] - kSeparatorSize : text_.size();
            return QStringView(text_).mid(start, end - start);
        }
        void setPicture(RowPicture picture) { picture_ = picture; }

    private:
        friend class Listbox;
        // The hidden cell is the one at column columnCount().
        int columnCount() const { return int(starts_.size()); }
        void assignCell(int column, QStringView text);

        QString text_;
        QVarLengthArray<quint32, 12> starts_; // start of each cell after the first
        quint32 checks_ = 0;                  // one bit a column
        quint32 bolds_ = 0;
        quint32 italics_ = 0;
        quint32 underlines_ = 0;
        RowPicture picture_ = RowPicture::None;
        bool selected_ = false;
    };

    Listbox(const QString& name, int columnCount, SelectionType selection = SelectionType::Single,
            QObject* parent = nullptr);

    const QString& Name() const { return name_; }
    int ColumnCount() const { return columnCount_; }
    int ListCount() const { return int(rows_.size()); }
    int LastIndex() const { return lastIndex_; }
    SelectionType selectionType() const { return selection_; }

    void AddRow(QStringView text = {});
    void RemoveRow(int row);
    void DeleteAllRows();
    // Removes every row for which remove(row) is true, with the same outcome as
    // removing them one by one from the last to the first, in one pass.
    void removeRowsWhere(const std::function<bool(int row)>& remove);
    // Puts rows in place of all present ones at once (a load).
    void replaceAllRows(std::vector<Row> rows);
    // Adds rows after the last at once, as AddRow one by one would; the last of
    // them is LastIndex.
    void appendRows(std::vector<Row> rows);

    // Column may be ColumnCount(), the hidden cell; anything outside reads "".
    QString Cell(int row, int column) const { return CellView(row, column).toString(); }
    // The cell without a copy; valid until the row changes.
    QStringView CellView(int row, int column) const
    {
        return validCell(row, column) ? rows_[row].cell(column) : QStringView();
    }
    void SetCell(int row, int column, QStringView text);
    // Asks the processor to fetch a cell while other work goes on: every row's
    // text lies in a block of its own, and a pass over 100,000 rows otherwise
    // waits on memory at each one. A row outside the table is no error.
    void prefetchCell(int row, int column) const
    {
        // Unconditional: GCC drops a prefetch behind a branch. Outside the
        // table the view is empty, and fetching a null address does nothing.
        __builtin_prefetch(CellView(row, column).data());
    }
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
    bool cellFlag(quint32 Row::*flags, int row, int column) const;
    void setCellFlag(quint32 Row::*flags, int row, int column, bool on);
    template <typename T> static T settingOf(const std::vector<T>& settings, int column, T fallback);
    template <typename T> static void setSetting(std::vector<T>& settings, int column, T value, T fallback);

    QString name_;
    int columnCount_;
    SelectionType selection_;
    std::vector<Row> rows_;
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
