#include "books/rowtable/TableFileReader.h"

#include "books/FileStore.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstring>

namespace {

constexpr QStringView kSeparator = Listbox::kSeparator;
constexpr int kTypeColumn = 2;
constexpr qsizetype kPiece = 256 * 1024;

// Eight bytes at a time.
bool isAscii(const char* bytes, qsizetype size)
{
    quint64 any = 0;
    qsizetype i = 0;
    for (; i + 8 <= size; i += 8) {
        quint64 word;
        std::memcpy(&word, bytes + i, sizeof word);
        any |= word;
    }
    for (; i < size; ++i)
        any |= static_cast<unsigned char>(bytes[i]);
    return (any & 0x8080808080808080u) == 0;
}

// Turns the lines of a file into rows, one line at a time.
class RowsFromLines {
public:
    RowsFromLines(int columnCount, bool accountData, bool latin1)
        : rows(columnCount)
        , columnCount_(columnCount)
        , accountData_(accountData)
        , latin1_(latin1)
        , cells_(columnCount)
        , starts_(columnCount)
    {
    }

    // False when the line isn't valid UTF-8: the file must be read as Latin-1.
    bool addLine(const char* begin, const char* end)
    {
        if (begin == end)
            return true;
        if (!addStoredLine(begin, end)) {
            if (!decode(begin, end))
                return false;
            addRow(QStringView(text_.data(), textSize_));
        }
        if (accountData_)
            setPicture(rows.count() - 1);
        return true;
    }

    Listbox::Rows rows;

private:
    // Nearly every line the program wrote is one byte a character and already
    // a row's stored text: its cells, each followed by the separator, the first
    // empty. Such a line goes straight into the store, widened as it is copied.
    bool addStoredLine(const char* begin, const char* end)
    {
        const qsizetype size = end - begin;
        if (size < 3 || std::memcmp(begin, "@#@", 3) != 0 || (end[-2] == '@' && end[-1] == '#'))
            return false;
        if (!latin1_ && !isAscii(begin, size))
            return false;
        int found = 0;
        for (const char* from = begin; found < columnCount_;) {
            const char* at = static_cast<const char*>(std::memchr(from, '@', end - from));
            if (at == nullptr)
                return false; // fewer cells than columns: the general way fills them
            if (end - at >= 3 && at[1] == '#' && at[2] == '@') {
                from = at + 3;
                starts_[found++] = from - begin;
            } else {
                from = at + 1;
            }
        }
        const qsizetype stored = starts_[columnCount_ - 1]; // cells past the columns are dropped
        char16_t* text = rows.addStored(stored, starts_.data());
        widen_.appendToBuffer(reinterpret_cast<QChar*>(text), QByteArrayView(begin, stored));
        return true;
    }

    bool decode(const char* begin, const char* end)
    {
        const qsizetype size = end - begin;
        if (qsizetype(text_.size()) < size + 2) // the decoder's own margin
            text_.resize(size + 2);
        const QByteArrayView bytes(begin, size);
        QChar* const text = reinterpret_cast<QChar*>(text_.data());
        if (latin1_ || isAscii(begin, size)) {
            textSize_ = widen_.appendToBuffer(text, bytes) - text;
            return true;
        }
        if (!bytes.isValidUtf8())
            return false;
        textSize_ = fromUtf8_.appendToBuffer(text, bytes) - text;
        return true;
    }

    void addRow(QStringView line)
    {
        // A line that ends in part of a separator was cut short; the part is no
        // text of the last cell, which couldn't be stored again ("x@#" and "@#@"
        // make "x@#@#@", which splits after "x").
        while (line.size() >= 2 && line[line.size() - 2] == u'@' && line[line.size() - 1] == u'#')
            line.chop(2);
        std::fill(cells_.begin(), cells_.end(), QStringView());
        qsizetype at = separatorFrom(line, 0);
        for (int c = 1; c < columnCount_ && at >= 0; ++c) {
            const qsizetype from = at + kSeparator.size();
            at = separatorFrom(line, from);
            cells_[c] = line.mid(from, at < 0 ? -1 : at - from);
        }
        rows.add(cells_.data(), columnCount_);
    }

    void setPicture(int row)
    {
        rows[row].picture = row == 0 ? RowPicture::BookIcon
            : rows.cell(row, kTypeColumn).compare(u"Revenue", Qt::CaseInsensitive) == 0 ? RowPicture::accountPlus9
                                                                                          : RowPicture::accountMinus9;
    }

    // Where the next "@#@" starts, looking for its "@" with the fast character search.
    static qsizetype separatorFrom(QStringView line, qsizetype from)
    {
        for (;;) {
            const qsizetype at = line.indexOf(u'@', from);
            if (at < 0 || (at + 2 < line.size() && line[at + 1] == u'#' && line[at + 2] == u'@'))
                return at;
            from = at + 1;
        }
    }

    int columnCount_;
    bool accountData_;
    bool latin1_;
    std::vector<char16_t> text_;
    qsizetype textSize_ = 0;
    std::vector<QStringView> cells_;
    std::vector<qsizetype> starts_;
    // Qt's widening of single bytes, many at a time.
    QStringDecoder widen_{QStringDecoder::Latin1, QStringDecoder::Flag::Stateless};
    // A mark in the middle of a file is a character like any other.
    QStringDecoder fromUtf8_{QStringDecoder::Utf8,
                             QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom};
};

// The lines of one piece of a file; returns where the unfinished last line
// starts, or nullptr when a line isn't valid UTF-8.
const char* addLines(RowsFromLines& lines, const char* begin, const char* end, bool atEnd)
{
    while (begin < end) {
        const char* lineEnd = static_cast<const char*>(std::memchr(begin, '\n', end - begin));
        if (lineEnd == nullptr) {
            if (!atEnd)
                break;
            lineEnd = end;
        }
        // A lone "\r" ends a line too; "\r\n" leaves an empty line, which is skipped.
        for (const char* cr; (cr = static_cast<const char*>(std::memchr(begin, '\r', lineEnd - begin)));) {
            if (!lines.addLine(begin, cr))
                return nullptr;
            begin = cr + 1;
        }
        if (!lines.addLine(begin, lineEnd))
            return nullptr;
        begin = lineEnd + (lineEnd < end ? 1 : 0);
    }
    return begin;
}

bool startsWithMark(const char* bytes, qsizetype size)
{
    return size >= 3 && std::memcmp(bytes, "\xEF\xBB\xBF", 3) == 0;
}

// The rows of a file read as UTF-8, or as Latin-1; none when the UTF-8 reading
// meets an invalid byte or the file can't be read.
std::optional<Listbox::Rows> readRows(PlainFileReader& file, int columnCount, bool accountData, bool latin1)
{
    RowsFromLines lines(columnCount, accountData, latin1);
    // Rows of a table file take more than 32 bytes: room enough, so that the
    // rows are never moved as they come.
    lines.rows.reserve(int(std::min<qsizetype>(file.size() / 32 + 16, 1 << 26)));
    std::vector<char> piece(kPiece);
    qsizetype held = 0; // bytes of an unfinished line at the start of piece
    bool markChecked = latin1;
    for (;;) {
        if (held == qsizetype(piece.size()))
            piece.resize(piece.size() * 2); // a line longer than the piece
        const qsizetype got = file.read(piece.data() + held, qsizetype(piece.size()) - held);
        if (got < 0)
            return std::nullopt;
        const bool atEnd = got == 0;
        const char* begin = piece.data();
        const char* const end = begin + held + got;
        if (!markChecked) {
            if (end - begin < 3 && !atEnd) {
                held = end - begin; // too few bytes yet to tell a mark
                continue;
            }
            if (startsWithMark(begin, end - begin))
                begin += 3;
            markChecked = true;
        }
        const char* rest = addLines(lines, begin, end, atEnd);
        if (rest == nullptr)
            return std::nullopt;
        if (atEnd)
            return std::move(lines.rows);
        held = end - rest;
        std::memmove(piece.data(), rest, size_t(held));
    }
}

} // namespace

TableFileRows readTableFile(const QString& path, int columnCount, bool accountData)
{
    PlainFileReader file(path);
    if (!file.isOpen())
        return {std::nullopt, file.problem()};
    std::optional<Listbox::Rows> rows = readRows(file, columnCount, accountData, false);
    if (!rows && file.problem().isEmpty() && file.rewind())
        rows = readRows(file, columnCount, accountData, true);
    if (!rows)
        return {std::nullopt, file.problem()};
    return {std::move(rows), {}};
}
