#include "update/VersionCheck.h"

#include "platform/Numbers.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace VersionCheck {

double comparisonNumber(const QString& version)
{
    QString digits = version;
    digits.replace(u'.', QString());
    // Lengths in characters, as a reader counts them, not in UTF-16 units.
    if (digits.toUcs4().size() == 2)
        digits += u'0';
    if (digits.toUcs4().size() == 1)
        digits += u"00"_s;
    return Val(digits);
}

QString offerText(const QString& appName)
{
    return u"There is a newer version of "_s + appName + u" available. Would you like to download it now?"_s;
}

QString versionFilePath()
{
    return QDir::temp().filePath(u"Temporary Version File"_s);
}

namespace {

// The next line of text from position at, without its line end ("\n", "\r\n"
// or "\r"); "" past the end.
QString nextLine(const QByteArray& text, qsizetype& at)
{
    qsizetype end = at;
    while (end < text.size() && text[end] != '\n' && text[end] != '\r')
        ++end;
    const QString line = QString::fromUtf8(text.mid(at, end - at));
    if (end < text.size() && text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n')
        ++end;
    at = std::min(end + 1, text.size());
    return line;
}

// Only the first two lines count; a server could send far more.
constexpr qint64 readLimit = 1 << 20;

} // namespace

Verdict readVersionFile(const QString& path, const QString& ourVersion)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray text = file.read(readLimit);
    qsizetype at = 0;
    theAppName = nextLine(text, at);
    theVersionString = nextLine(text, at);
    if (theAppName.isEmpty())
        return {.keepFile = true, .offer = {}};
    if (comparisonNumber(theVersionString) > comparisonNumber(ourVersion))
        return {.keepFile = false, .offer = offerText(theAppName)};
    return {};
}

} // namespace VersionCheck
