#pragma once

#include "books/rowtable/ui/CellLook.h"

#include <QStyledItemDelegate>

class Listbox;

// Draws a table's cells and edits them in place. Drawing follows the window's
// cell look and moves the text of a column by its alignment offset. Editing lets the table see the edit start
// (CellGotFocus), every change of the text (CellTextChange, with the cell already
// holding the new text) and its end (CellLostFocus).
class CellEditDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    CellEditDelegate(Listbox& table, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

    void setCellLook(CellLookRule rule) { look_ = std::move(rule); }

    // Puts back the text the cell had when the edit began (the Escape key).
    void revert(QWidget* editor) const;

private:
    Listbox& table_;
    CellLookRule look_;
};
