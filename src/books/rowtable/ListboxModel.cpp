#include "books/rowtable/ListboxModel.h"

#include "books/rowtable/Listbox.h"

#include <QFont>
#include <QTimer>

ListboxModel::ListboxModel(Listbox& table, QObject* parent)
    : QAbstractTableModel(parent)
    , table_(table)
{
    connect(&table, &Listbox::rowsAboutToBeAdded, this, [this](int first, int last) {
        beginInsertRows({}, first, last);
    });
    connect(&table, &Listbox::rowsAdded, this, [this] { endInsertRows(); });
    connect(&table, &Listbox::rowsAboutToBeRemoved, this, [this](int first, int last) {
        beginRemoveRows({}, first, last);
    });
    connect(&table, &Listbox::rowsRemoved, this, [this] { endRemoveRows(); });
    connect(&table, &Listbox::aboutToReset, this, [this] {
        beginResetModel();
        dirtyTop_ = -1;
    });
    connect(&table, &Listbox::resetDone, this, [this] { endResetModel(); });
    connect(&table, &Listbox::cellChanged, this, &ListboxModel::noteCellChange);
}

int ListboxModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : table_.ListCount();
}

int ListboxModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : table_.ColumnCount();
}

bool ListboxModel::isCell(const QModelIndex& index) const
{
    // Views ask with an invalid index now and then, rightly; an index out of
    // range is a fault, and checkIndex reports it.
    return index.isValid() && checkIndex(index, CheckIndexOption::ParentIsInvalid);
}

QVariant ListboxModel::data(const QModelIndex& index, int role) const
{
    if (!isCell(index))
        return {};
    const int row = index.row();
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return table_.Cell(row, column);
    case Qt::CheckStateRole:
        if (table_.ColumnType(column) == Listbox::TypeCheckbox)
            return table_.CellCheck(row, column) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::DecorationRole:
        if (column == 0 && table_.rowPicture(row) != RowPicture::None)
            return iconOf(table_.rowPicture(row));
        return {};
    case Qt::TextAlignmentRole:
        switch (table_.ColumnAlignment(column)) {
        case Listbox::AlignRight:
            return int(Qt::AlignRight | Qt::AlignVCenter);
        case Listbox::AlignCenter:
            return int(Qt::AlignCenter);
        default:
            return int(Qt::AlignLeft | Qt::AlignVCenter);
        }
    case Qt::FontRole: {
        const bool bold = table_.CellBold(row, column);
        const bool italic = table_.CellItalic(row, column);
        const bool underline = table_.CellUnderline(row, column);
        if (!bold && !italic && !underline && table_.TextFont().isEmpty() && table_.TextSize() <= 0)
            return {};
        QFont font;
        if (!table_.TextFont().isEmpty())
            font.setFamily(table_.TextFont());
        if (table_.TextSize() > 0)
            font.setPointSize(table_.TextSize());
        font.setBold(bold);
        font.setItalic(italic);
        font.setUnderline(underline);
        return font;
    }
    default:
        return {};
    }
}

bool ListboxModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isCell(index))
        return false;
    const int row = index.row();
    const int column = index.column();
    if (role == Qt::CheckStateRole && table_.ColumnType(column) == Listbox::TypeCheckbox) {
        const bool checked = value.value<Qt::CheckState>() == Qt::Checked;
        if (checked != table_.CellCheck(row, column))
            table_.userToggledCheck(row, column);
        return true;
    }
    if (role == Qt::EditRole && table_.ColumnType(column) == Listbox::TypeEditable) {
        if (value.toString() != table_.CellView(row, column))
            table_.userEditedCell(row, column, value.toString());
        return true;
    }
    return false;
}

QVariant ListboxModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= table_.ColumnCount())
        return {};
    return table_.Heading(section);
}

Qt::ItemFlags ListboxModel::flags(const QModelIndex& index) const
{
    if (!isCell(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    switch (table_.ColumnType(index.column())) {
    case Listbox::TypeCheckbox:
        flags |= Qt::ItemIsUserCheckable;
        break;
    case Listbox::TypeEditable:
        flags |= Qt::ItemIsEditable;
        break;
    default:
        break;
    }
    return flags;
}

void ListboxModel::noteCellChange(int row, int column)
{
    if (dirtyTop_ < 0) {
        dirtyTop_ = dirtyBottom_ = row;
        dirtyLeft_ = dirtyRight_ = column;
    } else {
        dirtyTop_ = std::min(dirtyTop_, row);
        dirtyBottom_ = std::max(dirtyBottom_, row);
        dirtyLeft_ = std::min(dirtyLeft_, column);
        dirtyRight_ = std::max(dirtyRight_, column);
    }
    if (!flushPending_) {
        flushPending_ = true;
        QTimer::singleShot(0, this, &ListboxModel::flushCellChanges);
    }
}

void ListboxModel::flushCellChanges()
{
    flushPending_ = false;
    if (dirtyTop_ < 0)
        return;
    // Rows may have gone since the change was noted.
    const int bottom = std::min(dirtyBottom_, rowCount() - 1);
    const int right = std::min(dirtyRight_, columnCount() - 1);
    const int top = dirtyTop_;
    dirtyTop_ = -1;
    if (top <= bottom && dirtyLeft_ <= right)
        Q_EMIT dataChanged(index(top, dirtyLeft_), index(bottom, right));
}

const QIcon& ListboxModel::iconOf(RowPicture picture) const
{
    QIcon& icon = icons_[size_t(picture)];
    if (icon.isNull())
        icon = QIcon(rowPictureResource(picture));
    return icon;
}

// Its meta-object code here, not with the rest of the core's: a program that
// uses a table but no model then loads no library of the GUI.
#include "moc_ListboxModel.cpp"
