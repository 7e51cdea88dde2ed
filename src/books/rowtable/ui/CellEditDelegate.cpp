#include "books/rowtable/ui/CellEditDelegate.h"

#include "books/rowtable/Listbox.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPersistentModelIndex>

namespace {
const char* const kOriginalText = "quillmarkOriginalText";
const char* const kCellIndex = "quillmarkCellIndex";
} // namespace

CellEditDelegate::CellEditDelegate(Listbox& table, QObject* parent)
    : QStyledItemDelegate(parent)
    , table_(table)
{
}

void CellEditDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const bool selected = cell.state & QStyle::State_Selected;
    const CellLook look = look_ ? look_(index.row(), index.column(), selected) : CellLook();
    if (look.verticalGridLine) {
        const QRect edge(cell.rect.right(), cell.rect.top(), 1, cell.rect.height());
        painter->fillRect(edge, cell.palette.color(QPalette::Mid));
        cell.rect.setRight(cell.rect.right() - 1);
    }
    if (selected && look.selectionGradient) {
        QLinearGradient gradient(cell.rect.topLeft(), cell.rect.bottomLeft());
        gradient.setColorAt(0, look.gradientTop);
        gradient.setColorAt(1, look.gradientBottom);
        painter->fillRect(cell.rect, gradient);
        painter->fillRect(QRect(cell.rect.left(), cell.rect.top(), cell.rect.width(), 1), look.gradientLine);
        cell.state &= ~QStyle::State_Selected;
    } else if (!selected && look.background.isValid()) {
        painter->fillRect(cell.rect, look.background);
    }
    if (look.text.isValid()) {
        cell.palette.setColor(QPalette::Text, look.text);
        cell.palette.setColor(QPalette::HighlightedText, look.text);
    }
    QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    const int offset = table_.ColumnAlignmentOffset(index.column());
    if (offset == 0) {
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        return;
    }
    // Background, check box and picture as usual, then the text within the
    // cell's text area moved by the offset (-5: five pixels further left).
    const QString text = cell.text;
    cell.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    QRect textArea = style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
    textArea.translate(offset, 0);
    const QPalette::ColorRole role = cell.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
    painter->save();
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(QPalette::Normal, role));
    painter->drawText(textArea, int(cell.displayAlignment),
                      cell.fontMetrics.elidedText(text, cell.textElideMode, textArea.width()));
    painter->restore();
}

QWidget* CellEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    auto* editor = new QLineEdit(parent);
    editor->setFrame(false);
    const int row = index.row();
    const int column = index.column();
    editor->setProperty(kOriginalText, table_.Cell(row, column));
    editor->setProperty(kCellIndex, QVariant::fromValue(QPersistentModelIndex(index)));
    connect(editor, &QLineEdit::textEdited, editor, [this, editor](const QString& text) {
        const auto cell = editor->property(kCellIndex).value<QPersistentModelIndex>();
        if (cell.isValid())
            table_.userEditedCell(cell.row(), cell.column(), text);
    });
    table_.userBeganEdit(row, column);
    return editor;
}

void CellEditDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    // Every keystroke reached the cell already; only a text put in by other means
    // (a paste from a menu) still has to.
    const QString text = static_cast<QLineEdit*>(editor)->text();
    if (text != table_.CellView(index.row(), index.column()))
        model->setData(index, text, Qt::EditRole);
}

void CellEditDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    QStyledItemDelegate::destroyEditor(editor, index);
    if (index.isValid())
        table_.userEndedEdit(index.row(), index.column());
}

void CellEditDelegate::revert(QWidget* editor) const
{
    const auto cell = editor->property(kCellIndex).value<QPersistentModelIndex>();
    const QString original = editor->property(kOriginalText).toString();
    if (cell.isValid() && original != table_.CellView(cell.row(), cell.column()))
        table_.userEditedCell(cell.row(), cell.column(), original);
}
