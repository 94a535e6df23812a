// The database classes that a macro can speak of, and their names in the automation API.
#include "core/type_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <QHash>
#include <QSet>
#include <unordered_map>

namespace kv
{
namespace
{
struct TypeRow
{
    const char* className;
    const char* word;
    const char* constant;
};

// "AcDbMText" is a Note with the type constant of a simple note: the API's own choice.
constexpr TypeRow typeRows[] = {
    {"AcDbLine", "Line", "kvLineType"},
    {"AcDbCircle", "Circle", "kvCircleType"},
    {"AcDbPoint", "Point", "kvPointType"},
    {"AcDbRay", "Ray", "kvRayType"},
    {"AcDbArc", "CircleArc", "kvCircleArcType"},
    {"AcDbEllipse", "EllipseArc", "kvEllipseArcType"},
    {"AcDbXline", "InfiniteLine", "kvInfiniteLineType"},
    {"AcDbTextStyleTableRecord", "TextStyle", "kvTextStyleType"},
    {"AcDbAttributeDefinition", "AttributeDefinition", "kvAttributeDefinitionType"},
    {"AcDbText", "SimpleNote", "kvSimpleNoteType"},
    {"AcDbMText", "Note", "kvSimpleNoteType"},
    {"AcDbBlockReference", "BlockInstance", "kvBlockInstanceType"},
    {"AcDbRasterImage", "ReferenceImage", "kvReferenceImageType"},
    {"AcDbMline", "RichLine", "kvRichLineType"},
    {"AcDbFcf", "Tolerance", "kvToleranceType"},
    {"AcDbTable", "Table", "kvTableType"},
    {"AcDbRegion", "Region", "kvRegionType"},
    {"AcDbShape", "Shape", "kvShapeType"},
    {"AcDbFace", "Face", "kvFaceType"},
    {"AcDbLeader", "Leader", "kvLeaderType"},
    {"AcDb3dPolyline", "PolyLine3D", "kvPolyLine3DType"},
    {"AcDbPolygonMesh", "PolygonMesh", "kvPolygonMeshType"},
    {"AcDbSolid", "Solid", "kvSolidType"},
    {"AcDbSpline", "Spline", "kvSplineType"},
    {"AcDbOle2Frame", "EmbeddedObject", "kvEmbeddedObjectType"},
    {"AcDbPolyline", "PolyLine", "kvPolyLineType"},
    {"AcDb2dPolyline", "PolyLine", "kvPolyLineType"},
    {"AcDbHatch", "Hatch", "kvHatchType"},
    {"AcDbPolyFaceMesh", "PolyFaceMesh", "kvPolyFaceMeshType"},
    {"AcDbBlockTableRecord", "BlockDefinition", "kvBlockDefinitionType"},
    {"AcDbGroup", "Group", "kvGroupType"},
    {"AcDbViewTableRecord", "ModelNamedView", "kvModelNamedViewType"},
    {"AcDbAlignedDimension", "AlignedDimension", "kvAlignedDimensionType"},
    {"AcDb2LineAngularDimension", "AngularDimension", "kvAngularDimensionType"},
    {"AcDb3PointAngularDimension", "AngularDimension", "kvAngularDimensionType"},
    {"AcDbArcDimension", "ArcLengthDimension", "kvArcLengthDimensionType"},
    {"AcDbDiametricDimension", "DiameterDimension", "kvDiameterDimensionType"},
    {"AcDbOrdinateDimension", "OrdinateDimension", "kvOrdinateDimensionType"},
    {"AcDbRadialDimension", "RadialDimension", "kvRadialDimensionType"},
    {"AcDbRadialDimensionLarge", "JoggedDimension", "kvJoggedDimensionType"},
    {"AcDbRotatedDimension", "RotatedDimension", "kvRotatedDimensionType"},
    {"AcDbTableStyle", "TableStyle", "kvTableStyleType"},
    {"AcDbDimStyleTableRecord", "DimensionStyle", "kvDimensionStyleType"},
    {"AcDbLinetypeTableRecord", "LineStyle", "kvLineStyleType"},
    {"AcDbMlineStyle", "RichLineStyle", "kvRichLineStyleType"},
    {"AcDbViewport", "Viewport", "kvViewportType"},
    {"AcDbTrace", "Trace", "kvTraceType"},
    {"AcDbLayerTableRecord", "Layer", "kvLayerType"},
    {"AcDbLayout", "Layout", "kvLayoutType"},
    {"AcDbViewportTableRecord", "ViewTile", "kvViewTileType"},
};

constexpr const char* supportedClasses[] = {
    "AcDbLine",
    "AcDbCircle",
    "AcDbPoint",
    "AcDbRay",
    "AcDbArc",
    "AcDbEllipse",
    "AcDbXline",
    "AcDbTextStyleTableRecord",
    "AcDbAttributeDefinition",
    "AcDbText",
    "AcDbMText",
    "AcDbBlockReference",
    "AcDbRasterImage",
    "AcDbAlignedDimension",
    "AcDb2LineAngularDimension",
    "AcDb3PointAngularDimension",
    "AcDbArcDimension",
    "AcDbDiametricDimension",
    "AcDbOrdinateDimension",
    "AcDbRadialDimension",
    "AcDbRadialDimensionLarge",
    "AcDbRotatedDimension",
    "AcDbMline",
    "AcDbFace",
    "AcDbLeader",
    "AcDb3dPolyline",
    "AcDbPolygonMesh",
    "AcDbSolid",
    "AcDbFcf",
    "AcDbTable",
    "AcDbSpline",
    "AcDbShape",
    "AcDbRegion",
    "AcDbHatch",
    "AcDbPolyline",
    "AcDbOle2Frame",
    "AcDbPolyFaceMesh",
    "AcDbBlockTableRecord",
    "AcDbTableStyle",
    "AcDbDimStyleTableRecord",
    "AcDbMlineStyle",
    "AcDbLinetypeTableRecord",
    "AcDbViewTableRecord",
    "AcDbViewTable",
    "AcDbViewport",
    "AcDbGroup",
    "AcDbTrace",
    "AcDbLayerTableRecord",
    "AcDbLayerTable",
    "AcDbLayout",
    "AcDbViewportTableRecord",
};

// The type of a variable of the C++ API. Two of its classes have no smart pointer.
QString VariableType(QLatin1String word)
{
    const bool isPlain = word == QLatin1String("Region") || word == QLatin1String("ViewTile");
    return (isPlain ? QStringLiteral("kv%1_c*") : QStringLiteral("kv%1_ptr")).arg(word);
}

using TypeArray = std::array<ObjectType, std::size(typeRows)>;

const TypeArray& Types()
{
    static const TypeArray types = []
    {
        TypeArray made;
        std::transform(
            std::begin(typeRows), std::end(typeRows), made.begin(),
            [](const TypeRow& row)
            {
                const QLatin1String word(row.word);
                return ObjectType{QLatin1String(row.className), word, QLatin1String(row.constant), VariableType(word)};
            });
        return made;
    }();
    return types;
}
} // namespace

std::span<const ObjectType> ObjectTypes()
{
    return Types();
}

const ObjectType* FindObjectType(const QString& className)
{
    static const QHash<QString, const ObjectType*> rows = []
    {
        QHash<QString, const ObjectType*> made;
        for (const ObjectType& type : Types())
        {
            made.insert(type.className, &type);
        }
        return made;
    }();
    return rows.value(className, nullptr);
}

bool IsSupportedClass(const QString& className)
{
    static const QSet<QString> classes(std::begin(supportedClasses), std::end(supportedClasses));
    return classes.contains(className);
}

const ClassFacts& FactsOf(const OdRxClass* objectClass)
{
    static std::unordered_map<const OdRxClass*, ClassFacts> known = {{nullptr, {}}};
    const auto [facts, isNew] = known.try_emplace(objectClass);
    if (isNew)
    {
        facts->second = {FindObjectType(objectClass->name()), IsSupportedClass(objectClass->name())};
    }
    return facts->second;
}
} // namespace kv
