// The chart window's two charts as a PNG file.
#include "cli/Verbs.h"

#include "books/FileStore.h"
#include "charts/AccountCharts.h"

#include <QBuffer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// The canvas of the chart window.
constexpr QSize kCanvas(553, 432);
// A side beyond this would ask for a picture of hundreds of megabytes.
constexpr int kLargestSide = 10000;

// --size WxH, or the window's canvas; nothing when the text is no such size.
std::optional<QSize> canvasSize(const QCommandLineParser& parser)
{
    if (!parser.isSet(u"size"_s))
        return kCanvas;
    static const QRegularExpression form(u"^(\\d{1,5})x(\\d{1,5})$"_s);
    const QRegularExpressionMatch size = form.match(parser.value(u"size"_s));
    if (!size.hasMatch())
        return std::nullopt;
    const int width = size.captured(1).toInt();
    const int height = size.captured(2).toInt();
    if (width < 1 || height < 1 || width > kLargestSide || height > kLargestSide)
        return std::nullopt;
    return QSize(width, height);
}

} // namespace

bool chartOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    const QString kind = parser.value(u"kind"_s);
    return (kind == u"bar" || kind == u"pie") && parser.isSet(u"out"_s) && canvasSize(parser).has_value();
}

int chartVerb(const Invocation& call, SummaryBooks& books)
{
    const QSize canvas = *canvasSize(call.parser);
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
