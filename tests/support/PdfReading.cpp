#include "support/PdfReading.h"

#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString bboxText(const QString& pdf)
{
    QProcess process;
    process.start(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s});
    process.waitForFinished(60000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

QList<Word> wordsOf(const QString& pdf)
{
    static const QRegularExpression word(
        uR"re(<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*)</word>)re"_s);
    QList<Word> words;
    int page = 0;
    for (const QString& line : bboxText(pdf).split(u'\n')) {
        if (line.contains(u"<page "))
            ++page;
        const QRegularExpressionMatch found = word.match(line);
        if (found.hasMatch())
            words.push_back({page, QRectF(QPointF(found.captured(1).toDouble(), found.captured(2).toDouble()),
                                          QPointF(found.captured(3).toDouble(), found.captured(4).toDouble())),
                             found.captured(5)});
    }
    return words;
}

int pageCountOf(const QString& pdf)
{
    return int(bboxText(pdf).count(u"<page "));
}

int pagesOf(const QList<Word>& words)
{
    int pages = 0;
    for (const Word& word : words)
        pages = std::max(pages, word.page);
    return pages;
}

QList<Word> named(const QList<Word>& words, const QString& text)
{
    QList<Word> found;
    for (const Word& word : words)
        if (word.text == text)
            found << word;
    return found;
}

QImage pageImage(const QString& pdf, int page, const QString& folder, int dotsPerInch)
{
    const QString number = QString::number(page);
    QProcess::execute(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsPerInch), u"-f"_s, number, u"-l"_s, number, u"-singlefile"_s,
                                      u"-png"_s, pdf, folder + u"/page"_s});
    return QImage(folder + u"/page.png"_s);
}
