#pragma once

#include "books/rowtable/RowPicture.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <array>

class Listbox;

// Shows a row table to a Qt view. It owns no data: every call reads the table,
// and the table's own notifications keep the view in step. Cell changes are
// gathered and reported once per turn of the event loop, so a recalculation that
// rewrites 100,000 cells costs the view one repaint.
class ListboxModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ListboxModel(Listbox& table, QObject* parent = nullptr);

    Listbox& table() const { return table_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    bool isCell(const QModelIndex& index) const;
    // Reports the gathered cell changes.
    void flushCellChanges();

    void noteCellChange(int row, int column);
    const QIcon& iconOf(RowPicture picture) const;

    Listbox& table_;
    int dirtyTop_ = -1;
    int dirtyBottom_ = -1;
    int dirtyLeft_ = 0;
    int dirtyRight_ = 0;
    bool flushPending_ = false;
    mutable std::array<QIcon, 5> icons_;
};
