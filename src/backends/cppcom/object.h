// C++ COM: the object side.
#pragma once

#include "backends/cppcom/safe_array.h"
#include "backends/text/text_operations.h"

class CZtConverterKVAPIObjectCPPCOM final : public kv::ObjectText
{
public:
    explicit CZtConverterKVAPIObjectCPPCOM(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // The safe array variant<number> of the points' coordinates, and an empty line.
    template <class Point>
    [[nodiscard]] QString DeclarePoints(std::int32_t number, const OdArray<Point>& points) const
    {
        const SafeArrayText array(SafeArrayText::Kind::Doubles, "variant", number);
        const QStringList values = CoordinateTexts(points, kv::FixedText);
        return array.Declare(CurrentIndent(), values.size()) + kv::LineEnd() + array.Elements(CurrentIndent(), values) +
               kv::LineEnd();
    }

    // Flags of the automation interfaces.
    [[nodiscard]] QString FlagWord(bool flag) const override;

    // A diameter or radius, which the word tells.
    [[nodiscard]] QString OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                  const OdGePoint3d& chordPoint, const QString& text);

    // A point as an array under the number.
    [[nodiscard]] static QString PointArray(kv::Indent indent, std::int32_t number, const OdGePoint3d& point);
};
