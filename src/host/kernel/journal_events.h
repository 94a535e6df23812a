// The events of a journal, as a host supplies them.
#pragma once

#include "host/db/handle.h"
#include "host/kernel/custom_action_data.h"
#include "host/kernel/variant.h"
#include "host/odrx/array.h"
#include "host/odrx/object.h"
#include "host/odrx/res_buf.h"

#include <cstdint>
#include <vector>

// The recorded events in their order; an element can be null.
using CZtJournal = OdArray<OdRxObjectPtr>;

// One property of an object. The host context is the value that was given to ConvertJournal.
class KVHOST_API CZtPropertyElement : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtPropertyElement)

    // The display names of the property and of its group.
    [[nodiscard]] virtual const CZtString& GetName() const = 0;
    [[nodiscard]] virtual const CZtString& GetGroup() const = 0;

    [[nodiscard]] virtual CZtVariant GetValue(std::uint64_t hostContext) const = 0;
    [[nodiscard]] virtual CZtVariant GetTag(std::uint64_t hostContext) const = 0;
};

using CZtPropertyElementPtr = OdSmartPtr<CZtPropertyElement>;
using CZtPropertyList = std::vector<CZtPropertyElementPtr>;

// A command that the user ran, with all that happened inside it.
class KVHOST_API CZtUserCommand : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtUserCommand)

    // The command's name as a text buffer.
    virtual void GetCommandName(OdResBufPtr& name) const = 0;
    [[nodiscard]] virtual const CZtJournal& GetChildEvents() const = 0;
};

// A prompt and its answer.
class KVHOST_API CZtUserInteraction : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtUserInteraction)

    // 0 point, 1 angle, 2 distance, 3 orientation, 4 corner, 5 scale, 6 string, 7 keyword, 8 colour, 9 integer,
    // 10 double.
    [[nodiscard]] virtual std::int32_t GetPromptKind() const = 0;

    // The value answered; null when there is none.
    virtual void GetAnswer(OdResBufPtr& answer) const = 0;

    // The keywords in the user's language and their global forms, of like length.
    virtual void GetKeywords(std::vector<CZtString>& local, std::vector<CZtString>& global) const = 0;

    // The prompt as shown to the user, with its markup.
    virtual void GetPromptText(CZtString& text) const = 0;
};

// An object was added to the drawing.
class KVHOST_API CZtObjectAdded : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtObjectAdded)

    [[nodiscard]] virtual const OdRxClass* GetObjectClass() const = 0;

    // What the object was created with.
    [[nodiscard]] virtual const CZtPropertyList& GetProperties() const = 0;

    // What may be set on it once it is created.
    [[nodiscard]] virtual const CZtPropertyList& GetDefaultProperties() const = 0;
    [[nodiscard]] virtual const OdDbHandle& GetObjectHandle() const = 0;
};

// An object was changed.
class KVHOST_API CZtObjectModified : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtObjectModified)

    [[nodiscard]] virtual const OdRxClass* GetObjectClass() const = 0;
    [[nodiscard]] virtual const CZtPropertyList& GetProperties() const = 0;
    [[nodiscard]] virtual const OdDbHandle& GetObjectHandle() const = 0;
};

// One property of an object was changed; the event is itself the property.
class KVHOST_API CZtPropertyChanged : public CZtPropertyElement
{
    ODRX_DECLARE_MEMBERS(CZtPropertyChanged)

    [[nodiscard]] virtual const OdRxClass* GetObjectClass() const = 0;
    [[nodiscard]] virtual const OdDbHandle& GetObjectHandle() const = 0;
};

// A system variable changed.
class KVHOST_API CZtSysVarChanged : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtSysVarChanged)

    // The name in the application's spelling.
    [[nodiscard]] virtual const CZtString& GetVariableName() const = 0;

    // The new value; null when there is none.
    virtual void GetVariableValue(OdResBufPtr& value) const = 0;
};

// The user made a selection.
class KVHOST_API CZtUserSelection : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtUserSelection)

    // The selected entities and their classes, of like length.
    [[nodiscard]] virtual const std::vector<OdDbHandle>& GetSelectedHandles() const = 0;
    [[nodiscard]] virtual const std::vector<const OdRxClass*>& GetSelectedClasses() const = 0;
};

// A command recorded a fact that the events of objects don't show.
class KVHOST_API CZtCustomAction : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(CZtCustomAction)

    // What kind of fact: 0 to 48. The number tells the layout of the data.
    [[nodiscard]] virtual std::int32_t GetActionId() const = 0;

    [[nodiscard]] virtual std::int32_t GetDataCount() const = 0;

    // The item at a 0-based index. Throws OdError_InvalidIndex outside the data.
    [[nodiscard]] virtual const CZtCustomActionData& GetData(std::int32_t index) const = 0;
};
