// The chart window's two charts as a PNG file.
#include "cli/DrawingVerbs.h"

#include "books/FileStore.h"
#include "charts/AccountCharts.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

int chartVerb(const Invocation& call, SummaryBooks& books)
{
    const QSize canvas = *chartCanvas(call.parser);
    const Listbox& accounts = books.accountsBox;
    const AccountChart chart = call.value(u"kind"_s) == u"bar" ? transactionsChart(accounts, canvas)
                                                               : openingsChart(accounts, canvas);

    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    const QString path = call.value(u"out"_s);
    if (!chart.picture->image().save(&buffer, "PNG"))
        return refused(call, u"couldn't make the picture of the chart"_s);
    if (const FileProblem problem = replaceFile(path, png); problem.failed())
        return refused(call, u"couldn't write \"%1\": %2"_s.arg(path, problem.reason));

    for (const LegendLine& line : chart.legend)
        call.out << line.row << '\t' << line.colour.name().toUpper() << '\t' << line.name << '\n';
    if (chart.noOpenings)
        call.out << kNoOpeningsNotice << '\n';
    return 0;
}
