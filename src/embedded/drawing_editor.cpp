// Changes of the drawing in memory.
#include "embedded/drawing_editor.h"

#include "embedded/object_keys.h"
#include "host/db/blocks.h"
#include "host/db/polylines.h"

#include <algorithm>

namespace kv
{
namespace
{
// The values of a new object, given one by one by their keys.
class NewValues
{
public:
    explicit NewValues(const OdRxClass* objectClass) : keys_(KeysOfClass(objectClass)), values_(keys_) {}

    NewValues& with(std::string_view key, ObjectValue value)
    {
        values_.set(*FindKey(keys_, key), std::move(value));
        return *this;
    }
    [[nodiscard]] ObjectValues take() { return std::move(values_); }

private:
    const KeyList& keys_;
    ObjectValues values_;
};

void give(ObjectValues& values, const OdRxClass* objectClass, std::string_view key, ObjectValue value)
{
    values.set(*FindKey(KeysOfClass(objectClass), key), std::move(value));
}
} // namespace

DrawingEditor::DrawingEditor(Drawing& drawing) : drawing_(drawing)
{
    for (const OdDbHandle handle : drawing_.described())
    {
        index(handle);
    }
}

void DrawingEditor::index(OdDbHandle handle)
{
    const ObjectValues& values = *drawing_.valuesOf(handle);
    for (const ApplicationData& data : values.get<ExtendedData>("xdata"))
    {
        registerApplication(data.application);
    }
    const OdRxClass* objectClass = drawing_.classOf(handle);
    Names* const names = objectClass == OdDbLinetypeTableRecord::desc() ? &linetypes_
                         : objectClass == OdDbLayerTableRecord::desc()  ? &layers_
                                                                        : nullptr;
    if (names != nullptr && !values.get<bool>("erased"))
    {
        names->insert(values.get<QString>("name").toCaseFolded(), drawing_.getOdDbObjectId(handle));
    }
}

OdDbObjectId DrawingEditor::standardLinetype(const QString& name)
{
    OdDbObjectId& id = linetypes_[name.toCaseFolded()];
    if (id.isNull())
    {
        const OdRxClass* objectClass = OdDbLinetypeTableRecord::desc();
        id = drawing_.appendUnsaved(objectClass, NewValues(objectClass).with("name", name).take());
    }
    return id;
}

OdDbObjectId DrawingEditor::getLinetypeId(const OdString& name)
{
    getLinetypeContinuousId();
    getLinetypeByLayerId();
    getLinetypeByBlockId();
    return linetypes_.value(name.toCaseFolded());
}

// The journal may name a style that it doesn't describe.
OdDbObjectId DrawingEditor::currentLinetypeId()
{
    return standardLinetype(drawing_.values().get<QString>("currentLineStyle"));
}

void DrawingEditor::setCurrentLinetype(const OdDbObjectId& linetype)
{
    drawing_.changeValue("currentLineStyle", drawing_.valuesOf(linetype.getHandle())->get<QString>("name"));
}

void DrawingEditor::loadLinetype(const CZtLinetypeDefinition& definition)
{
    const OdRxClass* objectClass = OdDbLinetypeTableRecord::desc();
    OdDbObjectId& id = linetypes_[definition.name.toCaseFolded()];
    if (id.isNull() || !drawing_.describedObject(id.getHandle()))
    {
        id = drawing_.append(objectClass, NewValues(objectClass).with("name", definition.name).take());
    }
    ObjectValues& values = *drawing_.change(id.getHandle());
    give(values, objectClass, "description", definition.description);
    give(values, objectClass, "pattern", definition.pattern);
}

OdDbObjectId DrawingEditor::makeLayer(const OdString& name)
{
    OdDbObjectId& id = layers_[name.toCaseFolded()];
    if (id.isNull())
    {
        const OdRxClass* objectClass = OdDbLayerTableRecord::desc();
        id = drawing_.append(objectClass, NewValues(objectClass).with("name", name).take());
    }
    return id;
}

OdDbObjectId DrawingEditor::appendClosedPolyline(const std::vector<OdGePoint3d>& vertices, const OdDbObjectId& layer)
{
    const OdRxClass* objectClass = OdDbPolyline::desc();
    const OdDbObjectId id = drawing_.append(
        objectClass,
        NewValues(objectClass).with("vertices", vertices).with("closed", true).with("layer", layer.getHandle()).take());
    appendToCurrentBlock(id);
    return id;
}

// The block of the model or of the sheets, where the journal describes it.
void DrawingEditor::appendToCurrentBlock(const OdDbObjectId& entity)
{
    const auto layout = OdSmartPtr<OdDbLayout>::cast(drawing_.currentLayoutId().openObject());
    const QString name =
        layout && layout->modelType() ? QStringLiteral("*Model_Space") : QStringLiteral("*Paper_Space");
    const OdRxClass* objectClass = OdDbBlockTableRecord::desc();
    const auto& described = drawing_.described();
    const auto block =
        std::find_if(described.begin(), described.end(),
                     [&](OdDbHandle handle)
                     {
                         return drawing_.classOf(handle) == objectClass &&
                                drawing_.valuesOf(handle)->get<QString>("name").compare(name, Qt::CaseInsensitive) == 0;
                     });
    if (block != described.end())
    {
        ObjectValues& values = *drawing_.change(*block);
        HandleList entities = values.get<HandleList>("entities");
        entities.push_back(entity.getHandle());
        give(values, objectClass, "entities", std::move(entities));
    }
}

void DrawingEditor::setXData(const OdDbObjectId& object, const OdArray<OdResBufPtr>& chain)
{
    const QString application = chain[0]->getString();
    ObjectValues* values = hasApplication(application) ? drawing_.change(object.getHandle()) : nullptr;
    if (values == nullptr)
    {
        throw OdError(eNullObjectPointer);
    }
    ExtendedData data = values->get<ExtendedData>("xdata");
    const auto own = std::find_if(data.begin(), data.end(),
                                  [&](const ApplicationData& other)
                                  { return other.application.compare(application, Qt::CaseInsensitive) == 0; });
    ApplicationData changed{application, {chain.begin(), chain.end()}};
    if (own != data.end() && chain.size() > 1)
    {
        *own = std::move(changed);
    }
    else if (own != data.end())
    {
        data.erase(own);
    }
    else if (chain.size() > 1)
    {
        data.push_back(std::move(changed));
    }
    values->set(*FindKey(KeysOfAllObjects(), "xdata"), std::move(data));
}
} // namespace kv
