// The table of keys by class. Each key gives its default, whose type is the type of its values.
#include "embedded/object_keys.h"

#include "host/db/blocks.h"
#include "host/db/dimensions.h"
#include "host/db/polylines.h"
#include "host/db/text.h"

#include <unordered_map>

namespace kv
{
namespace
{
ObjectKey flag(std::string_view name)
{
    return {name, false};
}

ObjectKey integer(std::string_view name, std::int32_t byDefault = 0)
{
    return {name, byDefault};
}

ObjectKey oneOf(std::string_view name, std::int32_t least, std::int32_t most, std::int32_t byDefault)
{
    return {name, byDefault, KeyForm::Range, least, most};
}

ObjectKey number(std::string_view name, double byDefault = 0.0)
{
    return {name, byDefault};
}

ObjectKey text(std::string_view name, const QString& byDefault = {})
{
    return {name, byDefault};
}

ObjectKey point(std::string_view name, const OdGePoint3d& byDefault = {})
{
    return {name, byDefault};
}

ObjectKey color(std::string_view name)
{
    return {name, OdCmColor::byLayer()};
}

ObjectKey handle(std::string_view name)
{
    return {name, OdDbHandle()};
}

template <class List>
ObjectKey list(std::string_view name)
{
    return {name, List()};
}

KeyList withDimensionKeys(KeyList keys)
{
    keys.push_back(integer("fit", 3));
    keys.push_back(flag("textInsideAlign"));
    keys.push_back(flag("textOutsideAlign"));
    keys.push_back(number("extLineFixLen"));
    return keys;
}

using KeyTable = std::unordered_map<const OdRxClass*, KeyList>;

void addSymbols(KeyTable& table)
{
    const KeyList onlyName = {text("name")};
    table[OdDbTextStyleTableRecord::desc()] = {text("name"), flag("isShapeFile"), text("fileName")};
    table[OdDbLayerTableRecord::desc()] = onlyName;
    table[OdDbLinetypeTableRecord::desc()] = {text("name"), text("description"), list<NumberList>("pattern")};
    table[OdDbDimStyleTableRecord::desc()] = onlyName;
    table[OdDbMlineStyle::desc()] = onlyName;
    table[OdDbTableStyle::desc()] = onlyName;
    table[OdDbViewTableRecord::desc()] = {text("name"), flag("isPaperspaceView")};
    table[OdDbViewportTableRecord::desc()] = onlyName;
    table[OdDbGroup::desc()] = {text("name"), flag("isAnonymous"), text("description"), list<HandleList>("entities")};
    table[OdDbLayout::desc()] = {text("name"), flag("modelType"), text("printStyleSheet")};
}

void addBlocks(KeyTable& table)
{
    table[OdDbBlockTableRecord::desc()] = {
        text("name"),
        point("origin"),
        text("comments"),
        flag("isLayout"),
        text("pathName"),
        flag("isFromExternalReference"),
        flag("explodable"),
        list<HandleList>("entities"),
        integer("blockScaling"),
        integer("insertUnits"),
    };
    table[OdDbBlockReference::desc()] = {
        handle("block"),
        point("position"),
        point("scale", {1.0, 1.0, 1.0}),
        number("rotation"),
        list<HandleList>("attributes"),
    };
    table[OdDbRasterImage::desc()] = {text("path"), point("position"), number("scale", 1.0), number("rotation")};
    table[OdDbShape::desc()] = {text("name"), point("position"), number("size"), number("rotation")};
    table[OdDbTable::desc()] = {list<TextRows>("cells"), list<NumberList>("columnWidths"),
                                list<NumberList>("rowHeights"), point("position")};
    table[OdDbViewport::desc()] = {point("center"), number("width"), number("height"), flag("isNonRectClipped")};
}

void addTexts(KeyTable& table)
{
    table[OdDbAttributeDefinition::desc()] = {
        text("textString"), text("tag"),        text("prompt"), point("position"),    point("alignmentPoint"),
        number("height"),   number("rotation"), text("style"),  text("justify"),      flag("constant"),
        flag("invisible"),  flag("preset"),     flag("verify"), flag("lockPosition"),
    };
    table[OdDbText::desc()] = {text("textString"), point("position"), point("alignmentPoint"), number("height"),
                               number("rotation")};
    table[OdDbMText::desc()] = {
        text("contents"),
        point("location"),
        number("width"),
        number("textHeight"),
        number("actualHeight"),
        number("rotation"),
        oneOf("attachment", 1, 9, 1),
        number("lineSpacingFactor", 1.0),
        handle("textStyle"),
        flag("backgroundFillOn"),
        flag("useBackgroundColorOn"),
        color("backgroundFillColor"),
        number("backgroundScaleFactor", 1.5),
    };
    table[OdDbLeader::desc()] = {oneOf("annoType", 0, 3, 3), handle("annotation"), number("annoWidth"),
                                 list<PointList>("vertices")};
    table[OdDbFcf::desc()] = {text("text"), point("location")};
}

void addCurves(KeyTable& table)
{
    table[OdDbLine::desc()] = {point("startPoint"), point("endPoint")};
    table[OdDbCircle::desc()] = {point("center"), number("radius", 1.0)};
    table[OdDbArc::desc()] = {point("center"), number("radius", 1.0), number("startAngle"), number("endAngle")};
    table[OdDbEllipse::desc()] = {point("center"), point("majorAxis"), number("minorRadius", 1.0), number("startAngle"),
                                  number("endAngle")};
    table[OdDbPoint::desc()] = {point("position")};
    table[OdDbRay::desc()] = {point("basePoint"), point("secondPoint")};
    table[OdDbXline::desc()] = {point("basePoint"), point("secondPoint")};
    const KeyList polyline = {list<PointList>("vertices"), flag("closed"), list<NumberList>("bulges")};
    table[OdDbPolyline::desc()] = polyline;
    table[OdDbPolyline::desc()].push_back(handle("layer"));
    table[OdDb2dPolyline::desc()] = polyline;
    table[OdDb3dPolyline::desc()] = polyline;
    table[OdDbSpline::desc()] = {list<PointList>("fitPoints"), flag("closed"), point("startTangent"),
                                 point("endTangent"), number("fitTolerance")};
    table[OdDbSolid::desc()] = {list<PointList>("vertices")};
    table[OdDbTrace::desc()] = {list<PointList>("vertices")};
    table[OdDbFace::desc()] = {list<PointList>("vertices"), {"edges", EdgeFlags{true, true, true, true}}};
    table[OdDbMline::desc()] = {list<PointList>("vertices"), flag("closedMline"), oneOf("justification", 0, 2, 0),
                                number("scale", 1.0), text("style")};
    table[OdDbPolygonMesh::desc()] = {list<PointList>("vertices"), integer("mSize"), integer("nSize"),
                                      flag("isMClosed"), flag("isNClosed")};
    table[OdDbPolyFaceMesh::desc()] = {list<PointList>("vertices"), list<FaceList>("faces")};
}

void addDimensions(KeyTable& table)
{
    table[OdDbAlignedDimension::desc()] =
        withDimensionKeys({point("xLine1Point"), point("xLine2Point"), point("dimLinePoint")});
    table[OdDbRotatedDimension::desc()] =
        withDimensionKeys({point("xLine1Point"), point("xLine2Point"), point("dimLinePoint"), number("rotation")});
    table[OdDb2LineAngularDimension::desc()] = withDimensionKeys(
        {point("xLine1Start"), point("xLine1End"), point("xLine2Start"), point("xLine2End"), point("arcPoint")});
    table[OdDb3PointAngularDimension::desc()] =
        withDimensionKeys({point("centerPoint"), point("xLine1Point"), point("xLine2Point"), point("arcPoint")});
    table[OdDbArcDimension::desc()] = withDimensionKeys(
        {point("xLine1Point"), point("xLine2Point"), point("centerPoint"), flag("isPartial"), point("arcPoint")});
    table[OdDbOrdinateDimension::desc()] =
        withDimensionKeys({point("definingPoint"), point("leaderEndPoint"), flag("isUsingXAxis"), point("origin")});
    table[OdDbDiametricDimension::desc()] = withDimensionKeys({point("chordPoint")});
    table[OdDbRadialDimension::desc()] = withDimensionKeys({point("chordPoint")});
    table[OdDbRadialDimensionLarge::desc()] =
        withDimensionKeys({point("overrideCenter"), point("jogPoint"), point("chordPoint")});
}
} // namespace

const KeyList& KeysOfClass(const OdRxClass* objectClass)
{
    static const KeyTable table = []
    {
        KeyTable keys;
        addSymbols(keys);
        addBlocks(keys);
        addTexts(keys);
        addCurves(keys);
        addDimensions(keys);
        return keys;
    }();
    static const KeyList none;
    const auto found = table.find(objectClass);
    return found != table.end() ? found->second : none;
}

const KeyList& KeysOfAllObjects()
{
    static const KeyList keys = {
        flag("erased"),
        list<HandleList>("reactors"),
        list<ExtendedData>("xdata"),
        {"associations", HandleList(), KeyForm::HandleOrNull},
    };
    return keys;
}

const KeyList& KeysOfDrawing()
{
    static const KeyList keys = {
        text("currentLayout", QStringLiteral("Model")),
        text("currentLayer"),
        number("filletRadius"),
        number("chamferFirstDistance"),
        number("chamferSecondDistance"),
        number("chamferLength"),
        number("chamferAngle"),
        number("thickness"),
        integer("insertUnits"),
        text("currentLineStyle", QStringLiteral("ByLayer")),
    };
    return keys;
}
} // namespace kv
