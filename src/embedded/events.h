// The events of a journal file.
#pragma once

#include "embedded/chunk_allocated.h"
#include "embedded/drawing.h"
#include "host/kernel/journal_events.h"

#include <memory>

namespace kv
{
// Where an event of a session stands in its file.
class RecordedEvent : public ChunkAllocated
{
public:
    RecordedEvent() = default;
    virtual ~RecordedEvent();
    RecordedEvent(const RecordedEvent&) = delete;
    RecordedEvent& operator=(const RecordedEvent&) = delete;

    // What tells the sessions apart, and the line from 1.
    const void* session = nullptr;
    std::int64_t line = 0;
};

// A property. Tags are rare, so that only Property with a tag has room for one.
class Property : public CZtPropertyElement, public ChunkAllocated
{
public:
    Property(CZtString name, CZtString group, CZtVariant value)
        : name_(std::move(name)), group_(std::move(group)), value_(std::move(value))
    {
    }

    const CZtString& GetName() const override { return name_; }
    const CZtString& GetGroup() const override { return group_; }
    CZtVariant GetValue(std::uint64_t /*hostContext*/) const override { return value_; }
    CZtVariant GetTag(std::uint64_t /*hostContext*/) const override { return {}; }

    // Makes the ids null of objects that the drawing doesn't have.
    virtual void resolve(Drawing& drawing);

private:
    CZtString name_;
    CZtString group_;
    CZtVariant value_;
};

class TaggedProperty final : public Property
{
public:
    TaggedProperty(CZtString name, CZtString group, CZtVariant value, CZtVariant tag)
        : Property(std::move(name), std::move(group), std::move(value)), tag_(std::move(tag))
    {
    }

    CZtVariant GetTag(std::uint64_t /*hostContext*/) const override { return tag_; }
    void resolve(Drawing& drawing) override;

private:
    CZtVariant tag_;
};

using PropertyPtr = OdSmartPtr<Property>;

// The properties of an event: those of the file, and behind them those that are collected for a conversion.
class PropertyList
{
public:
    PropertyList() = default;
    explicit PropertyList(CZtPropertyList recorded) : all_(std::move(recorded)), recorded_(all_.size()) {}

    [[nodiscard]] const CZtPropertyList& all() const { return all_; }

    // Puts the properties behind those of the file in place of earlier ones; a name that the file gives is left out.
    void setCollected(const CZtPropertyList& collected);

private:
    CZtPropertyList all_;
    std::size_t recorded_ = 0;
};

// An event whose object may have properties collected.
class CollectingEvent
{
public:
    CollectingEvent() = default;
    virtual ~CollectingEvent();
    CollectingEvent(const CollectingEvent&) = delete;
    CollectingEvent& operator=(const CollectingEvent&) = delete;
    [[nodiscard]] virtual OdDbHandle handle() const = 0;
    virtual void setCollected(const CZtPropertyList& collected) = 0;
};

class UserCommand final : public CZtUserCommand, public RecordedEvent
{
public:
    explicit UserCommand(const QString& name) : name_(OdResBufPtr::make(OdResBuf::kText, name)) {}

    void append(OdRxObjectPtr child) { children_.append(std::move(child)); }
    void GetCommandName(OdResBufPtr& name) const override { name = name_; }
    const CZtJournal& GetChildEvents() const override { return children_; }

private:
    OdResBufPtr name_;
    CZtJournal children_;
};

class UserInteraction final : public CZtUserInteraction, public RecordedEvent
{
public:
    std::int32_t kind = 0;
    CZtString text;
    OdResBufPtr answer;
    std::vector<CZtString> localKeywords;
    std::vector<CZtString> globalKeywords;

    std::int32_t GetPromptKind() const override { return kind; }
    void GetAnswer(OdResBufPtr& result) const override { result = answer; }
    void GetPromptText(CZtString& result) const override { result = text; }
    void GetKeywords(std::vector<CZtString>& local, std::vector<CZtString>& global) const override
    {
        local = localKeywords;
        global = globalKeywords;
    }
};

class ObjectAdded final : public CZtObjectAdded, public RecordedEvent, public CollectingEvent
{
public:
    // Without a list of remaining properties the second list is the first.
    ObjectAdded(const OdRxClass* objectClass, OdDbHandle handle, PropertyList properties,
                std::unique_ptr<PropertyList> remaining)
        : class_(objectClass), handle_(handle), properties_(std::move(properties)), remaining_(std::move(remaining))
    {
    }

    const OdRxClass* GetObjectClass() const override { return class_; }
    const OdDbHandle& GetObjectHandle() const override { return handle_; }
    const CZtPropertyList& GetProperties() const override { return properties_.all(); }
    const CZtPropertyList& GetDefaultProperties() const override
    {
        return remaining_ ? remaining_->all() : properties_.all();
    }

    OdDbHandle handle() const override { return handle_; }
    void setCollected(const CZtPropertyList& collected) override;

private:
    const OdRxClass* class_;
    OdDbHandle handle_;
    PropertyList properties_;
    std::unique_ptr<PropertyList> remaining_;
};

class ObjectModified final : public CZtObjectModified, public RecordedEvent, public CollectingEvent
{
public:
    ObjectModified(const OdRxClass* objectClass, OdDbHandle handle, PropertyList properties)
        : class_(objectClass), handle_(handle), properties_(std::move(properties))
    {
    }

    const OdRxClass* GetObjectClass() const override { return class_; }
    const OdDbHandle& GetObjectHandle() const override { return handle_; }
    const CZtPropertyList& GetProperties() const override { return properties_.all(); }

    OdDbHandle handle() const override { return handle_; }
    void setCollected(const CZtPropertyList& collected) override { properties_.setCollected(collected); }

private:
    const OdRxClass* class_;
    OdDbHandle handle_;
    PropertyList properties_;
};

class PropertyChanged final : public CZtPropertyChanged, public RecordedEvent
{
public:
    PropertyChanged(const OdRxClass* objectClass, OdDbHandle handle, PropertyPtr property)
        : class_(objectClass), handle_(handle), property_(std::move(property))
    {
    }

    const OdRxClass* GetObjectClass() const override { return class_; }
    const OdDbHandle& GetObjectHandle() const override { return handle_; }
    const CZtString& GetName() const override { return property_->GetName(); }
    const CZtString& GetGroup() const override { return property_->GetGroup(); }
    CZtVariant GetValue(std::uint64_t hostContext) const override { return property_->GetValue(hostContext); }
    CZtVariant GetTag(std::uint64_t hostContext) const override { return property_->GetTag(hostContext); }

private:
    const OdRxClass* class_;
    OdDbHandle handle_;
    PropertyPtr property_;
};

class SysVarChanged final : public CZtSysVarChanged, public RecordedEvent
{
public:
    SysVarChanged(CZtString name, OdResBufPtr value) : name_(std::move(name)), value_(std::move(value)) {}

    const CZtString& GetVariableName() const override { return name_; }
    void GetVariableValue(OdResBufPtr& value) const override { value = value_; }

private:
    CZtString name_;
    OdResBufPtr value_;
};

class UserSelection final : public CZtUserSelection, public RecordedEvent
{
public:
    UserSelection(std::vector<OdDbHandle> handles, std::vector<const OdRxClass*> classes)
        : handles_(std::move(handles)), classes_(std::move(classes))
    {
    }

    const std::vector<OdDbHandle>& GetSelectedHandles() const override { return handles_; }
    const std::vector<const OdRxClass*>& GetSelectedClasses() const override { return classes_; }

private:
    std::vector<OdDbHandle> handles_;
    std::vector<const OdRxClass*> classes_;
};

class CustomAction final : public CZtCustomAction, public RecordedEvent
{
public:
    CustomAction(std::int32_t id, std::vector<CZtCustomActionData> data) : id_(id), data_(std::move(data)) {}

    std::int32_t GetActionId() const override { return id_; }
    std::int32_t GetDataCount() const override { return static_cast<std::int32_t>(data_.size()); }
    const CZtCustomActionData& GetData(std::int32_t index) const override;

    // Makes the ids null of objects that the drawing doesn't have.
    void resolve(Drawing& drawing);

private:
    std::int32_t id_;
    std::vector<CZtCustomActionData> data_;
};

// An event of a class that the module doesn't know.
class OtherEvent final : public OdRxObject, public RecordedEvent
{
public:
    explicit OtherEvent(const QString& className) : class_(className, OdRxObject::desc()) {}
    const OdRxClass* isA() const override { return &class_; }

private:
    OdRxClass class_;
};
} // namespace kv
