// The walk over the journal: what all languages share. A language overrides the Write... operations and nothing else.
#pragma once

#include "core/converter.h"
#include "core/entity_array.h"
#include "core/known_objects.h"
#include "host/db/object_id.h"

#include <QtCore/QStringList>

#include <memory>

class CZtConverterKVAPIObject;
class MacroWriter;
enum class PlainPointerMark;

namespace kv
{
struct Option;
}

// The counters of one conversion, shared with the object logic.
struct ConversionCounters
{
    std::int32_t IndentLevel = 0;       // nesting of the generated code, in steps of four blanks
    std::int32_t LocalNameSequence = 0; // last number given to a local name; starts anew in each command
    std::int32_t ObjectSequence = 0;    // last number given to an object of the journal; only grows
};

class CZtConverterKVAPIImpl : public CZtConverterKVAPI
{
public:
    ~CZtConverterKVAPIImpl() override;
    CZtConverterKVAPIImpl(const CZtConverterKVAPIImpl&) = delete;
    CZtConverterKVAPIImpl& operator=(const CZtConverterKVAPIImpl&) = delete;

    // CZtConverterKVAPI
    [[nodiscard]] ResultCode Convert(const CZtString& outputPath, const CZtJournal& journal) override;
    [[nodiscard]] std::uint64_t GetHostContext() const override { return hostContext_; }
    void SetHostContext(std::uint64_t context) override { hostContext_ = context; }

    // Shared with the object logic.
    [[nodiscard]] ConversionCounters& Counters() { return counters_; }
    [[nodiscard]] const ConversionCounters& Counters() const { return counters_; }
    [[nodiscard]] const ObjectPair* FindKnownObject(OdDbHandle handle) const { return knownObjects_.Find(handle); }

    // Gives an object the next number and makes it known; the old number of a known handle is forgotten.
    ObjectPair RegisterObject(OdDbHandle handle, const OdRxClass* objectClass);

    // The object logic of the same language. Throws OdError 20 when there is none.
    [[nodiscard]] CZtConverterKVAPIObject& ObjectConverter() const;

    // The name and the type constant of a class in the API: the bare class word, in the C++ API its pointer type. A
    // class without a row gives -5001 and leaves both untouched.
    [[nodiscard]] static ResultCode GetObjectTypeNames(const OdRxClass* objectClass, QString& name, QString& type);

    // The option that a system variable stands for, in the document or in the application. Gives -5001, an empty
    // constant and the kind -1 when there is none.
    [[nodiscard]] static ResultCode FindCommandOption(const QString& variable, QString& constant, int& kind);
    [[nodiscard]] static ResultCode FindApplicationOption(const QString& variable, QString& constant, int& kind);

    // The leader that a note belongs to; null when it has none or is gone. Throws OdError_NotThatKindOfClass when the
    // handle is another object's.
    [[nodiscard]] static OdDbObjectId FindAttachedLeader(OdDbHandle handle);

    // The variables of the entities of an action's data: with their types and handles, alone, or for one entity. The
    // class is the one given with the handle; the name of an entity unknown to the macro is a null text.
    [[nodiscard]] EntityArray ResolveEntityNames(const CZtCustomActionData& handleData,
                                                 const CZtCustomActionData& classData) const;
    [[nodiscard]] QStringList ResolveEntityVariableNames(const CZtCustomActionData& handleData,
                                                         const CZtCustomActionData& classData) const;
    [[nodiscard]] QString ResolveObjectVariableName(OdDbHandle handle, const OdRxClass* objectClass) const;

    // Writes a text as UTF-8 to a file, with a byte order mark on demand; false when that failed.
    [[nodiscard]] static bool WriteTextFile(const QString& path, const QString& text, bool byteOrderMark);

    // Routes one event to the operation that translates it. The text comes in empty or prefilled with the variable
    // that a custom action is to assign, and goes out as the generated statements. -5001 for an unknown event.
    [[nodiscard]] ResultCode ConvertEvent(OdRxObject* event, QString& text);

    // The text operations.
#define OPERATION(result, name, parameters) [[nodiscard]] virtual result name parameters = 0;
#include "core/write_operations.def"
#undef OPERATION

protected:
    explicit CZtConverterKVAPIImpl(std::int32_t recordingMode);

    // Takes the object logic of the language over; called once by the language's constructor.
    void SetObjectConverter(std::unique_ptr<CZtConverterKVAPIObject> objects);

private:
    // The walk.
    [[nodiscard]] ResultCode Walk(MacroWriter& writer, const CZtJournal& journal);
    ResultCode ConvertUserCommand(MacroWriter& writer, const CZtUserCommand& command);
    [[nodiscard]] std::vector<ObjectPair> CollectCommandObjects(const CZtJournal& childEvents);
    [[nodiscard]] ResultCode ConvertCustomAction(const CZtCustomAction& action, QString& text);
    void FetchChangedLayer(const CZtObjectModified& event, QString& text);
    [[nodiscard]] QString DeclareVariable(const ObjectPair& object);

    // The entities of parallel lists of handles and classes.
    [[nodiscard]] EntityArray NameEntities(const std::vector<OdDbHandle>& handles,
                                           const std::vector<const OdRxClass*>& classes, PlainPointerMark mark) const;

    // Prompts and options.
    [[nodiscard]] ResultCode ConvertUserInteraction(const CZtUserInteraction& event, QString& text);
    [[nodiscard]] ResultCode ConvertSysVarChanged(const CZtSysVarChanged& event, QString& text);
    [[nodiscard]] ResultCode SetCommandOption(const QString& variable, const kv::Option& option, const OdResBuf& value,
                                              QString& text);
    [[nodiscard]] ResultCode SetApplicationOption(const kv::Option& option, const OdResBuf& value, QString& text);
    [[nodiscard]] ResultCode ConvertOption(const CZtCustomAction& action, QString& text);

    // Selections.
    [[nodiscard]] ResultCode ConvertUserSelection(const CZtUserSelection& event, QString& text);

    // The handler of a custom action; null for one whose family isn't translated yet.
    using ActionHandler = ResultCode (CZtConverterKVAPIImpl::*)(const CZtCustomAction&, QString&);
    [[nodiscard]] static ActionHandler HandlerOf(std::int32_t actionId);

    ConversionCounters counters_;
    std::int32_t recordingMode_;
    std::unique_ptr<CZtConverterKVAPIObject> objectConverter_;
    KnownObjects knownObjects_;
    std::uint64_t hostContext_ = 0;
};
