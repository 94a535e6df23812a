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
};
