// VB.NET: the object side.
#pragma once

#include "backends/vbnet/entity_arrays.h"

class CZtConverterKVAPIObjectVbNet final : public kv::DispatchArrays<kv::BasicObjectText>
{
public:
    explicit CZtConverterKVAPIObjectVbNet(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // A diameter or radius, which the word tells.
    [[nodiscard]] QString OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                  const OdGePoint3d& chordPoint, const QString& text);
};
