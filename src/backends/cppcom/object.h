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

    // The locals of a point whose one coordinate changes.
    [[nodiscard]] QString DeclareCoordinates(std::int32_t number);
    [[nodiscard]] QString AssignCoordinate(Axis axis, double value, std::int32_t number);
};
