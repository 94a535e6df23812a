// VB.NET: the journal side.
#pragma once

#include "backends/text/basic_converter_text.h"
#include "backends/vbnet/entity_arrays.h"

class CZtConverterKVAPIVbNet final : public kv::DispatchArrays<kv::BasicConverterText>
{
public:
    explicit CZtConverterKVAPIVbNet(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // Pieces that several operations share.
    [[nodiscard]] QString TypedEntities(const EntityArray& entities) const;
    [[nodiscard]] QString SearchTrimmed(const TrimSearch& search) const;

    // Lower case on this side only.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    [[nodiscard]] QString FlagWord(bool flag) const override { return kv::ConverterText::FlagWord(flag); }
};
