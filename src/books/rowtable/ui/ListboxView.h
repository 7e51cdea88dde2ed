#pragma once

#include <QTableView>

class Listbox;
class ListboxModel;

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
    // Applies the table's headings, widths and check box columns to the grid.
    void applyColumnSettings();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

private:
    void showTableSelection();
    void takeViewSelection();
    void headerPressed(int column);
    void applyColumnWidths();

    Listbox& table_;
    ListboxModel* model_;
    bool syncing_ = false;
    bool selectionSyncPending_ = false;
    bool sortable_ = false;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};
