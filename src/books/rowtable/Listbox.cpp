#include "books/rowtable/Listbox.h"

#include <algorithm>

Listbox::Listbox(const QString& name, int columnCount, SelectionType selection, QObject* parent)
    : QObject(parent)
    , name_(name)
    , columnCount_(std::clamp(columnCount, 1, 31))
    , selection_(selection)
    , rows_(columnCount_)
{
    setObjectName(name);
}

void Listbox::AddRow(QStringView text)
{
    const int row = ListCount();
    Q_EMIT rowsAboutToBeAdded(row, row);
    rows_.add(&text, 1);
    lastIndex_ = row;
    Q_EMIT rowsAdded();
}

void Listbox::appendRows(Rows rows)
{
    if (rows.count() == 0)
        return;
    Q_ASSERT(rows.columnCount() == columnCount_);
    const int first = ListCount();
    Q_EMIT rowsAboutToBeAdded(first, first + rows.count() - 1);
    for (RowStore::Row& row : rows.rows())
        row.selected = false;
    rows_.append(std::move(rows));
    lastIndex_ = ListCount() - 1;
    Q_EMIT rowsAdded();
}

void Listbox::RemoveRow(int row)
{
    if (!validRow(row))
        return;
    const bool wasSelected = rows_[row].selected;
    Q_EMIT rowsAboutToBeRemoved(row, row);
    rows_.release(row, row);
    rows_.rows().erase(rows_.rows().begin() + row);
    if (lastIndex_ == row)
        lastIndex_ = -1;
    else if (lastIndex_ > row)
        --lastIndex_;
    if (wasSelected) {
        --selectedCount_;
        if (row == firstSelected_)
            recomputeFirstSelected();
    } else if (row < firstSelected_) {
        --firstSelected_;
    }
    Q_EMIT rowsRemoved();
    if (wasSelected)
        notifySelection();
}

void Listbox::removeRowsWhere(const std::function<bool(int row)>& remove)
{
    std::vector<bool> gone(ListCount());
    bool any = false;
    bool selectionGone = false;
    for (int row = 0; row < ListCount(); ++row) {
        if (remove(row)) {
            gone[row] = true;
            any = true;
            selectionGone = selectionGone || rows_[row].selected;
            rows_.release(row, row);
        }
    }
    if (!any)
        return;
    Q_EMIT aboutToReset();
    int kept = 0;
    int newLastIndex = -1;
    selectedCount_ = 0;
    for (int row = 0; row < ListCount(); ++row) {
        if (gone[row])
            continue;
        if (row == lastIndex_)
            newLastIndex = kept;
        selectedCount_ += rows_[row].selected ? 1 : 0;
        if (kept != row)
            rows_[kept] = rows_[row];
        ++kept;
    }
    rows_.rows().resize(kept);
    lastIndex_ = newLastIndex;
    recomputeFirstSelected();
    Q_EMIT resetDone();
    if (selectionGone)
        notifySelection();
}

void Listbox::DeleteAllRows()
{
    replaceAllRows(Rows(columnCount_));
}

void Listbox::replaceAllRows(Rows rows)
{
    Q_ASSERT(rows.columnCount() == columnCount_);
    const bool hadSelection = selectedCount_ > 0;
    Q_EMIT aboutToReset();
    rows_ = std::move(rows);
    for (RowStore::Row& row : rows_.rows())
        row.selected = false;
    lastIndex_ = ListCount() - 1;
    firstSelected_ = -1;
    selectedCount_ = 0;
    Q_EMIT resetDone();
    if (hadSelection)
        notifySelection();
}

void Listbox::SetCell(int row, int column, QStringView text)
{
    if (!validCell(row, column))
        return;
    if (rows_.cell(row, column) == text)
        return;
    rows_.assign(row, column, text);
    Q_EMIT cellChanged(row, column);
}

QStringView Listbox::storedLine(int row) const
{
    return validRow(row) ? rows_.storedLine(row) : QStringView();
}

void Listbox::SetListIndex(int row)
{
    if (row < -1 || row >= ListCount())
        return;
    const bool unchanged = row < 0 ? selectedCount_ == 0
                                   : selectedCount_ == 1 && rows_[row].selected;
    if (unchanged)
        return;
    clearSelectionFlags();
    if (row >= 0) {
        rows_[row].selected = true;
        selectedCount_ = 1;
    }
    firstSelected_ = row;
    notifySelection();
}

bool Listbox::Selected(int row) const
{
    return validRow(row) && rows_[row].selected;
}

void Listbox::SetSelected(int row, bool selected)
{
    if (!validRow(row) || rows_[row].selected == selected)
        return;
    if (selection_ == SelectionType::Single) {
        SetListIndex(selected ? row : -1);
        return;
    }
    rows_[row].selected = selected;
    if (selected) {
        ++selectedCount_;
        if (firstSelected_ < 0 || row < firstSelected_)
            firstSelected_ = row;
    } else {
        --selectedCount_;
        if (row == firstSelected_)
            recomputeFirstSelected();
    }
    notifySelection();
}

void Listbox::setSelectedRows(const std::vector<int>& rows)
{
    std::vector<int> wanted;
    for (int row : rows)
        if (validRow(row))
            wanted.push_back(row);
    std::sort(wanted.begin(), wanted.end());
    wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
    if (selection_ == SelectionType::Single && wanted.size() > 1)
        wanted.resize(1);

    bool same = int(wanted.size()) == selectedCount_;
    for (int row : wanted)
        same = same && rows_[row].selected;
    if (same)
        return;
    clearSelectionFlags();
    for (int row : wanted)
        rows_[row].selected = true;
    selectedCount_ = int(wanted.size());
    firstSelected_ = wanted.empty() ? -1 : wanted.front();
    notifySelection();
}

void Listbox::clearSelectionFlags()
{
    for (int row = std::max(firstSelected_, 0); row < ListCount() && selectedCount_ > 0; ++row) {
        if (rows_[row].selected) {
            rows_[row].selected = false;
            --selectedCount_;
        }
    }
    selectedCount_ = 0;
    firstSelected_ = -1;
}

void Listbox::recomputeFirstSelected()
{
    firstSelected_ = -1;
    if (selectedCount_ == 0)
        return;
    for (int row = 0; row < ListCount(); ++row) {
        if (rows_[row].selected) {
            firstSelected_ = row;
            return;
        }
    }
}

void Listbox::notifySelection()
{
    Q_EMIT selectionChanged();
    Q_EMIT Change();
}

bool Listbox::CellCheck(int row, int column) const
{
    return validRow(row) && validFlagColumn(column) && (rows_[row].checks >> column & 1u);
}

void Listbox::SetCellCheck(int row, int column, bool checked)
{
    if (!validRow(row) || !validFlagColumn(column) || CellCheck(row, column) == checked)
        return;
    rows_[row].checks ^= 1u << column;
    Q_EMIT cellChanged(row, column);
}

bool Listbox::styled(RowStore::Style style, int row, int column) const
{
    return validRow(row) && validFlagColumn(column) && rows_.styled(row, style, column);
}

void Listbox::setStyled(RowStore::Style style, int row, int column, bool on)
{
    if (!validRow(row) || !validFlagColumn(column) || rows_.styled(row, style, column) == on)
        return;
    rows_.setStyled(row, style, column, on);
    Q_EMIT cellChanged(row, column);
}

bool Listbox::CellBold(int row, int column) const { return styled(RowStore::Style::Bold, row, column); }
void Listbox::SetCellBold(int row, int column, bool bold) { setStyled(RowStore::Style::Bold, row, column, bold); }
bool Listbox::CellItalic(int row, int column) const { return styled(RowStore::Style::Italic, row, column); }
void Listbox::SetCellItalic(int row, int column, bool italic) { setStyled(RowStore::Style::Italic, row, column, italic); }
bool Listbox::CellUnderline(int row, int column) const { return styled(RowStore::Style::Underline, row, column); }
void Listbox::SetCellUnderline(int row, int column, bool underline)
{
    setStyled(RowStore::Style::Underline, row, column, underline);
}

RowPicture Listbox::rowPicture(int row) const
{
    return validRow(row) ? rows_[row].picture : RowPicture::None;
}

void Listbox::SetRowPicture(int row, RowPicture picture)
{
    if (!validRow(row) || rows_[row].picture == picture)
        return;
    rows_[row].picture = picture;
    Q_EMIT cellChanged(row, 0);
}

template <typename T>
T Listbox::settingOf(const std::vector<T>& settings, int column, T fallback)
{
    return column >= 0 && column < int(settings.size()) ? settings[column] : fallback;
}

template <typename T>
void Listbox::setSetting(std::vector<T>& settings, int column, T value, T fallback)
{
    if (column < 0 || column > 31)
        return;
    if (column >= int(settings.size()))
        settings.resize(column + 1, fallback);
    settings[column] = std::move(value);
}

int Listbox::ColumnType(int column) const { return settingOf(columnTypes_, column, int(TypeDefault)); }
void Listbox::SetColumnType(int column, int type) { setSetting(columnTypes_, column, type, int(TypeDefault)); }
int Listbox::ColumnAlignment(int column) const { return settingOf(alignments_, column, int(AlignDefault)); }
void Listbox::SetColumnAlignment(int column, int alignment) { setSetting(alignments_, column, alignment, int(AlignDefault)); }
int Listbox::ColumnAlignmentOffset(int column) const { return settingOf(alignmentOffsets_, column, 0); }
void Listbox::SetColumnAlignmentOffset(int column, int pixels) { setSetting(alignmentOffsets_, column, pixels, 0); }
QString Listbox::Heading(int column) const { return settingOf(headings_, column, QString()); }
void Listbox::SetHeading(int column, const QString& heading) { setSetting(headings_, column, heading, QString()); }
double Listbox::columnWidthPercent(int column) const { return settingOf(widths_, column, -1.0); }
void Listbox::setColumnWidthPercent(int column, double percent) { setSetting(widths_, column, percent, -1.0); }
int Listbox::WidthActual(int column) const { return settingOf(widthsActual_, column, 0); }

void Listbox::layOutColumns(int gridWidth)
{
    // 5% + 30% + 12% + 3 x 18% is more than the whole: each share is scaled down.
    double total = 0;
    for (int column = 0; column < columnCount_; ++column)
        total += std::max(columnWidthPercent(column), 0.0);
    const double scale = gridWidth / std::max(total, 100.0);
    widthsActual_.assign(columnCount_, 0);
    for (int column = 0; column < columnCount_; ++column) {
        const double percent = columnWidthPercent(column);
        if (columnCount_ == 1)
            widthsActual_[column] = gridWidth;
        else if (percent > 0)
            widthsActual_[column] = int(percent * scale);
    }
}

void Listbox::SortRows(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columnCount_ || ListCount() < 2)
        return;
    Q_EMIT aboutToReset();
    std::stable_sort(rows_.rows().begin(), rows_.rows().end(),
                     [&](const RowStore::Row& a, const RowStore::Row& b) {
                         const int c = rows_.cell(a, column).compare(rows_.cell(b, column), Qt::CaseInsensitive);
                         return order == Qt::AscendingOrder ? c < 0 : c > 0;
                     });
    recomputeFirstSelected();
    Q_EMIT resetDone();
}

void Listbox::moveRow(int from, int to)
{
    if (!validRow(from) || !validRow(to) || from == to)
        return;
    Q_EMIT aboutToReset();
    std::vector<RowStore::Row>& rows = rows_.rows();
    if (from < to)
        std::rotate(rows.begin() + from, rows.begin() + from + 1, rows.begin() + to + 1);
    else
        std::rotate(rows.begin() + to, rows.begin() + from, rows.begin() + from + 1);
    recomputeFirstSelected();
    Q_EMIT resetDone();
}

void Listbox::userToggledCheck(int row, int column)
{
    if (!validRow(row) || !validFlagColumn(column))
        return;
    SetCellCheck(row, column, !CellCheck(row, column));
    Q_EMIT CellAction(row, column);
}

void Listbox::userEditedCell(int row, int column, const QString& text)
{
    if (!validCell(row, column))
        return;
    SetCell(row, column, text);
    Q_EMIT CellTextChange(row, column);
}
