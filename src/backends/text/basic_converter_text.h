// What the two Basic languages say alike on the journal side.
#pragma once

#include "backends/text/basic_operations.h"
#include "core/trim_search.h"

namespace kv
{
class BasicConverterText : public BasicOperations<ConverterText>
{
public:
    using BasicOperations::BasicOperations;

protected:
    struct NamedEntities
    {
        const char* array;
        const QStringList& names;
    };

    // What trim and extend take: the edges, the edited entities, the points on them, and the edge mode.
    [[nodiscard]] QString EdgeEntities(std::int32_t number, NamedEntities edges, NamedEntities edited,
                                       const OdArray<OdGePoint3d>& points);

    // The two entities of a corner with the points at which they were picked.
    [[nodiscard]] QString CornerEntities(std::int32_t number, const QStringList& firstNames,
                                         const OdGePoint3d& firstPoint, const QStringList& secondNames,
                                         const OdGePoint3d& secondPoint) const;

    // The elements of the arrays selPts and prop.
    [[nodiscard]] QString SearchedElements(const TrimSearch& search) const;
};
} // namespace kv
