// C++ COM: the object side.
#pragma once

#include "backends/text/text_operations.h"

class CZtConverterKVAPIObjectCPPCOM final : public kv::ObjectText
{
public:
    explicit CZtConverterKVAPIObjectCPPCOM(CZtConverterKVAPIImpl* converter);

#define OPERATION(result, name, parameters) [[nodiscard]] result name parameters override;
#include "objects/object_operations.def"
#undef OPERATION

private:
    // Flags of the automation interfaces.
    [[nodiscard]] QString FlagWord(bool flag) const override;
};
