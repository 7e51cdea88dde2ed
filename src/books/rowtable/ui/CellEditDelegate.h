#pragma once

#include <QStyledItemDelegate>

class Listbox;

// In-place editing of a table cell: the table sees the edit start
// (CellGotFocus), every change of the text (CellTextChange, with the cell already
// holding the new text) and its end (CellLostFocus).
class CellEditDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    CellEditDelegate(Listbox& table, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

    // Puts back the text the cell had when the edit began (the Escape key).
    void revert(QWidget* editor) const;

private:
    Listbox& table_;
};
