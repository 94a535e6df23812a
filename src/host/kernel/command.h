// A command that a module adds to the application's command line.
#pragma once

#include "host/kernel/drawing_editor.h"
#include "host/kernel/user_io.h"
#include "host/odrx/object.h"

#include <cstdint>
#include <vector>

// What a command works on while it runs.
class KVHOST_API OdEdCommandContext
{
public:
    OdEdCommandContext() = default;
    virtual ~OdEdCommandContext();
    OdEdCommandContext(const OdEdCommandContext&) = delete;
    OdEdCommandContext& operator=(const OdEdCommandContext&) = delete;

    // The user of the document; null when there is none to ask.
    [[nodiscard]] virtual CZtUserIO* GetZtUserIO() = 0;

    // The document's drawing.
    [[nodiscard]] virtual CZtDrawingEditor& DrawingEditor() = 0;

    // True when files are asked for by a dialog: the setting FILEDIA and what else decides about it.
    [[nodiscard]] virtual bool GetEffectiveFileDia() const = 0;
};

class KVHOST_API CZtCommand : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtCommand)

    // The name that holds in every language, and the one in the user's.
    [[nodiscard]] virtual CZtString globalName() const = 0;
    [[nodiscard]] virtual CZtString localName() const = 0;

    // The group in which the host registers the command.
    [[nodiscard]] virtual CZtString groupName() const = 0;

    // The host's flags of the command, 0 at first.
    [[nodiscard]] std::int32_t flags() const { return flags_; }
    void SetFlags(std::int32_t flags) { flags_ = flags; }

    // Whether the user took the command's name away, so that only the global name calls it.
    void undefine(bool undefined) { undefined_ = undefined; }
    [[nodiscard]] bool isUndefined() const { return undefined_; }

    // Opens the command's help, where it has one.
    virtual void Help() {}

    // Runs the command: ResultNormal, ResultCancelled when the user cancelled at any prompt, or ResultError when there
    // is no user to ask. Exceptions of the host pass through.
    [[nodiscard]] virtual ResultCode execute(OdEdCommandContext& context) = 0;

private:
    std::int32_t flags_ = 0;
    bool undefined_ = false;
};

using CZtCommandPtr = OdSmartPtr<CZtCommand>;

// The commands of a module: the protocol extension of its module object for this class. The host registers them.
class KVHOST_API CZtCommandSource : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtCommandSource)

    [[nodiscard]] virtual const std::vector<CZtCommandPtr>& Commands() const = 0;
};
