// Hatches by the entities of their boundary.
#include "core/logic_counters.h"
#include "core/macro_language.h"
#include "host/db/blocks.h"
#include "host/db/polylines.h"
#include "objects/object_converter.h"

namespace
{

// The stem of the local that stands for an entity of a boundary. "hatcEllipse" is the format's.
QString BoundaryStem(const OdRxClass* objectClass)
{
    static const std::unordered_map<const OdRxClass*, const char*> stems = {
        {OdDbCircle::desc(), "hatchCircle_"},
        {OdDbArc::desc(), "hatchArc_"},
        {OdDbEllipse::desc(), "hatcEllipse_"},
        {OdDbLine::desc(), "hatchLine_"},
        {OdDbBlockReference::desc(), "hatchBlkRef_"},
        {OdDbPolygonMesh::desc(), "hatchPolygonMesh_"},
        {OdDbPolyFaceMesh::desc(), "hatchPolyFaceMesh_"},
        {OdDbSolid::desc(), "hatchSolid_"},
        {OdDb3dPolyline::desc(), "hatchPolyLine3D_"},
        {OdDbPolyline::desc(), "hatchPolyline_"},
        {OdDbFace::desc(), "hatchFace_"},
        {OdDbMline::desc(), "hatchRichLine_"},
    };
    const auto found = stems.find(objectClass);
    return found != stems.end() ? QString(QLatin1String(found->second)) : QString();
}

} // namespace

QString CZtConverterKVAPIObject::HatchByEntities(const QString& target, const OdArray<OdDbObjectId>& ids,
                                                 const QString& pattern, double scale, double angle, bool erase)
{
    QString text;
    QStringList names;
    QStringList helpers;
    for (const OdDbObjectId& id : ids)
    {
        const OdDbObjectPtr object = id.openObject();
        const std::int32_t number = LogicCounters::OfProcess().NextBoundaryEntity(CurrentLanguage());
        const QString stem = object ? BoundaryStem(object->isA()) : QString();
        QString typeName;
        if (!stem.isEmpty() && GetObjectTypeName(id.getHandle(), object->isA(), typeName))
        {
            // A helper of its own, which is erased once the hatch has it.
            const QString helper = stem + QString::number(number);
            text += Converter().WriteDeclareVariable(typeName, stem, number);
            text += InsertStored(*object, helper);
            names.append(helper);
            helpers.append(helper);
        }
        else if (const std::optional<QString> known = createdObjects_.FindName(id))
        {
            names.append(*known);
        }
    }
    text += WriteHatchBoundaryEntities(target, names, pattern, scale, angle);
    if (erase)
    {
        for (const QString& helper : helpers)
        {
            text += WriteSetBoolProperty(helper, QStringLiteral("Erased"), true);
        }
    }
    return text;
}
