#include "books/rowtable/ui/ListboxView.h"

#include "books/rowtable/Listbox.h"
#include "books/rowtable/ListboxModel.h"
#include "books/rowtable/ui/CellEditDelegate.h"

#include <QHeaderView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

ListboxView::ListboxView(Listbox& table, QWidget* parent)
    : QTableView(parent)
    , table_(table)
    , model_(new ListboxModel(table, this))
{
    setObjectName(table.Name());
    setModel(model_);
    setItemDelegate(new CellEditDelegate(table, this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(table.selectionType() == Listbox::SelectionType::Multiple ? QAbstractItemView::ExtendedSelection
                                                                               : QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ListboxView::takeViewSelection);
    // The table's selection may change many times within one operation; the grid
    // shows where it ended.
    auto scheduleSync = [this] {
        if (selectionSyncPending_)
            return;
        selectionSyncPending_ = true;
        QTimer::singleShot(0, this, &ListboxView::showTableSelection);
    };
    connect(&table, &Listbox::selectionChanged, this, scheduleSync);
    connect(&table, &Listbox::resetDone, this, scheduleSync);
    connect(this, &QAbstractItemView::doubleClicked, this, [this] { table_.userDoubleClicked(); });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ListboxView::headerPressed);
    // A grid never outlives its table: a window's tables are its members and go
    // before its widgets, and the grid goes with them, so no window has to
    // order the two.
    connect(&table, &QObject::destroyed, this, [this] { delete this; });
    applyColumnSettings();
}

void ListboxView::setDefaultRowHeight(int pixels)
{
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(pixels);
}

void ListboxView::setSortable(bool sortable)
{
    sortable_ = sortable;
    horizontalHeader()->setSortIndicatorShown(sortable);
}

void ListboxView::setCellLook(CellLookRule rule)
{
    static_cast<CellEditDelegate*>(itemDelegate())->setCellLook(std::move(rule));
    viewport()->update();
}

void ListboxView::setRowsReorderable(bool reorderable)
{
    reorderable_ = reorderable;
}

void ListboxView::applyColumnSettings()
{
    horizontalHeader()->setVisible(table_.HasHeading());
    applyColumnWidths();
}

void ListboxView::applyColumnWidths()
{
    table_.layOutColumns(viewport()->width());
    for (int column = 0; column < table_.ColumnCount(); ++column) {
        const bool hidden = table_.columnWidthPercent(column) <= 0 && table_.ColumnCount() > 1;
        setColumnHidden(column, hidden);
        if (!hidden)
            setColumnWidth(column, table_.WidthActual(column));
    }
}

void ListboxView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    applyColumnWidths();
}

void ListboxView::showTableSelection()
{
    selectionSyncPending_ = false;
    QItemSelection wanted;
    const int lastColumn = model_->columnCount() - 1;
    for (int row = 0; row < table_.ListCount(); ++row) {
        if (!table_.Selected(row))
            continue;
        int end = row;
        while (end + 1 < table_.ListCount() && table_.Selected(end + 1))
            ++end;
        wanted.select(model_->index(row, 0), model_->index(end, lastColumn));
        row = end;
    }
    syncing_ = true;
    selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
    if (table_.ListIndex() >= 0)
        selectionModel()->setCurrentIndex(model_->index(table_.ListIndex(), 0), QItemSelectionModel::NoUpdate);
    syncing_ = false;
}

void ListboxView::takeViewSelection()
{
    if (syncing_)
        return;
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.push_back(index.row());
    table_.setSelectedRows(rows);
}

void ListboxView::mousePressEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    const QModelIndex cell = indexAt(point);
    if (CellClick && cell.isValid()
        && CellClick(cell.row(), cell.column(), point.x(), point.y(), event->button() == Qt::RightButton)) {
        event->accept();
        return;
    }
    // A click below the last row takes the selection away.
    if (!cell.isValid()) {
        setFocus(Qt::MouseFocusReason);
        table_.setSelectedRows({});
        return;
    }
    if (reorderable_ && event->button() == Qt::LeftButton) {
        dragRow_ = cell.row();
        dragStart_ = point;
    }
    QTableView::mousePressEvent(event);
}

void ListboxView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (dragRow_ >= 0 && (event->buttons() & Qt::LeftButton)) {
        if (!dragging_ && (point - dragStart_).manhattanLength() >= QApplication::startDragDistance())
            dragging_ = true;
        if (dragging_) {
            dropGap_ = gapAt(point);
            viewport()->update();
            return; // the drag moves the row, not the selection
        }
    }
    QTableView::mouseMoveEvent(event);
}

void ListboxView::mouseReleaseEvent(QMouseEvent* event)
{
    if (dragging_) {
        dropDraggedRow();
        setState(NoState);
        viewport()->update();
        return;
    }
    dragRow_ = -1;
    QTableView::mouseReleaseEvent(event);
}

int ListboxView::gapAt(const QPoint& point) const
{
    const int row = rowAt(point.y());
    if (row < 0)
        return point.y() < 0 ? 0 : table_.ListCount();
    return point.y() < rowViewportPosition(row) + rowHeight(row) / 2 ? row : row + 1;
}

void ListboxView::dropDraggedRow()
{
    const int from = dragRow_;
    const int newPosition = dropGap_ > from ? dropGap_ - 1 : dropGap_;
    dragging_ = false;
    dragRow_ = -1;
    dropGap_ = -1;
    if (from < 0 || newPosition < 0 || newPosition == from || from >= table_.ListCount())
        return;
    table_.moveRow(from, newPosition);
    if (DragReorderRows && DragReorderRows(newPosition, -1))
        table_.moveRow(newPosition, from);
}

void ListboxView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!ConstructContextualMenu)
        return;
    // Shown without waiting, so the program goes on while the menu is up.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!ConstructContextualMenu(*menu)) {
        delete menu;
        return;
    }
    connect(menu, &QMenu::triggered, this, [this](QAction* item) {
        if (ContextualMenuAction)
            ContextualMenuAction(item);
    });
    menu->popup(event->globalPos());
}

void ListboxView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (!dragging_ || dropGap_ < 0 || table_.ListCount() == 0)
        return;
    // Where the dragged row will land.
    const int y = dropGap_ < table_.ListCount()
        ? rowViewportPosition(dropGap_)
        : rowViewportPosition(table_.ListCount() - 1) + rowHeight(table_.ListCount() - 1);
    QPainter painter(viewport());
    painter.fillRect(QRect(0, y - 1, viewport()->width(), 2), palette().color(QPalette::Highlight));
}

void ListboxView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (hint == QAbstractItemDelegate::RevertModelCache)
        static_cast<CellEditDelegate*>(itemDelegate())->revert(editor);
    QTableView::closeEditor(editor, hint);
}

bool ListboxView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    // A cell is edited in place only in the selected row: the edit events speak of
    // the selected row, whatever row the keyboard's current cell is in.
    if (trigger != QAbstractItemView::NoEditTriggers && trigger != QAbstractItemView::CurrentChanged
        && !table_.Selected(index.row()))
        return false;
    return QTableView::edit(index, trigger, event);
}

void ListboxView::headerPressed(int column)
{
    table_.userPressedHeading(column);
    if (!sortable_)
        return;
    sortOrder_ = column == sortColumn_ && sortOrder_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    sortColumn_ = column;
    horizontalHeader()->setSortIndicator(column, sortOrder_);
    table_.SortRows(column, sortOrder_);
}
