// The walk over the journal: what all languages share. A language overrides the Write... operations and nothing else.
#pragma once

#include "core/converter.h"
#include "core/entity_array.h"
#include "core/known_objects.h"
#include "core/selection_method.h"
#include "host/db/color.h"
#include "host/db/object_id.h"
#include "host/ge/point2d.h"

#include <QtCore/QStringList>

#include <memory>
#include <optional>

class ActionData;
class CZtConverterKVAPIObject;
class MacroWriter;
struct NamedViewAction;
struct TrimSearch;
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

// How a hatch fills its boundary; the angle is in radians.
struct HatchPattern
{
    QString name;
    double scale = 1.0;
    double angle = 0.0;
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

    // The type of a class's variables: its bare word in the API, in the C++ API its pointer type; null when the class
    // has no row. And together with its type constant: a class without a row gives -5001 and leaves both untouched.
    [[nodiscard]] static const QString* VariableType(const OdRxClass* objectClass);
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

    // The options that were in force while recording, as the operations that depend on them write them.
    [[nodiscard]] QString SetEdgeMode();
    [[nodiscard]] QString SetFilletOptions();
    [[nodiscard]] QString SetChamferOptions();

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

    // Selections, groups, erasing.
    [[nodiscard]] ResultCode ConvertUserSelection(const CZtUserSelection& event, QString& text);
    [[nodiscard]] ResultCode ConvertSelectByMethods(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertSelectionFilter(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertAddToGroup(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertRemoveFromGroup(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertErase(const CZtCustomAction& action, QString& text);
    using GroupWriter = QString (CZtConverterKVAPIImpl::*)(const QStringList&, const QString&);
    [[nodiscard]] ResultCode ConvertGroup(const CZtCustomAction& action, std::int32_t id, GroupWriter write,
                                          QString& text);
    [[nodiscard]] QString GroupVariable(const QString& name);

    // Modify commands.
    [[nodiscard]] ResultCode ConvertMirror(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertStretch(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertCopy(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertMove(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertRotate(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertScale(const CZtCustomAction& action, QString& text);

    // Trim, extend, fillet, chamfer.
    [[nodiscard]] ResultCode ConvertTrim(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertExtend(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertFillet(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertChamfer(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertCorner(const CZtCustomAction& action, bool isFillet, QString& text);

    // Polylines.
    [[nodiscard]] ResultCode ConvertPolylineEdit(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertPolyline3DVertex(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertJoin(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertPolyline2DBlock(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertClipBoundary(const CZtCustomAction& action, QString& text);
    [[nodiscard]] QString EditPolylines(const QString& keyword, const ActionData& data);
    [[nodiscard]] QString EditPolyline(const QString& keyword, const ActionData& data);
    [[nodiscard]] bool RegisterOpenable(OdDbHandle handle, const OdRxClass* objectClass, QString& variable);
    [[nodiscard]] static bool IsBent(double value);

    // Sheets, views, viewports.
    [[nodiscard]] ResultCode ConvertSheets(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertBackground(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertBackgroundOptions(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertZoom(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertActivateViewport(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertPolygonalViewport(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertViewTiles(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertPrintStyle(const CZtCustomAction& action, QString& text);
    [[nodiscard]] std::optional<QString> ConvertNamedView(const NamedViewAction& view, const QString& variable,
                                                          const ActionData& data);
    [[nodiscard]] std::optional<QString> SetBackground(const QString& variable, const ActionData& data);

    // Custom coordinate systems.
    [[nodiscard]] ResultCode ConvertCCS(const CZtCustomAction& action, QString& text);
    [[nodiscard]] QString SwitchCCS(const ActionData& data);
    [[nodiscard]] QString NameOrTurnCCS(const ActionData& data);
    [[nodiscard]] QString PlaceCCS(const ActionData& data);

    // File locations, colours of the window, attributes.
    [[nodiscard]] ResultCode ConvertInterfaceFileLocation(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertSystemFileLocation(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertDrawingSupportFileLocation(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertElementColor(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertAttributeValue(const CZtCustomAction& action, QString& text);
    using FilesWriter = QString (CZtConverterKVAPIImpl::*)(QString&);
    [[nodiscard]] ResultCode ConvertFileLocation(const CZtCustomAction& action, const QString& property,
                                                 FilesWriter writeHead, QString& text);

    // Hatches, embedded objects, regions.
    [[nodiscard]] ResultCode ConvertHatch(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertEmbeddedObject(const CZtCustomAction& action, QString& text);
    [[nodiscard]] ResultCode ConvertRegion(const CZtCustomAction& action, QString& text);
    [[nodiscard]] QString HatchByPolyline(const QString& target, const OdArray<double>& bulges,
                                          const OdArray<OdGePoint2d>& points, const HatchPattern& pattern, bool erase);

    // The handler of a custom action; null for a number that has none.
    using ActionHandler = ResultCode (CZtConverterKVAPIImpl::*)(const CZtCustomAction&, QString&);
    [[nodiscard]] static ActionHandler HandlerOf(std::int32_t actionId);

    ConversionCounters counters_;
    std::int32_t recordingMode_;
    std::unique_ptr<CZtConverterKVAPIObject> objectConverter_;
    KnownObjects knownObjects_;
    std::uint64_t hostContext_ = 0;
};
