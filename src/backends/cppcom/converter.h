// C++ COM: the journal side.
#pragma once

#include "backends/text/text_operations.h"

class CZtConverterKVAPICPPCOM final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPICPPCOM(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    // An element of a keyword array.
    [[nodiscard]] QString KeywordElement(const char* array, std::int32_t number, int index, const QString& keyword);
};
