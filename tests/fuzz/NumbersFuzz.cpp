// Bytes as a number and a text for the helpers that read and write the
// figures and dates: a read date is a real one and survives its stored form;
// Str keeps 15 significant digits that Val reads back; Format and Val agree.
#include "fuzz/FuzzCheck.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <QLocale>
#include <QString>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The rules below read Format's text with Val: a "." system whatever the machine's.
    static const bool cLocale = (QLocale::setDefault(QLocale::c()), true);
    (void)cLocale;
    double value = 0;
    if (size >= sizeof value)
        std::memcpy(&value, data, sizeof value);
    const size_t textStart = size >= sizeof value ? sizeof value : 0;
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data) + textStart, qsizetype(size - textStart));

    QDate date;
    if (ParseDate(text, date)) {
        fuzzCheck(date.isValid() && date.year() >= 1 && date.year() <= 9999, "a read date is a real one");
        QDate again;
        fuzzCheck(ParseDate(SQLDate(date), again) && again == date, "a date reads back from its stored form");
    }
    const double read = Val(text);
    fuzzCheck(!std::isnan(read), "Val reads a number or nothing");

    if (!std::isfinite(value))
        return 0;
    const QString stored = Str(value);
    fuzzCheck(!stored.contains(u'e') && !stored.contains(u'E') && stored != u"-0", "Str is plain decimal");
    const double back = Val(stored);
    fuzzCheck(back == value || std::fabs(back - value) <= std::fabs(value) * 1e-14, "Val(Str(x)) is x to 15 digits");

    for (const char16_t* pattern : {u"-#########0.00", u"########0.00", u"#.00", u"#", u"-0.###"})
        fuzzCheck(!Format(value, pattern).contains(u'e'), "Format is plain decimal");
    if (std::fabs(value) < 1e12) {
        const double shown = Val(Format(value, u"-#########0.00"));
        // Half a cent, and the spacing of doubles that large.
        fuzzCheck(std::fabs(shown - value) <= 0.005 + std::fabs(value) * 1e-15, "Format rounds to the nearest cent");
    }
    return 0;
}
