#include "platform/DecimalSum.h"

#include "platform/Numbers.h"

#include <algorithm>

namespace {

// The largest magnitude the sum holds: 10^36, room below the 1.7e38 of 128 bits
// for one more carry.
constexpr int kMostDigits = 36;

__int128 powerOfTen(int exponent)
{
    __int128 power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

const __int128 kLimit = powerOfTen(kMostDigits);

bool isBlank(char16_t c)
{
    return c == u' ' || c == u'\t';
}

// The leading number of text in units of its last place, as Val reads it:
// blanks, a sign, digits with at most one point; false when it has more than
// kMostDigits digits after its leading zeros.
bool readUnits(QStringView text, bool commaIsPoint, __int128& units, int& places)
{
    qsizetype i = 0;
    while (i < text.size() && isBlank(text[i].unicode()))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) {
        negative = text[i] == u'-';
        ++i;
    }
    // Up to 18 digits in 64 bits, which nearly every amount has; beyond, in 128.
    quint64 small = 0;
    __int128 large = 0;
    int digits = 0;
    places = 0;
    bool seenPoint = false;
    for (; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c >= u'0' && c <= u'9') {
            if (digits != 0 || c != u'0')
                ++digits;
            if (digits <= 18)
                small = small * 10 + (c - u'0');
            else if (digits <= kMostDigits)
                large = (digits == 19 ? __int128(small) : large) * 10 + (c - u'0');
            else
                return false;
            if (seenPoint)
                ++places;
        } else if (!seenPoint && (c == u'.' || (commaIsPoint && c == u','))) {
            seenPoint = true;
        } else {
            break;
        }
    }
    // "12.50" is 1250 hundredths, and as well 125 tenths: the fewer places,
    // the more room.
    if (digits <= 18) {
        while (places > 0 && small % 10 == 0) {
            small /= 10;
            --places;
        }
        units = small;
    } else {
        while (places > 0 && large % 10 == 0) {
            large /= 10;
            --places;
        }
        units = large;
    }
    if (negative)
        units = -units;
    return places <= kMostDigits;
}

} // namespace

void DecimalSum::add(QStringView text, bool commaIsPoint)
{
    __int128 units = 0;
    int places = 0;
    if (!readUnits(text, commaIsPoint, units, places) || !addExact(units, places)) {
        inexact_ += commaIsPoint ? readAmount(text) : Val(text);
        anyInexact_ = true;
    }
}

bool DecimalSum::addExact(__int128 units, int places)
{
    if (places == places_) {
        // The usual case: amounts of as many places as the sum.
        const __int128 sum = units_ + units;
        if (sum >= kLimit || sum <= -kLimit)
            return false;
        units_ = sum;
        return true;
    }
    // Both to the finer of the two places, then added, each step within the limit.
    const int finer = std::max(places_, places);
    __int128 sum = units_;
    for (int p = places_; p < finer; ++p) {
        if (sum >= kLimit / 10 || sum <= -kLimit / 10)
            return false;
        sum *= 10;
    }
    for (int p = places; p < finer; ++p) {
        if (units >= kLimit / 10 || units <= -kLimit / 10)
            return false;
        units *= 10;
    }
    sum += units;
    if (sum >= kLimit || sum <= -kLimit)
        return false;
    units_ = sum;
    places_ = finer;
    return true;
}

QString DecimalSum::exactText() const
{
    __int128 units = units_;
    int places = places_;
    while (places > 0 && units % 10 == 0) {
        units /= 10;
        --places;
    }
    if (units == 0)
        return QStringLiteral("0");
    char buffer[2 * kMostDigits + 4];
    char* const end = buffer + sizeof buffer;
    char* first = end;
    unsigned __int128 magnitude = units < 0 ? -static_cast<unsigned __int128>(units) : units;
    int written = 0;
    while (magnitude != 0 || written <= places) {
        if (written == places && places > 0)
            *--first = '.';
        *--first = char('0' + int(magnitude % 10));
        magnitude /= 10;
        ++written;
    }
    if (units < 0)
        *--first = '-';
    return QString::fromLatin1(first, end - first);
}

QString DecimalSum::text() const
{
    return anyInexact_ ? Str(value()) : exactText();
}

double DecimalSum::value() const
{
    return Val(exactText()) + inexact_;
}
