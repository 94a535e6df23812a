// JavaScript: the object side.
#pragma once

#include "backends/text/coordinate_list.h"
#include "backends/text/text_operations.h"

class CZtConverterKVAPIObjectJavaScript final : public kv::ObjectText
{
public:
    explicit CZtConverterKVAPIObjectJavaScript(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // The array of the points' coordinates under the stem and the number, and an empty line.
    template <class Point>
    [[nodiscard]] QString DeclarePoints(const char* stem, std::int32_t number, const OdArray<Point>& points) const
    {
        using Form = std::conditional_t<std::is_same_v<Point, OdGePoint2d>, kv::FixedPoint2d, kv::FixedPoint>;
        return Line("%1var %2%3 = new Array(%4);\n", stem, number, kv::CoordinateList<Form>(points)) + kv::LineEnd();
    }
    // Reads a point through the getter, changes one member of it and writes it through the setter.
    [[nodiscard]] QString SetPointMember(const QString& variable, Axis axis, const QString& getter,
                                         const QString& setter, double value);
    [[nodiscard]] QString SetVertexMember(const QString& variable, Axis axis, const QString& getter,
                                          const QString& setter, double value, std::int32_t index);
    // The head of the backgrounds of views.
    [[nodiscard]] QString BackgroundHead(std::int32_t number, const QString& variable);

    // A diameter or radius, which the word tells.
    [[nodiscard]] QString OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                  const OdGePoint3d& chordPoint, const QString& text);
};
