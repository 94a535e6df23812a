// Points as the arguments of a JavaScript array.
#pragma once

#include "backends/text/text_operations.h"

namespace kv
{

/// The coordinates of the points in their order, joined by commas without blanks, in the form of a side: GeneralForms
/// or FixedForms. The points may be of two or of three dimensions.
template <class Forms, class Points>
[[nodiscard]] QString CoordinateList(const Points& points)
{
    QString text;
    for (const auto& point : points)
    {
        using Form = std::remove_cvref_t<decltype(Forms::Of(point))>;
        if (!text.isEmpty())
        {
            text += QLatin1Char(',');
        }
        if constexpr (markersFilled<Form> == 3)
        {
            text += Fill<Form>("%1,%2,%3", Forms::Of(point));
        }
        else
        {
            text += Fill<Form>("%1,%2", Forms::Of(point));
        }
    }
    return text;
}

} // namespace kv
