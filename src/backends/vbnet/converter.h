// VB.NET: the journal side.
#pragma once

#include "backends/text/basic_operations.h"

class CZtConverterKVAPIVbNet final : public kv::BasicConverterText
{
public:
    explicit CZtConverterKVAPIVbNet(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // Lower case on this side only.
    [[nodiscard]] QString FlagWord(bool flag) const override { return kv::ConverterText::FlagWord(flag); }
};
