// VBA: the journal side.
#pragma once

#include "backends/text/basic_converter_text.h"
#include "backends/vba/entity_arrays.h"

class CZtConverterKVAPIVba final : public kv::ObjectArrays<kv::BasicConverterText>
{
public:
    explicit CZtConverterKVAPIVba(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // Pieces that several operations share.
    [[nodiscard]] QString TypedEntities(const EntityArray& entities) const;
    [[nodiscard]] QString SearchTrimmed(const TrimSearch& search) const;
};
