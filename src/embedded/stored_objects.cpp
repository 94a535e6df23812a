// The getters of the database classes over stored values. A getter more is one line here.
#include "embedded/stored_objects.h"

#include "embedded/drawing.h"
#include "host/db/blocks.h"
#include "host/db/dimensions.h"
#include "host/db/polylines.h"
#include "host/db/text.h"

#include <unordered_map>

namespace kv
{
namespace
{
// Where the values of any object are found.
class HoldsValues
{
public:
    HoldsValues() = default;
    virtual ~HoldsValues() = default;
    HoldsValues(const HoldsValues&) = delete;
    HoldsValues& operator=(const HoldsValues&) = delete;
    [[nodiscard]] virtual ObjectValues& storedValues() = 0;
};

// What all objects have in common, and short names for their values.
template <class Base>
class Stored : public Base, public HoldsValues
{
public:
    Stored(Drawing& drawing, OdDbHandle handle, const OdRxClass* objectClass, ObjectValues values)
        : drawing_(drawing), handle_(handle), class_(objectClass), values_(std::move(values))
    {
    }

    const OdRxClass* isA() const override { return class_; }
    OdDbObjectId objectId() const override { return {&drawing_, handle_}; }
    ObjectValues& storedValues() override { return values_; }
    bool isErased() const override { return flag("erased"); }
    OdArray<OdResBufPtr> xData(const OdString& application) const override
    {
        for (const ApplicationData& data : values_.get<ExtendedData>("xdata"))
        {
            if (data.application == application)
            {
                return OdArray<OdResBufPtr>(data.items);
            }
        }
        return {};
    }
    OdArray<OdDbObjectId> getPersistentReactors() const override
    {
        return drawing_.presentIds(values_.get<HandleList>("reactors"));
    }

protected:
    bool flag(std::string_view key) const { return values_.get<bool>(key); }
    int integer(std::string_view key) const { return values_.get<std::int32_t>(key); }
    double number(std::string_view key) const { return values_.get<double>(key); }
    const QString& text(std::string_view key) const { return values_.get<QString>(key); }
    const OdGePoint3d& point(std::string_view key) const { return values_.get<OdGePoint3d>(key); }
    const OdCmColor& color(std::string_view key) const { return values_.get<OdCmColor>(key); }
    OdArray<OdGePoint3d> points(std::string_view key) const
    {
        return OdArray<OdGePoint3d>(values_.get<PointList>(key));
    }
    OdDbObjectId id(std::string_view key) const { return drawing_.getOdDbObjectId(values_.get<OdDbHandle>(key)); }

    // The item of a list of values; throws OdError_InvalidIndex outside it.
    template <class Item>
    static const Item& at(const std::vector<Item>& items, int index)
    {
        if (index < 0 || static_cast<std::size_t>(index) >= items.size())
        {
            throw OdError_InvalidIndex();
        }
        return items[static_cast<std::size_t>(index)];
    }

    Drawing& drawing_;
    OdDbHandle handle_;
    const OdRxClass* class_;
    ObjectValues values_;
};

template <class Base>
class Symbol : public Stored<Base>
{
public:
    using Stored<Base>::Stored;
    OdString getName() const override { return this->text("name"); }
};

class TextStyle final : public Symbol<OdDbTextStyleTableRecord>
{
public:
    using Symbol::Symbol;
    bool isShapeFile() const override { return flag("isShapeFile"); }
    OdString fileName() const override { return text("fileName"); }
};

class View final : public Symbol<OdDbViewTableRecord>
{
public:
    using Symbol::Symbol;
    bool isPaperspaceView() const override { return flag("isPaperspaceView"); }
};

class Block final : public Symbol<OdDbBlockTableRecord>
{
public:
    using Symbol::Symbol;
    bool isLayout() const override { return flag("isLayout"); }
    bool isFromExternalReference() const override { return flag("isFromExternalReference"); }
    OdString comments() const override { return text("comments"); }
    OdString pathName() const override { return text("pathName"); }
    OdGePoint3d origin() const override { return point("origin"); }
    int blockScaling() const override { return integer("blockScaling"); }
    bool explodable() const override { return flag("explodable"); }
    int blockInsertUnits() const override { return integer("insertUnits"); }
    OdArray<OdDbObjectId> entityIds() const override
    {
        OdArray<OdDbObjectId> ids;
        for (const OdDbObjectId& entity : drawing_.presentIds(values_.get<HandleList>("entities")))
        {
            if (!entity.openObject()->isErased())
            {
                ids.append(entity);
            }
        }
        return ids;
    }
};

class Group final : public Stored<OdDbGroup>
{
public:
    using Stored::Stored;
    OdString getName() const override { return text("name"); }
    bool isAnonymous() const override { return flag("isAnonymous"); }
};

class RichLineStyle final : public Stored<OdDbMlineStyle>
{
public:
    using Stored::Stored;
    OdString name() const override { return text("name"); }
};

class TableStyle final : public Stored<OdDbTableStyle>
{
public:
    using Stored::Stored;
    OdString getName() const override { return text("name"); }
};

class Layout final : public Stored<OdDbLayout>
{
public:
    using Stored::Stored;
    OdString getLayoutName() const override { return text("name"); }
    bool modelType() const override { return flag("modelType"); }
    OdString getCurrentStyleSheet() const override { return text("printStyleSheet"); }
};

class Line final : public Stored<OdDbLine>
{
public:
    using Stored::Stored;
    OdGePoint3d startPoint() const override { return point("startPoint"); }
    OdGePoint3d endPoint() const override { return point("endPoint"); }
};

// A centre, as round curves have it.
template <class Base>
class WithCenter : public Stored<Base>
{
public:
    using Stored<Base>::Stored;
    OdGePoint3d center() const override { return this->point("center"); }
};

class Circle final : public WithCenter<OdDbCircle>
{
public:
    using WithCenter::WithCenter;
    double radius() const override { return number("radius"); }
};

template <class Base>
class WithAngles : public WithCenter<Base>
{
public:
    using WithCenter<Base>::WithCenter;
    double startAngle() const override { return this->number("startAngle"); }
    double endAngle() const override { return this->number("endAngle"); }
};

class Arc final : public WithAngles<OdDbArc>
{
public:
    using WithAngles::WithAngles;
    double radius() const override { return number("radius"); }
};

class Ellipse final : public WithAngles<OdDbEllipse>
{
public:
    using WithAngles::WithAngles;
    OdGePoint3d majorAxis() const override { return point("majorAxis"); }
    double minorRadius() const override { return number("minorRadius"); }
};

class Point final : public Stored<OdDbPoint>
{
public:
    using Stored::Stored;
    OdGePoint3d position() const override { return point("position"); }
};

// A ray or an infinite line.
template <class Base>
class Straight final : public Stored<Base>
{
public:
    using Stored<Base>::Stored;
    OdGePoint3d basePoint() const override { return this->point("basePoint"); }
    OdGePoint3d secondPoint() const override { return this->point("secondPoint"); }
};

template <class Base>
class WithVertices : public Stored<Base>
{
public:
    using Stored<Base>::Stored;
    OdArray<OdGePoint3d> vertices() const override { return this->points("vertices"); }
};

template <class Base>
class Polyline final : public WithVertices<Base>
{
public:
    using WithVertices<Base>::WithVertices;
    bool isClosed() const override { return this->flag("closed"); }
};

class Spline final : public Stored<OdDbSpline>
{
public:
    using Stored::Stored;
    OdArray<OdGePoint3d> fitPoints() const override { return points("fitPoints"); }
    bool isClosed() const override { return flag("closed"); }
    OdGePoint3d startFitTangent() const override { return point("startTangent"); }
    OdGePoint3d endFitTangent() const override { return point("endTangent"); }
    double fitTolerance() const override { return number("fitTolerance"); }
};

class Face final : public WithVertices<OdDbFace>
{
public:
    using WithVertices::WithVertices;
    std::array<bool, 4> visibleEdges() const override { return values_.get<EdgeFlags>("edges"); }
};

class PolygonMesh final : public WithVertices<OdDbPolygonMesh>
{
public:
    using WithVertices::WithVertices;
    int mSize() const override { return integer("mSize"); }
    int nSize() const override { return integer("nSize"); }
    bool isMClosed() const override { return flag("isMClosed"); }
    bool isNClosed() const override { return flag("isNClosed"); }
};

class PolyFaceMesh final : public WithVertices<OdDbPolyFaceMesh>
{
public:
    using WithVertices::WithVertices;
    int numVertices() const override { return static_cast<int>(vertices().size()); }
    OdArray<OdDbPolyFaceMesh::Face> faces() const override
    {
        return OdArray<OdDbPolyFaceMesh::Face>(values_.get<FaceList>("faces"));
    }
};

template <class Base>
class WithText : public Stored<Base>
{
public:
    using Stored<Base>::Stored;
    OdString textString() const override { return this->text("textString"); }
    OdGePoint3d position() const override { return this->point("position"); }
    OdGePoint3d alignmentPoint() const override { return this->point("alignmentPoint"); }
    double height() const override { return this->number("height"); }
    double rotation() const override { return this->number("rotation"); }
};

class AttributeDefinition final : public WithText<OdDbAttributeDefinition>
{
public:
    using WithText::WithText;
    OdString tag() const override { return text("tag"); }
    OdString prompt() const override { return text("prompt"); }
    OdString textStyleName() const override { return text("style"); }
    OdString justification() const override { return text("justify"); }
    bool isConstant() const override { return flag("constant"); }
    bool isInvisible() const override { return flag("invisible"); }
    bool isPreset() const override { return flag("preset"); }
    bool isVerifiable() const override { return flag("verify"); }
    bool lockPositionInBlock() const override { return flag("lockPosition"); }
};

class BlockReference final : public Stored<OdDbBlockReference>
{
public:
    using Stored::Stored;
    OdDbObjectId blockTableRecord() const override { return id("block"); }
    OdGePoint3d position() const override { return point("position"); }
    OdGePoint3d scaleFactors() const override { return point("scale"); }
    double rotation() const override { return number("rotation"); }
    OdArray<OdDbObjectId> attributeIds() const override
    {
        return drawing_.presentIds(values_.get<HandleList>("attributes"));
    }
};

class Shape final : public Stored<OdDbShape>
{
public:
    using Stored::Stored;
    OdString name() const override { return text("name"); }
    OdGePoint3d position() const override { return point("position"); }
    double size() const override { return number("size"); }
    double rotation() const override { return number("rotation"); }
};

class Viewport final : public Stored<OdDbViewport>
{
public:
    using Stored::Stored;
    bool isNonRectClipOn() const override { return flag("isNonRectClipped"); }
};

class MText final : public Stored<OdDbMText>
{
public:
    using Stored::Stored;
    OdString contents() const override { return text("contents"); }
    OdGePoint3d location() const override { return point("location"); }
    int attachment() const override { return integer("attachment"); }
    double width() const override { return number("width"); }
    double textHeight() const override { return number("textHeight"); }
    double rotation() const override { return number("rotation"); }
    double lineSpacingFactor() const override { return number("lineSpacingFactor"); }
    OdDbObjectId textStyle() const override { return id("textStyle"); }
    bool backgroundFillOn() const override { return flag("backgroundFillOn"); }
    double actualHeight() const override { return number("actualHeight"); }
    bool useBackgroundColorOn() const override { return flag("useBackgroundColorOn"); }
    OdCmColor getBackgroundFillColor() const override { return color("backgroundFillColor"); }
    double getBackgroundScaleFactor() const override { return number("backgroundScaleFactor"); }
};

class Leader final : public Stored<OdDbLeader>
{
public:
    using Stored::Stored;
    OdDbObjectId annotationObjId() const override { return id("annotation"); }
    double annoWidth() const override { return number("annoWidth"); }
    AnnoType annoType() const override
    {
        if (const auto* type = values_.given<std::int32_t>("annoType"))
        {
            return static_cast<AnnoType>(*type);
        }
        const OdRxClass* annotation = drawing_.classOf(values_.get<OdDbHandle>("annotation"));
        if (annotation == nullptr)
        {
            return kNoAnno;
        }
        return annotation->isDerivedFrom(OdDbMText::desc())            ? kMText
               : annotation->isDerivedFrom(OdDbFcf::desc())            ? kFcf
               : annotation->isDerivedFrom(OdDbBlockReference::desc()) ? kBlockRef
                                                                       : kNoAnno;
    }
};

class Tolerance final : public Stored<OdDbFcf>
{
public:
    using Stored::Stored;

    OdGePoint3d location() const override { return point("location"); }

    // Line -1 asks for all lines.
    OdString getText(int line) const override
    {
        return line < 0 ? text("text") : text("text").section(QLatin1Char('\n'), line, line);
    }
};

class RichLine final : public Stored<OdDbMline>
{
public:
    using Stored::Stored;
    int numVertices() const override { return static_cast<int>(vertices().size()); }
    OdGePoint3d vertexAt(int index) const override { return at(vertices(), index); }
    bool closedMline() const override { return flag("closedMline"); }
    int justification() const override { return integer("justification"); }
    double scale() const override { return number("scale"); }
    OdString styleName() const override { return text("style"); }

private:
    const PointList& vertices() const { return values_.get<PointList>("vertices"); }
};

// A table is a reference of a block that holds its lines and texts, which nobody asks for.
class Table final : public Stored<OdDbTable>
{
public:
    using Stored::Stored;
    OdDbObjectId blockTableRecord() const override { return {}; }
    OdGePoint3d position() const override { return point("position"); }
    OdGePoint3d scaleFactors() const override { return {1.0, 1.0, 1.0}; }
    double rotation() const override { return 0.0; }
    OdArray<OdDbObjectId> attributeIds() const override { return {}; }
    int numRows() const override { return static_cast<int>(rowHeights().size()); }
    int numColumns() const override { return static_cast<int>(columnWidths().size()); }
    double rowHeight(int row) const override { return at(rowHeights(), row); }
    double columnWidth(int column) const override { return at(columnWidths(), column); }

    // A cell for which the journal has no text is empty.
    OdString textString(int row, int column) const override
    {
        const auto& cells = values_.get<TextRows>("cells");
        if (row < 0 || column < 0 || static_cast<std::size_t>(row) >= cells.size() ||
            static_cast<std::size_t>(column) >= cells[static_cast<std::size_t>(row)].size())
        {
            return {};
        }
        return cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }

private:
    const NumberList& rowHeights() const { return values_.get<NumberList>("rowHeights"); }
    const NumberList& columnWidths() const { return values_.get<NumberList>("columnWidths"); }
};

// What all dimensions answer.
template <class Base>
class Dimension : public Stored<Base>
{
public:
    using Stored<Base>::Stored;

    // The journal lists the objects of reference 0 and of reference 2.
    OdDbObjectId associatedObject(int reference) const override
    {
        const auto& objects = this->values_.template get<HandleList>("associations");
        const auto index = static_cast<std::size_t>(reference / 2);
        return reference >= 0 && reference % 2 == 0 && index < objects.size()
                   ? this->drawing_.getOdDbObjectId(objects[index])
                   : OdDbObjectId();
    }
    int dimfit() const override { return this->integer("fit"); }
    bool textInsideAlign() const override { return this->flag("textInsideAlign"); }
    bool textOutsideAlign() const override { return this->flag("textOutsideAlign"); }
    double getExtLineFixLen() const override { return this->number("extLineFixLen"); }
};

// The points that several dimension classes share.
template <class Base>
class WithExtensionLines : public Dimension<Base>
{
public:
    using Dimension<Base>::Dimension;
    OdGePoint3d xLine1Point() const override { return this->point("xLine1Point"); }
    OdGePoint3d xLine2Point() const override { return this->point("xLine2Point"); }
};

template <class Base>
class WithDimensionLine : public WithExtensionLines<Base>
{
public:
    using WithExtensionLines<Base>::WithExtensionLines;
    OdGePoint3d dimLinePoint() const override { return this->point("dimLinePoint"); }
};

template <class Base>
class WithCenterAndArc : public WithExtensionLines<Base>
{
public:
    using WithExtensionLines<Base>::WithExtensionLines;
    OdGePoint3d centerPoint() const override { return this->point("centerPoint"); }
    OdGePoint3d arcPoint() const override { return this->point("arcPoint"); }
};

template <class Base>
class WithChord final : public Dimension<Base>
{
public:
    using Dimension<Base>::Dimension;
    OdGePoint3d chordPoint() const override { return this->point("chordPoint"); }
};

class RotatedDimension final : public WithDimensionLine<OdDbRotatedDimension>
{
public:
    using WithDimensionLine::WithDimensionLine;
    double rotation() const override { return number("rotation"); }
};

class TwoLineAngularDimension final : public Dimension<OdDb2LineAngularDimension>
{
public:
    using Dimension::Dimension;
    OdGePoint3d xLine1Start() const override { return point("xLine1Start"); }
    OdGePoint3d xLine1End() const override { return point("xLine1End"); }
    OdGePoint3d xLine2Start() const override { return point("xLine2Start"); }
    OdGePoint3d xLine2End() const override { return point("xLine2End"); }
    OdGePoint3d arcPoint() const override { return point("arcPoint"); }
};

class ArcDimension final : public WithCenterAndArc<OdDbArcDimension>
{
public:
    using WithCenterAndArc::WithCenterAndArc;
    bool isPartial() const override { return flag("isPartial"); }
};

class OrdinateDimension final : public Dimension<OdDbOrdinateDimension>
{
public:
    using Dimension::Dimension;
    OdGePoint3d definingPoint() const override { return point("definingPoint"); }
    OdGePoint3d leaderEndPoint() const override { return point("leaderEndPoint"); }
    bool isUsingXAxis() const override { return flag("isUsingXAxis"); }
    OdGePoint3d origin() const override { return point("origin"); }
};

class JoggedDimension final : public Dimension<OdDbRadialDimensionLarge>
{
public:
    using Dimension::Dimension;
    OdGePoint3d overrideCenter() const override { return point("overrideCenter"); }
    OdGePoint3d jogPoint() const override { return point("jogPoint"); }
    OdGePoint3d chordPoint() const override { return point("chordPoint"); }
};

using Factory = OdDbObjectPtr (*)(Drawing&, OdDbHandle, const OdRxClass*, ObjectValues);
using FactoryTable = std::unordered_map<const OdRxClass*, Factory>;

template <class Object>
OdDbObjectPtr make(Drawing& drawing, OdDbHandle handle, const OdRxClass* objectClass, ObjectValues values)
{
    return OdSmartPtr<Object>::make(drawing, handle, objectClass, std::move(values));
}

// Classes without getters of their own.
template <class... Bases>
void addPlain(FactoryTable& table)
{
    (table.emplace(Bases::desc(), &make<Stored<Bases>>), ...);
}

// Records with nothing but a name.
template <class... Bases>
void addSymbols(FactoryTable& table)
{
    (table.emplace(Bases::desc(), &make<Symbol<Bases>>), ...);
}

template <class... Objects>
void addOwn(FactoryTable& table)
{
    (table.emplace(Objects::desc(), &make<Objects>), ...);
}

FactoryTable allFactories()
{
    FactoryTable table;
    addPlain<OdDbObject, OdDbEntity, OdDbCurve, OdDb2dPolyline, OdDbRasterImage, OdDbHatch, OdDbRegion, OdDbOle2Frame>(
        table);
    addSymbols<OdDbSymbolTableRecord, OdDbLayerTableRecord, OdDbLinetypeTableRecord, OdDbDimStyleTableRecord,
               OdDbViewportTableRecord>(table);
    addOwn<Point, Straight<OdDbRay>, Straight<OdDbXline>, Polyline<OdDbPolyline>, Polyline<OdDb3dPolyline>, Spline,
           Face, PolygonMesh, PolyFaceMesh, WithVertices<OdDbSolid>, WithVertices<OdDbTrace>, WithText<OdDbText>,
           AttributeDefinition, BlockReference, Shape, Viewport, RichLineStyle, TableStyle>(table);
    addOwn<Line, Circle, Arc, Ellipse, TextStyle, View, Block, Group, Layout, MText, Leader, Tolerance, RichLine, Table,
           RotatedDimension, TwoLineAngularDimension, ArcDimension, OrdinateDimension, JoggedDimension,
           Dimension<OdDbDimension>, WithChord<OdDbDiametricDimension>, WithChord<OdDbRadialDimension>,
           WithDimensionLine<OdDbAlignedDimension>, WithCenterAndArc<OdDb3PointAngularDimension>>(table);
    return table;
}
} // namespace

OdDbObjectPtr MakeStoredObject(Drawing& drawing, OdDbHandle handle, const OdRxClass* objectClass, ObjectValues values)
{
    static const FactoryTable factories = allFactories();
    // A class without a C++ type of its own is an object of the nearest one above it.
    const OdRxClass* level = objectClass;
    auto factory = factories.find(level);
    while (factory == factories.end())
    {
        level = level->myParent();
        factory = factories.find(level);
    }
    return factory->second(drawing, handle, objectClass, std::move(values));
}

ObjectValues& StoredValuesOf(OdDbObject& object)
{
    return dynamic_cast<HoldsValues&>(object).storedValues();
}
} // namespace kv
