// The one router of events and of custom actions.
#include "core/converter_impl.h"
#include "core/event_cast.h"
#include "core/type_table.h"
#include "core/variable_names.h"
#include "objects/object_converter.h"

namespace
{
// In this mode prompt answers, selections and all system variables are converted.
constexpr std::int32_t RecordsEverything = 1;
} // namespace

ResultCode CZtConverterKVAPIImpl::ConvertEvent(OdRxObject* event, QString& text)
{
    if (event == nullptr)
    {
        return ResultNormal;
    }
    if (const auto* interaction = kv::EventAs<CZtUserInteraction>(event))
    {
        return recordingMode_ == RecordsEverything ? ConvertUserInteraction(*interaction, text) : ResultNormal;
    }
    if (const auto* added = kv::EventAs<CZtObjectAdded>(event))
    {
        return ObjectConverter().ConvertObjectAdded(*added, text);
    }
    if (const auto* modified = kv::EventAs<CZtObjectModified>(event))
    {
        FetchChangedLayer(*modified, text);
        return ObjectConverter().ConvertObjectModified(*modified, text);
    }
    if (const auto* variable = kv::EventAs<CZtSysVarChanged>(event))
    {
        const bool isViewport = variable->GetVariableName().compareNoCase("CVPORT") == 0;
        return recordingMode_ == RecordsEverything || isViewport ? ConvertSysVarChanged(*variable, text) : ResultNormal;
    }
    if (auto* changed = kv::EventAs<CZtPropertyChanged>(event))
    {
        return ObjectConverter().ConvertPropertyChanged(*changed, text);
    }
    if (const auto* selection = kv::EventAs<CZtUserSelection>(event))
    {
        return recordingMode_ == RecordsEverything ? ConvertUserSelection(*selection, text) : ResultNormal;
    }
    if (const auto* action = kv::EventAs<CZtCustomAction>(event))
    {
        return ConvertCustomAction(*action, text);
    }
    return ResultError;
}

// A layer that the macro changes but did not create gets its variable at its first change.
void CZtConverterKVAPIImpl::FetchChangedLayer(const CZtObjectModified& event, QString& text)
{
    const OdRxClass* objectClass = event.GetObjectClass();
    if (objectClass == nullptr || !kv::FactsOf(objectClass).isSupported ||
        objectClass->name().compare(QLatin1String("AcDbLayerTableRecord"), Qt::CaseInsensitive) != 0 ||
        FindKnownObject(event.GetObjectHandle()) != nullptr)
    {
        return;
    }
    const ObjectPair layer = RegisterObject(event.GetObjectHandle(), objectClass);
    QString name;
    QString type;
    if (GetObjectTypeNames(objectClass, name, type) == ResultNormal)
    {
        text += WriteGetLayer(VariableName(name, layer.number, PlainPointerMark::Kept));
    }
}

CZtConverterKVAPIImpl::ActionHandler CZtConverterKVAPIImpl::HandlerOf(std::int32_t actionId)
{
    using Walk = CZtConverterKVAPIImpl;
    // Indexed by the number of the action; the twelve numbers of element colours share their handler.
    static constexpr std::array<ActionHandler, 49> handlers = {
        &Walk::ConvertMirror,
        &Walk::ConvertStretch,
        &Walk::ConvertCopy,
        &Walk::ConvertMove,
        &Walk::ConvertRotate,
        &Walk::ConvertScale,
        &Walk::ConvertTrim,
        &Walk::ConvertExtend,
        &Walk::ConvertFillet,
        &Walk::ConvertChamfer,
        &Walk::ConvertSelectByMethods,
        &Walk::ConvertSelectionFilter,
        &Walk::ConvertCCS,
        &Walk::ConvertSheets,
        &Walk::ConvertBackground,
        &Walk::ConvertEmbeddedObject,
        &Walk::ConvertPolyline2DBlock,
        &Walk::ConvertErase,
        &Walk::ConvertHatch,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertElementColor,
        &Walk::ConvertOption,
        &Walk::ConvertInterfaceFileLocation,
        &Walk::ConvertSystemFileLocation,
        &Walk::ConvertDrawingSupportFileLocation,
        &Walk::ConvertAddToGroup,
        &Walk::ConvertRemoveFromGroup,
        &Walk::ConvertAttributeValue,
        &Walk::ConvertPolylineEdit,
        &Walk::ConvertBackgroundOptions,
        &Walk::ConvertPolyline3DVertex,
        &Walk::ConvertZoom,
        &Walk::ConvertRegion,
        &Walk::ConvertActivateViewport,
        &Walk::ConvertPolygonalViewport,
        &Walk::ConvertPrintStyle,
        &Walk::ConvertClipBoundary,
        &Walk::ConvertViewTiles,
        &Walk::ConvertJoin,
    };
    const bool isKnown = actionId >= 0 && actionId < static_cast<std::int32_t>(handlers.size());
    return isKnown ? handlers.at(static_cast<std::size_t>(actionId)) : nullptr;
}

ResultCode CZtConverterKVAPIImpl::ConvertCustomAction(const CZtCustomAction& action, QString& text)
{
    const ActionHandler handler = HandlerOf(action.GetActionId());
    return handler != nullptr ? (this->*handler)(action, text) : ResultError;
}
