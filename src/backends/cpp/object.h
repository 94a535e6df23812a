// The C++ API: the object side.
#pragma once

#include "backends/text/text_operations.h"

class CZtConverterKVAPIObjectCPP final : public kv::ObjectText
{
public:
    explicit CZtConverterKVAPIObjectCPP(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // Coordinates of an array, a line for each point.
    [[nodiscard]] QString CoordinateLines(std::int32_t number, const OdArray<OdGePoint2d>& points) const;
    [[nodiscard]] QString CoordinateLines(std::int32_t number, const OdArray<OdGePoint3d>& points) const;

    // The array Coordinates<number> of the points, and an empty line.
    template <class Point>
    [[nodiscard]] QString DeclarePoints(std::int32_t number, const OdArray<Point>& points) const
    {
        return Statement("%1kvDoubleArray Coordinates%3;%2"
                         "%1Coordinates%3.clear();%2%2"
                         "%4%2",
                         number, CoordinateLines(number, points));
    }

    // The elements of a list of integers.
    [[nodiscard]] QString IntegerLines(const char* list, std::int32_t number,
                                       const OdArray<std::int32_t>& values) const;

    // A color of a gradient; the line isn't ended.
    [[nodiscard]] QString GradientColor(const OdCmColor& color, const char* local) const;

    // Pieces of the backgrounds of views.
    [[nodiscard]] QString BackgroundHead(std::int32_t number, const QString& variable);
    [[nodiscard]] QString BackgroundColor(std::int32_t number, int index, const OdCmColor& color);
};
