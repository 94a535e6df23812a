// The commands that the module offers to the host.
#include "commands/command_list.h"

#include "commands/hyperlink_command.h"
#include "commands/linetype_command.h"

namespace kv
{

namespace
{

class CommandList final : public CZtCommandSource
{
public:
    [[nodiscard]] const std::vector<CZtCommandPtr>& Commands() const override { return commands_; }

private:
    std::vector<CZtCommandPtr> commands_ = {OdSmartPtr<CZtCommandLinetype>::make(),
                                            OdSmartPtr<CZtCommandHyperlink>::make()};
};

} // namespace

CZtCommandSource* ModuleCommands()
{
    static const auto list = OdSmartPtr<CommandList>::make();
    return list.get();
}

} // namespace kv
