// VBA: the journal side.
#pragma once

#include "backends/text/basic_operations.h"

class CZtConverterKVAPIVba final : public kv::BasicConverterText
{
public:
    explicit CZtConverterKVAPIVba(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION
};
