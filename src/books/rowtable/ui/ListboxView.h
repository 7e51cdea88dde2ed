#pragma once

#include "books/rowtable/ui/CellLook.h"

#include <QTableView>

#include <functional>

class Listbox;
class ListboxModel;
class QMenu;

// A grid on screen over a row table. It keeps no rows of its own: selection,
// check boxes, in-place edits and heading presses go to the table, which fires
// its events; what the table changes comes back through the model.
class ListboxView : public QTableView {
    Q_OBJECT

public:
    explicit ListboxView(Listbox& table, QWidget* parent = nullptr);

    Listbox& table() const { return table_; }
    ListboxModel& listboxModel() const { return *model_; }

    void setDefaultRowHeight(int pixels);
    // A sortable grid sorts the table's rows when a heading is pressed; a second
    // press of the same heading reverses the order.
    void setSortable(bool sortable);
    // Colours of rows and cells beyond the grid's own.
    void setCellLook(CellLookRule rule);
    // Lets the user drag a row to another place. The row moves first; then
    // DragReorderRows(newPosition, parentRow) is asked, and when it answers true
    // (refused) the row goes back where it was. newPosition is the row's index
    // after the move; parentRow is always -1.
    void setRowsReorderable(bool reorderable);
    std::function<bool(int newPosition, int parentRow)> DragReorderRows;
    // A press on a cell; contextual for the button that opens a context menu.
    // Answering true consumes the press: the selection stays as it was.
    std::function<bool(int row, int column, int x, int y, bool contextual)> CellClick;
    // Fills the context menu; answering false shows none. The chosen item goes
    // to ContextualMenuAction.
    std::function<bool(QMenu& menu)> ConstructContextualMenu;
    std::function<void(QAction* item)> ContextualMenuAction;

    // Applies the table's headings, widths and check box columns to the grid.
    void applyColumnSettings();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

private:
    void showTableSelection();
    void takeViewSelection();
    void headerPressed(int column);
    void applyColumnWidths();
    // The gap between rows nearest to a point: 0 above the first row, ListCount()
    // below the last.
    int gapAt(const QPoint& point) const;
    void dropDraggedRow();

    Listbox& table_;
    ListboxModel* model_;
    bool syncing_ = false;
    bool selectionSyncPending_ = false;
    bool sortable_ = false;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    bool reorderable_ = false;
    int dragRow_ = -1;  // the row pressed, while a drag may begin
    QPoint dragStart_;
    bool dragging_ = false;
    int dropGap_ = -1;
};
