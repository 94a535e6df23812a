// Insertion of entities as the drawing holds them, where the journal tells of them by their ids only.
#include "host/db/blocks.h"
#include "host/db/polylines.h"
#include "host/db/text.h"
#include "objects/object_converter.h"

QString CZtConverterKVAPIObject::StemOf(const OdRxClass* objectClass)
{
    static const std::unordered_map<const OdRxClass*, const char*> stems = {
        {OdDbLine::desc(), "line_"},
        {OdDbCircle::desc(), "circle_"},
        {OdDbArc::desc(), "arc_"},
        {OdDbEllipse::desc(), "ellipse_"},
        {OdDbPoint::desc(), "point_"},
        {OdDbRay::desc(), "ray_"},
        {OdDbXline::desc(), "infiniteLine_"},
        {OdDbPolyline::desc(), "polyLine_"},
        {OdDb3dPolyline::desc(), "polyLine3D_"},
        {OdDbSpline::desc(), "spline_"},
        {OdDbSolid::desc(), "solid_"},
        {OdDbTrace::desc(), "trace_"},
        {OdDbFace::desc(), "face_"},
        {OdDbMline::desc(), "richLine_"},
        {OdDbPolygonMesh::desc(), "polygonMesh_"},
        {OdDbPolyFaceMesh::desc(), "polyFaceMesh_"},
        {OdDbText::desc(), "simpleNote_"},
        {OdDbMText::desc(), "note_"},
        {OdDbAttributeDefinition::desc(), "attributeDefinition_"},
        {OdDbFcf::desc(), "tolerance_"},
        {OdDbBlockReference::desc(), "blockInstance_"},
        {OdDbShape::desc(), "shape_"},
    };
    const auto found = stems.find(objectClass);
    return found != stems.end() ? QString(QLatin1String(found->second)) : QString();
}

QString CZtConverterKVAPIObject::InsertStored(const OdDbObject& object, const QString& variable)
{
    QString text = InsertStoredCurve(object, variable);
    if (text.isEmpty())
    {
        text = InsertStoredVertices(object, variable);
    }
    return text.isEmpty() ? InsertStoredText(object, variable) : text;
}

QString CZtConverterKVAPIObject::InsertStoredCurve(const OdDbObject& object, const QString& variable)
{
    const OdRxClass* objectClass = object.isA();
    if (objectClass == OdDbLine::desc())
    {
        const auto& line = static_cast<const OdDbLine&>(object);
        return WriteInsertLine(variable, line.startPoint(), line.endPoint());
    }
    if (objectClass == OdDbCircle::desc())
    {
        const auto& circle = static_cast<const OdDbCircle&>(object);
        return WriteInsertCircle(variable, circle.center(), circle.radius());
    }
    if (objectClass == OdDbArc::desc())
    {
        const auto& arc = static_cast<const OdDbArc&>(object);
        return WriteInsertArc(variable, arc.center(), arc.radius(), arc.startAngle(), arc.endAngle());
    }
    if (objectClass == OdDbEllipse::desc())
    {
        const auto& ellipse = static_cast<const OdDbEllipse&>(object);
        return InsertEllipse(variable, ellipse.center(), ellipse.majorAxis(), ellipse.minorRadius(),
                             ellipse.startAngle(), ellipse.endAngle());
    }
    if (objectClass == OdDbPoint::desc())
    {
        return WriteInsertPoint(variable, static_cast<const OdDbPoint&>(object).position());
    }
    if (objectClass == OdDbRay::desc())
    {
        const auto& ray = static_cast<const OdDbRay&>(object);
        return WriteInsertRay(variable, ray.basePoint(), ray.secondPoint());
    }
    if (objectClass == OdDbXline::desc())
    {
        const auto& line = static_cast<const OdDbXline&>(object);
        return WriteInsertInfiniteLine(variable, line.basePoint(), line.secondPoint());
    }
    return {};
}

QString CZtConverterKVAPIObject::InsertStoredVertices(const OdDbObject& object, const QString& variable)
{
    const OdRxClass* objectClass = object.isA();
    if (objectClass == OdDbPolyline::desc())
    {
        const auto& polyline = static_cast<const OdDbPolyline&>(object);
        return WriteInsertPolyline2D(variable, Flattened(polyline.vertices()), polyline.isClosed());
    }
    if (objectClass == OdDb3dPolyline::desc())
    {
        const auto& polyline = static_cast<const OdDb3dPolyline&>(object);
        return WriteInsertPolyline3D(variable, polyline.vertices(), polyline.isClosed());
    }
    if (objectClass == OdDbSpline::desc())
    {
        const auto& spline = static_cast<const OdDbSpline&>(object);
        return InsertSpline(variable, spline.fitPoints(), spline.isClosed(), spline.startFitTangent(),
                            spline.endFitTangent(), spline.fitTolerance());
    }
    if (objectClass == OdDbSolid::desc())
    {
        return WriteInsertSolid(variable, static_cast<const OdDbSolid&>(object).vertices());
    }
    if (objectClass == OdDbTrace::desc())
    {
        return InsertTrace(variable, static_cast<const OdDbTrace&>(object).vertices());
    }
    if (objectClass == OdDbFace::desc())
    {
        const auto& face = static_cast<const OdDbFace&>(object);
        const std::array<bool, 4> visible = face.visibleEdges();
        return WriteInsertFace(variable, face.vertices(), visible[0], visible[1], visible[2], visible[3]);
    }
    if (objectClass == OdDbMline::desc())
    {
        const auto& line = static_cast<const OdDbMline&>(object);
        OdArray<OdGePoint3d> points;
        for (int i = 0; i < line.numVertices(); ++i)
        {
            points.append(line.vertexAt(i));
        }
        return WriteInsertRichLine(variable, points, RichLineJustification(line.justification()), line.scale(),
                                   line.styleName(), line.closedMline());
    }
    if (objectClass == OdDbPolygonMesh::desc())
    {
        const auto& mesh = static_cast<const OdDbPolygonMesh&>(object);
        return InsertPolygonMesh(variable, mesh.vertices(), mesh.mSize(), mesh.nSize(), mesh.isMClosed(),
                                 mesh.isNClosed());
    }
    if (objectClass == OdDbPolyFaceMesh::desc())
    {
        const auto& mesh = static_cast<const OdDbPolyFaceMesh&>(object);
        return InsertPolyFaceMesh(variable, mesh.vertices(), mesh);
    }
    return {};
}

QString CZtConverterKVAPIObject::InsertStoredText(const OdDbObject& object, const QString& variable)
{
    const OdRxClass* objectClass = object.isA();
    if (objectClass == OdDbText::desc())
    {
        const auto& text = static_cast<const OdDbText&>(object);
        return WriteInsertSimpleNote(variable, text.alignmentPoint(), text.height(), text.rotation(),
                                     text.textString());
    }
    if (objectClass == OdDbMText::desc())
    {
        return InsertStoredNote(static_cast<const OdDbMText&>(object), variable);
    }
    if (objectClass == OdDbAttributeDefinition::desc())
    {
        const auto& definition = static_cast<const OdDbAttributeDefinition&>(object);
        const QString justification = definition.justification();
        const bool isLeft =
            words_.Matches(DisplayWords::Context::PropertyValues, "Left", justification, Qt::CaseInsensitive);
        return WriteInsertAttributeDefinition(variable, definition.textString(), definition.tag(), definition.prompt(),
                                              isLeft ? definition.position() : definition.alignmentPoint(),
                                              definition.textStyleName(), definition.height(), justification,
                                              definition.rotation(),
                                              {definition.isConstant(), definition.isInvisible(), definition.isPreset(),
                                               definition.isVerifiable(), definition.lockPositionInBlock()});
    }
    if (objectClass == OdDbFcf::desc())
    {
        const auto& tolerance = static_cast<const OdDbFcf&>(object);
        return WriteInsertTolerance(variable, tolerance.location(),
                                    QString(tolerance.getText(-1)).replace(QLatin1Char('\n'), QLatin1String("\\n")));
    }
    if (objectClass == OdDbBlockReference::desc())
    {
        const auto& reference = static_cast<const OdDbBlockReference&>(object);
        const auto block = Opened<OdDbBlockTableRecord>(reference.blockTableRecord().getHandle());
        return WriteInsertBlockInstance(variable, block ? block->getName() : OdString(), false, reference.position(),
                                        reference.scaleFactors(), reference.rotation());
    }
    if (objectClass == OdDbShape::desc())
    {
        const auto& shape = static_cast<const OdDbShape&>(object);
        return WriteInsertShape(variable, shape.name(), shape.position(), shape.size(), shape.rotation());
    }
    return {};
}
