#include "platform/TextHelpers.h"

QString NthField(QStringView text, QStringView separator, int n)
{
    if (n < 1)
        return {};
    if (separator.isEmpty())
        return n == 1 ? text.toString() : QString();
    qsizetype from = 0;
    for (int field = 1; field < n; ++field) {
        const qsizetype at = text.indexOf(separator, from);
        if (at < 0)
            return {};
        from = at + separator.size();
    }
    const qsizetype end = text.indexOf(separator, from);
    return text.mid(from, end < 0 ? -1 : end - from).toString();
}

int InStr(int start, QStringView text, QStringView find)
{
    if (find.isEmpty() || start < 1 || start > text.size())
        return 0;
    return int(text.indexOf(find, start - 1, Qt::CaseInsensitive)) + 1;
}

int InStr(QStringView text, QStringView find)
{
    return InStr(1, text, find);
}

QString Left(QStringView text, int n)
{
    return n < 1 ? QString() : text.left(n).toString();
}
