// The options of the verbs that draw, checked before quillmark-cli hands such a
// command over: without the GUI's libraries.
#include "cli/Verbs.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// The canvas of the chart window.
constexpr QSize kCanvas(553, 432);
// A side beyond this would ask for a picture of hundreds of megabytes.
constexpr int kLargestSide = 10000;

} // namespace

std::optional<QSize> chartCanvas(const QCommandLineParser& parser)
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

bool chartOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    const QString kind = parser.value(u"kind"_s);
    return (kind == u"bar" || kind == u"pie") && parser.isSet(u"out"_s) && chartCanvas(parser).has_value();
}

bool reportOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    const bool year = parser.isSet(u"year"_s);
    const bool showYear = parser.isSet(u"show-year"_s);
    if (year && showYear)
        return false;
    if (!parser.isSet(u"month"_s))
        return true;
    bool number = false;
    const int month = parser.value(u"month"_s).toInt(&number);
    return number && month >= 0 && month <= 12 && !year && !showYear;
}

bool printOptionsUsable(const QCommandLineParser& parser, const QStringList&)
{
    const QString what = parser.value(u"what"_s);
    return (what == u"accounts" || what == u"transactions" || what == u"both") && parser.isSet(u"pdf"_s);
}
