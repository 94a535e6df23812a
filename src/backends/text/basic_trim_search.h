// The blocks that tell a trim's new entities apart, in the Basic languages.
#pragma once

#include "backends/text/fill.h"
#include "core/trim_search.h"

namespace kv
{
// Where the Basic languages differ. %1 is the indent, %2 the line end.
struct BasicSearchForms
{
    Template<Indent, QString, QString, QString> object;          // the found object as one of its class: stem, class
    Template<Indent, QString, QString, QString, QString> getter; // stem, method, the locals that it fills
    Template<Indent, QString, int, QString, int> assignment;     // index, stem, number of the variable
    QLatin1String absolute;                                      // the function of the absolute value
};

// One If for all classes, in the order of the search; empty when no class can be told.
[[nodiscard]] QString BasicTrimBlocks(const BasicSearchForms& forms, const TrimSearch& search, Indent indent);
} // namespace kv
