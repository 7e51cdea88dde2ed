#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringView>

// Program-wide values and helpers.
namespace Globals {

// The page setup chosen in this run, as a printer setup's text; empty until the
// user sets up a page. Not kept between runs.
inline QString ps;
// The account transactions window that was activated last: a new transaction
// entered from there goes to its account.
inline QPointer<QObject> gfrontIndAccWindow;
// Import reads dates as day before month.
inline bool gcanadianDate = false;

// The text with every "," turned into ".": what stands before every reading of a
// stored amount, since amounts may have been stored with either mark.
QString cvt(QStringView text);

} // namespace Globals
