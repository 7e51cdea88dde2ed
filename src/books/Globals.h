#pragma once

#include <QString>
#include <QStringView>

// Program-wide values and helpers.
namespace Globals {

// The text with every "," turned into ".": what stands before every reading of a
// stored amount, since amounts may have been stored with either mark.
QString cvt(QStringView text);

} // namespace Globals
