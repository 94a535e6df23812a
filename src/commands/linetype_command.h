// The command -LINESTYLE: lists, creates, loads and activates line styles.
#pragma once

#include "host/kernel/command.h"

class CZtCommandLinetype final : public CZtCommand
{
public:
    [[nodiscard]] CZtString globalName() const override { return "_-LINESTYLE"; }
    [[nodiscard]] CZtString localName() const override { return "-LINESTYLE"; }
    [[nodiscard]] CZtString groupName() const override;
    [[nodiscard]] ResultCode execute(OdEdCommandContext& context) override;
};
