// C#: the object side.
#pragma once

#include "backends/text/text_operations.h"

class CZtConverterKVAPIObjectCSharp final : public kv::ObjectText
{
public:
    explicit CZtConverterKVAPIObjectCSharp(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // The head of all backgrounds of views.
    [[nodiscard]] QString BackgroundHead(std::int32_t number, const QString& variable) const;

    // A diameter or radius, which the word tells.
    [[nodiscard]] QString OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                  const OdGePoint3d& chordPoint, const QString& text);
};
