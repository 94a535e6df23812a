// VBA: the object side.
#pragma once

#include "backends/vba/entity_arrays.h"

class CZtConverterKVAPIObjectVba final : public kv::ObjectArrays<kv::BasicObjectText>
{
public:
    explicit CZtConverterKVAPIObjectVba(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // Numbers the locals of WriteSetPointProperty, which can be declared once in
    // the procedure.
    std::int32_t pointProperties_ = 0;

    // A diameter or radius, which the word tells.
    [[nodiscard]] QString OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                  const OdGePoint3d& chordPoint, const QString& text);
};
