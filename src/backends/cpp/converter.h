// The C++ API: the journal side.
#pragma once

#include "backends/text/text_operations.h"

class CZtConverterKVAPICPP final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPICPP(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

private:
    [[nodiscard]] static QString WriteConnectionHeader(const QString& macroName);
    [[nodiscard]] static QString WriteConnectionSource(const QString& macroName);
    [[nodiscard]] static QString WriteCommandHeader();
    [[nodiscard]] static QString WriteModuleDefinition(const QString& macroName);
};
