#pragma once

#include "books/rowtable/RowPicture.h"

#include <QStringView>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

// The rows of a table: each row's cells in one run of text, the runs packed
// into a few large blocks, and beside them each row's marks, picture and
// selection. A table of 100,000 rows so costs a handful of allocations, and
// a pass over the rows reads memory in the order it was filled.
//
// A row's text is every cell followed by the separator of the table files,
// then the hidden cell one place past the last column:
//     "" | "Cash" | "1200.00"   is stored as   "@#@Cash@#@1200.00@#@"
// so a save writes each row's text as it stands. Before the text stand the
// starts of the cells after the first: a byte each in a row of up to 255
// characters, else 16 bits, or 32 for a row longer than 65,535 characters. A row whose text grows moves to new space; the space
// it leaves is reclaimed once more than half of all space is such.
class RowStore {
public:
    static constexpr QStringView kSeparator = u"@#@";

    // 24 bytes: a million rows are 24 MB beside their text.
    struct Row {
        char16_t* entry = nullptr; // the starts, then the text
        quint32 size = 0;          // characters of text
        quint32 checks = 0;        // one bit a column
        quint32 styles = 0;        // 1 + its place in the styles of the store; 0: none
        RowPicture picture = RowPicture::None;
        bool selected = false;
        quint8 startBytes = 1; // the size of each start
    };
    enum class Style { Bold, Italic, Underline };

    explicit RowStore(int columnCount);
    RowStore(RowStore&&) noexcept = default;
    RowStore& operator=(RowStore&&) noexcept = default;

    int columnCount() const { return columnCount_; }
    int count() const { return int(rows_.size()); }
    Row& operator[](int row) { return rows_[row]; }
    const Row& operator[](int row) const { return rows_[row]; }
    // For reordering and removing rows; a removed row's space counts as free.
    std::vector<Row>& rows() { return rows_; }

    // A new last row of cellCount cells, the other columns and the hidden cell empty.
    void add(const QStringView* cells, int cellCount);
    // A new last row of size characters of text, for the caller to write in
    // its stored form; starts holds where each cell after the first starts,
    // columnCount() of them, the last being the hidden cell's.
    char16_t* addStored(qsizetype size, const qsizetype* starts);
    // Column may be columnCount(), the hidden cell.
    QStringView cell(int row, int column) const { return cell(rows_[row], column); }
    QStringView cell(const Row& r, int column) const
    {
        const qsizetype start = column == 0 ? 0 : startOf(r, column - 1);
        const qsizetype end = column < columnCount_ ? startOf(r, column) - kSeparator.size() : r.size;
        return QStringView(textOf(r) + start, end - start);
    }
    // The columns 0 to columnCount() - 1, each cell followed by the separator.
    QStringView storedLine(int row) const
    {
        const Row& r = rows_[row];
        return QStringView(textOf(r), startOf(r, columnCount_ - 1));
    }
    // Asks the processor for a row's text ahead of a pass reaching it.
    void prefetch(int row) const
    {
        if (row < count()) {
            const Row& r = rows_[row];
            const char* const end = reinterpret_cast<const char*>(r.entry + unitsOf(r));
            for (const char* line = reinterpret_cast<const char*>(r.entry); line < end; line += 64)
                __builtin_prefetch(line);
            __builtin_prefetch(end - 1);
        }
    }
    void assign(int row, int column, QStringView text);
    // Counts the space of rows about to be removed from rows() as free.
    void release(int first, int last);
    // Puts other's rows after these; other is left empty.
    void append(RowStore&& other);
    void clear();
    // Bold, italic and underlined cells, rare enough to be kept aside: one bit
    // a column, for columns below 32.
    bool styled(int row, Style style, int column) const;
    void setStyled(int row, Style style, int column, bool on);
    // Room for this many rows without moving the others: address space only,
    // until rows fill it.
    void reserve(int rows) { rows_.reserve(size_t(rows)); }

private:
    struct FreeBlock {
        void operator()(char16_t* block) const { std::free(block); }
    };
    using Block = std::unique_ptr<char16_t[], FreeBlock>;
    static Block newBlock(qsizetype units);

    struct Styles {
        quint32 bits[3] = {};
    };
    static quint8 startBytesFor(qsizetype size) { return size <= 0xFF ? 1 : size <= 0xFFFF ? 2 : 4; }
    qsizetype startOf(const Row& r, int index) const
    {
        if (r.startBytes == 1)
            return reinterpret_cast<const quint8*>(r.entry)[index];
        if (r.startBytes == 2)
            return r.entry[index];
        quint32 start;
        std::memcpy(&start, r.entry + 2 * index, sizeof start);
        return start;
    }
    qsizetype startUnits(const Row& r) const { return (columnCount_ * r.startBytes + 1) / 2; }
    const char16_t* textOf(const Row& r) const { return r.entry + startUnits(r); }
    qsizetype unitsOf(const Row& r) const { return startUnits(r) + r.size; }
    // A new entry for size characters of text, its starts still to be written.
    void place(Row& r, qsizetype size);
    void setStart(Row& r, int index, qsizetype start);
    char16_t* allocate(qsizetype units);
    void compactIfWasteful();

    int columnCount_;
    std::vector<Row> rows_;
    std::vector<Block> blocks_;
    std::vector<Styles> styles_;
    char16_t* free_ = nullptr;
    qsizetype left_ = 0;
    qsizetype nextBlock_ = 1024;
    qsizetype used_ = 0;   // units handed out, to rows alive or not
    qsizetype wasted_ = 0; // units of rows removed or moved
};
