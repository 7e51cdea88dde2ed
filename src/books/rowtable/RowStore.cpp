#include "books/rowtable/RowStore.h"

#include <algorithm>
#include <new>

#include <sys/mman.h>

namespace {

// Blocks start small, for the many tables of a few rows, and grow to this.
constexpr qsizetype kLargestBlock = qsizetype(1) << 20;
// Below this much free space, moving every row to reclaim it isn't worth it.
constexpr qsizetype kWasteWorthReclaiming = qsizetype(1) << 16;

// The size of a huge page on x86-64 and most other machines.
constexpr size_t kHugePage = size_t(2) << 20;

} // namespace

RowStore::Block RowStore::newBlock(qsizetype units)
{
    const size_t bytes = size_t(units) * sizeof(char16_t);
    if (bytes < kHugePage) {
        void* small = std::malloc(bytes);
        if (small == nullptr)
            throw std::bad_alloc();
        return Block(static_cast<char16_t*>(small));
    }
    // A large block on huge pages where the system gives them: filling it then
    // takes one page fault where it would take 512, the larger part of a load.
    const size_t rounded = (bytes + kHugePage - 1) / kHugePage * kHugePage;
    void* large = std::aligned_alloc(kHugePage, rounded);
    if (large == nullptr)
        throw std::bad_alloc();
    ::madvise(large, rounded, MADV_HUGEPAGE);
    return Block(static_cast<char16_t*>(large));
}

RowStore::RowStore(int columnCount)
    : columnCount_(columnCount)
{
}

char16_t* RowStore::allocate(qsizetype units)
{
    if (units > left_) {
        // What remains of the block is left unused.
        wasted_ += left_;
        used_ += left_;
        const qsizetype size = std::max(nextBlock_, units);
        nextBlock_ = std::min(nextBlock_ * 2, kLargestBlock);
        blocks_.push_back(newBlock(size));
        free_ = blocks_.back().get();
        left_ = size;
    }
    char16_t* at = free_;
    free_ += units;
    left_ -= units;
    used_ += units;
    return at;
}

void RowStore::place(Row& r, qsizetype size)
{
    r.startBytes = startBytesFor(size);
    r.size = quint32(size);
    r.entry = allocate(unitsOf(r));
}

void RowStore::setStart(Row& r, int index, qsizetype start)
{
    if (r.startBytes == 1) {
        reinterpret_cast<quint8*>(r.entry)[index] = quint8(start);
        return;
    }
    if (r.startBytes == 2) {
        r.entry[index] = char16_t(start);
        return;
    }
    const quint32 value = quint32(start);
    std::memcpy(r.entry + 2 * index, &value, sizeof value);
}

void RowStore::add(const QStringView* cells, int cellCount)
{
    cellCount = std::min(cellCount, columnCount_);
    qsizetype size = columnCount_ * kSeparator.size();
    for (int c = 0; c < cellCount; ++c)
        size += cells[c].size();
    Row& r = rows_.emplace_back();
    place(r, size);
    char16_t* out = const_cast<char16_t*>(textOf(r));
    const char16_t* const text = out;
    for (int c = 0; c < columnCount_; ++c) {
        if (c < cellCount) {
            std::copy_n(cells[c].utf16(), cells[c].size(), out);
            out += cells[c].size();
        }
        std::copy_n(kSeparator.utf16(), kSeparator.size(), out);
        out += kSeparator.size();
        setStart(r, c, out - text);
    }
}

char16_t* RowStore::addStored(qsizetype size, const qsizetype* starts)
{
    Row& r = rows_.emplace_back();
    place(r, size);
    for (int c = 0; c < columnCount_; ++c)
        setStart(r, c, starts[c]);
    return const_cast<char16_t*>(textOf(r));
}

void RowStore::assign(int row, int column, QStringView text)
{
    Row& r = rows_[row];
    if (text.utf16() >= r.entry && text.utf16() < r.entry + unitsOf(r)) {
        // A piece of the row itself, which the change would write over.
        assign(row, column, text.toString());
        return;
    }
    const qsizetype start = column == 0 ? 0 : startOf(r, column - 1);
    const qsizetype end = column < columnCount_ ? startOf(r, column) - kSeparator.size() : r.size;
    const qsizetype delta = text.size() - (end - start);
    const qsizetype size = r.size + delta;
    if (delta <= 0 && r.startBytes == startBytesFor(size)) {
        // Shorter or as long: in place, the rest of the row moving forward.
        char16_t* own = const_cast<char16_t*>(textOf(r));
        std::copy_n(text.utf16(), text.size(), own + start);
        std::copy(own + end, own + r.size, own + start + text.size());
        r.size = quint32(size);
        wasted_ -= delta;
        for (int c = column; c < columnCount_; ++c)
            setStart(r, c, startOf(r, c) + delta);
        return;
    }
    const Row old = r;
    wasted_ += unitsOf(old);
    place(r, size);
    char16_t* out = const_cast<char16_t*>(textOf(r));
    const char16_t* from = textOf(old);
    std::copy_n(from, start, out);
    std::copy_n(text.utf16(), text.size(), out + start);
    std::copy(from + end, from + old.size, out + start + text.size());
    for (int c = 0; c < columnCount_; ++c)
        setStart(r, c, startOf(old, c) + (c >= column ? delta : 0));
    compactIfWasteful();
}

bool RowStore::styled(int row, Style style, int column) const
{
    const quint32 at = rows_[row].styles;
    return at != 0 && (styles_[at - 1].bits[int(style)] >> column & 1u);
}

void RowStore::setStyled(int row, Style style, int column, bool on)
{
    Row& r = rows_[row];
    if (r.styles == 0) {
        if (!on)
            return;
        styles_.emplace_back();
        r.styles = quint32(styles_.size());
    }
    quint32& bits = styles_[r.styles - 1].bits[int(style)];
    bits = on ? bits | 1u << column : bits & ~(1u << column);
}

void RowStore::release(int first, int last)
{
    for (int row = first; row <= last; ++row)
        wasted_ += unitsOf(rows_[row]);
}

void RowStore::append(RowStore&& other)
{
    const auto firstNew = rows_.insert(rows_.end(), other.rows_.begin(), other.rows_.end());
    for (auto r = firstNew; r != rows_.end(); ++r) {
        if (r->styles != 0) {
            styles_.push_back(other.styles_[r->styles - 1]);
            r->styles = quint32(styles_.size());
        }
    }
    // The other's blocks come along as they are; the rows point into them.
    // What was left of this store's last block stays usable: new rows go to the
    // other's last block, and this one's rest counts as unused.
    wasted_ += left_ + other.wasted_;
    used_ += left_ + other.used_;
    blocks_.insert(blocks_.end(), std::make_move_iterator(other.blocks_.begin()),
                   std::make_move_iterator(other.blocks_.end()));
    free_ = other.free_;
    left_ = other.left_;
    nextBlock_ = std::max(nextBlock_, other.nextBlock_);
    other.clear();
    compactIfWasteful();
}

void RowStore::clear()
{
    rows_.clear();
    styles_.clear();
    blocks_.clear();
    free_ = nullptr;
    left_ = 0;
    nextBlock_ = 1024;
    used_ = 0;
    wasted_ = 0;
}

void RowStore::compactIfWasteful()
{
    if (wasted_ < kWasteWorthReclaiming || wasted_ * 2 < used_)
        return;
    RowStore fresh(columnCount_);
    fresh.nextBlock_ = std::clamp(used_ - wasted_, qsizetype(1024), kLargestBlock);
    fresh.rows_ = std::move(rows_);
    fresh.styles_ = std::move(styles_);
    for (Row& r : fresh.rows_) {
        char16_t* entry = fresh.allocate(unitsOf(r));
        std::copy_n(r.entry, unitsOf(r), entry);
        r.entry = entry;
    }
    *this = std::move(fresh);
}
