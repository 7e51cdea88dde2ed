#include "exchange/FileTypes1.h"

using namespace Qt::StringLiterals;

QString FileType::filter() const
{
    QStringList patterns;
    for (const QString& extension : Extensions)
        patterns << u"*."_s + extension;
    return Name + u" ("_s + patterns.join(u' ') + u')';
}

const FileType& FileTypes1::Text()
{
    static const FileType type{u"text"_s, {u"txt"_s, u"csv"_s}, u"TEXT"_s, u"????"_s, true};
    return type;
}

const FileType& FileTypes1::CommaSeparatedValues()
{
    static const FileType type{u"comma-separated-values"_s, {u"csv"_s, u"txt"_s}, u"????"_s, u"????"_s, true};
    return type;
}
