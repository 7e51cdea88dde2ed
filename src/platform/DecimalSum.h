#pragma once

#include <QString>
#include <QStringView>

// A sum of amounts, exact in decimal: the amounts are read from their texts as
// Val or readAmount reads them (the leading number) and added as whole numbers of
// their smallest decimal place, so 0.1 + 0.2 - 0.3 is 0 and 100,000 cent amounts
// add up to whole cents. Only a number too long for that (more than 36 digits
// in all) is added as a double, and the sum is a double from then on.
class DecimalSum {
public:
    // Reads as Val: "." is the only decimal mark.
    void addVal(QStringView text) { add(text, false); }
    // Reads as readAmount: "," is a decimal mark too.
    void addAmount(QStringView text) { add(text, true); }

    // The sum in the plain form of Str: no exponent, no zeros at the end of the
    // places, never "-0".
    QString text() const;
    // The sum as the nearest double.
    double value() const;

private:
    void add(QStringView text, bool commaIsPoint);
    bool addExact(__int128 units, int places);
    QString exactText() const;

    __int128 units_ = 0; // the exact sum in units of its smallest place
    int places_ = 0;     // how many decimal places a unit is
    double inexact_ = 0; // what couldn't be added exactly
    bool anyInexact_ = false;
};
