// The command -HYPERLINK: attaches hyperlinks to entities or to an area, and removes them.
#pragma once

#include "host/kernel/command.h"

class CZtCommandHyperlink final : public CZtCommand
{
public:
    [[nodiscard]] CZtString globalName() const override { return "_-HYPERLINK"; }
    [[nodiscard]] CZtString localName() const override { return "-HYPERLINK"; }
    [[nodiscard]] CZtString groupName() const override;
    [[nodiscard]] ResultCode execute(OdEdCommandContext& context) override;
};
