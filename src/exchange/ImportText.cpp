#include "exchange/ImportText.h"

#include <QStringDecoder>

#include <array>
#include <map>

using namespace Qt::StringLiterals;

namespace {

// Windows-1252 differs from Latin-1 in 0x80 to 0x9F; the five holes read as
// the control characters of the same number, as Windows itself reads them.
constexpr std::array<char16_t, 32> kWindows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        *out++ = value >= 0x80 && value < 0xA0 ? QChar(kWindows1252High[value - 0x80]) : QChar(char16_t(value));
    }
    return text;
}

} // namespace

QString decodeImportText(const QByteArray& bytes)
{
    QByteArrayView view(bytes);
    if (view.startsWith("\xEF\xBB\xBF"))
        view = view.sliced(3);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(view);
    if (!utf8.hasError())
        return text;
    return fromWindows1252(view);
}

RecordReader::RecordReader(const QString& text, QChar separator)
    : data_(text.constData())
    , size_(text.size())
    , separator_(separator)
{
}

void RecordReader::skipLineBreak()
{
    if (data_[at_] == u'\r' && at_ + 1 < size_ && data_[at_ + 1] == u'\n')
        ++at_;
    ++at_;
    ++line_;
}

bool RecordReader::next(Record& record)
{
    if (at_ >= size_ || unclosedQuoteLine_ > 0)
        return false;
    record.line = line_;
    record.fields.clear();
    for (;;) {
        if (data_[at_] == u'"') {
            const int quoteLine = line_;
            QString field;
            ++at_;
            bool closed = false;
            qsizetype start = at_;
            while (at_ < size_) {
                if (data_[at_] == u'"') {
                    field.append(data_ + start, at_ - start);
                    if (at_ + 1 < size_ && data_[at_ + 1] == u'"') {
                        field += u'"';
                        at_ += 2;
                        start = at_;
                        continue;
                    }
                    ++at_;
                    closed = true;
                    break;
                }
                if (lineBreakAt(at_)) {
                    skipLineBreak();
                    continue;
                }
                ++at_;
            }
            if (!closed) {
                unclosedQuoteLine_ = quoteLine;
                return false;
            }
            // What follows the closing quote up to the separator is text too.
            start = at_;
            while (at_ < size_ && data_[at_] != separator_ && !lineBreakAt(at_))
                ++at_;
            field.append(data_ + start, at_ - start);
            record.fields << field;
        } else {
            const qsizetype start = at_;
            while (at_ < size_ && data_[at_] != separator_ && !lineBreakAt(at_))
                ++at_;
            record.fields.emplaceBack(data_ + start, at_ - start);
        }
        if (at_ < size_ && data_[at_] == separator_) {
            ++at_;
            if (at_ < size_)
                continue;
            record.fields << QString(); // a separator ends the text: one more, empty field
        }
        break;
    }
    if (at_ < size_)
        skipLineBreak();
    return true;
}

int nulLineOf(const QString& text)
{
    const qsizetype nul = text.indexOf(QChar(0));
    if (nul < 0)
        return 0;
    const QStringView before = QStringView(text).left(nul);
    return 1 + int(before.count(u'\n')) + int(before.count(u'\r')) - int(before.count(u"\r\n"));
}

RecordList readRecords(const QString& text, QChar separator)
{
    RecordList result;
    result.nulLine = nulLineOf(text);
    RecordReader reader(text, separator);
    Record record;
    while (reader.next(record))
        result.records.push_back(std::move(record));
    result.unclosedQuoteLine = reader.unclosedQuoteLine();
    return result;
}

QChar guessSeparator(const QString& text)
{
    const QString start = text.left(64 * 1024);
    QChar best = u',';
    qsizetype bestFields = 1;
    for (const QChar candidate : {u',', u';', u'\t', u'|'}) {
        // The number of fields the first non-blank records agree on.
        std::map<qsizetype, int> agreeing;
        int looked = 0;
        for (const Record& record : readRecords(start, candidate).records) {
            if (looked == 10)
                break;
            if (record.fields.size() == 1 && record.fields.front().trimmed().isEmpty())
                continue;
            ++agreeing[record.fields.size()];
            ++looked;
        }
        if (looked == 0)
            continue;
        const auto most = std::max_element(agreeing.begin(), agreeing.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        if (most->first > bestFields && most->second * 2 > looked) {
            best = candidate;
            bestFields = most->first;
        }
    }
    return best;
}
