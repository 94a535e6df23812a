// JavaScript: the journal side.
#pragma once

#include "backends/text/text_operations.h"

#include <QtCore/QMap>

class CZtConverterKVAPIJavaScript final : public kv::ConverterText
{
public:
    explicit CZtConverterKVAPIJavaScript(std::int32_t recordingMode);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "core/write_operations.def"
#undef OPERATION

#define OPERATION(result, name, parameters) [[nodiscard]] virtual result name parameters;
#include "backends/javascript/reserved_operations.def"
#undef OPERATION

    /// The number of an object type, such as 21 for "kvLineType", since the script library has no enumeration for them.
    /// An unknown name gives 0 and is remembered with it.
    [[nodiscard]] std::int32_t GetObjectTypeNumber(const QString& constant);

    /// The numbers known so far: none before the first call of GetObjectTypeNumber.
    [[nodiscard]] const QMap<QString, std::int32_t>& ObjectTypeNumbers() const { return objectTypeNumbers_; }

private:
    QMap<QString, std::int32_t> objectTypeNumbers_;
};
