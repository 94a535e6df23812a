// VB.NET: the object side.
#pragma once

#include "backends/text/basic_operations.h"

class CZtConverterKVAPIObjectVbNet final : public kv::BasicObjectText
{
public:
    explicit CZtConverterKVAPIObjectVbNet(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION
};
