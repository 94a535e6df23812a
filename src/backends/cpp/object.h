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
    [[nodiscard]] QString CoordinateLines(std::int32_t number, const OdArray<OdGePoint2d>& points);

    // Pieces of the backgrounds of views.
    [[nodiscard]] QString BackgroundHead(std::int32_t number, const QString& variable);
    [[nodiscard]] QString BackgroundColor(std::int32_t number, int index, const OdCmColor& color);
};
