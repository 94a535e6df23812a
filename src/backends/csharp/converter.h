// C#: the journal side.
#pragma once

#include "backends/text/text_operations.h"

class CZtConverterKVAPICSharp final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPICSharp(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION
};
