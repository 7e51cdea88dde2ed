#include "cli/DrawingVerbs.h"

using namespace Qt::StringLiterals;

DrawingVerbs drawingVerbs()
{
    return {{u"chart"_s, &chartVerb}, {u"report"_s, &reportVerb}, {u"print"_s, &printVerb}};
}
