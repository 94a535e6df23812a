// C++ COM texts of trim and extend; the logic stands in core/trim_extend.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/safe_array.h"
#include "core/trim_search.h"

using kv::General;

QString CZtConverterKVAPICPPCOM::WriteTrimEntities(const QStringList& cutting, const QStringList& removed,
                                                   const OdArray<OdGePoint3d>& points, const TrimSearch& search)
{
    const int number = ComCounters::OfProcess().WriteTrimEntities++;
    QString text = EdgeArrays(number, "CuttingEntitiesArray", cutting, "EntitiesToRemoveArray", removed, points);
    text += SetEdgeMode();
    text += Line("%1kvSketchManager->TrimEntities(CuttingEntitiesArray%2, EntitiesToRemoveArray%2, "
                 "PointOnEntityDblArray%2);\n",
                 number);
    if (!search.IsEmpty())
    {
        text += SearchTrimmed(search);
    }
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteExtendEntities(const QStringList& boundaries, const QStringList& extended,
                                                     const OdArray<OdGePoint3d>& points)
{
    const int number = ComCounters::OfProcess().WriteExtendEntities++;
    QString text = EdgeArrays(number, "BoundaryEntitiesArray", boundaries, "EntitiesToExtendArray", extended, points);
    text += SetEdgeMode();
    text += Line("%1kvSketchManager->ExtendEntities(BoundaryEntitiesArray%2, EntitiesToExtendArray%2, "
                 "PointOnEntityDblArray%2);\n",
                 number);
    return text;
}

// The arrays of the edges, of the entities that change and of the points on them.
QString CZtConverterKVAPICPPCOM::EdgeArrays(int number, const char* edgesName, const QStringList& edges,
                                            const char* changedName, const QStringList& changed,
                                            const OdArray<OdGePoint3d>& points)
{
    const SafeArrayText edgeArray(SafeArrayText::Kind::Entities, edgesName, number);
    const SafeArrayText changedArray(SafeArrayText::Kind::Entities, changedName, number);
    const SafeArrayText pointArray(SafeArrayText::Kind::Doubles, "PointOnEntityDblArray", number);
    const QStringList coordinates = CoordinateTexts(points, kv::GeneralText);
    QString text = edgeArray.Declare(CurrentIndent(), edges.size());
    text += changedArray.Declare(CurrentIndent(), changed.size());
    text += pointArray.Declare(CurrentIndent(), coordinates.size());
    text += edgeArray.Block(CurrentIndent(), edges);
    text += kv::LineEnd();
    text += changedArray.Block(CurrentIndent(), changed);
    text += kv::LineEnd();
    text += pointArray.Block(CurrentIndent(), coordinates);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPPCOM::SearchTrimmed(const TrimSearch& search)
{
    QStringList points;
    for (const OdGePoint3d& point : search.selectionPoints)
    {
        points += CoordinateTexts(point, kv::GeneralText);
    }
    QStringList properties;
    for (const auto& ofEntity : search.properties)
    {
        for (const double property : ofEntity)
        {
            properties << kv::GeneralText(property);
        }
    }
    QString text = Statement("%2"
                             "%1ISelectionManagerPtr selectionManager = kvDoc->GetSelectionManager();%2%2"
                             "%1ISelectionFilterPtr selectionFilter = selectionManager->GetSelectionFilter();%2"
                             "%1selectionFilter->put_Active( false );%2%2"
                             "%1selectionManager->ClearSelections(kvSelectionSetType_Current);%2"
                             "%1selectionManager->ClearSelections(kvSelectionSetType_Previous);%2%2"
                             "%1double epsi = 0.1;%2"
                             "%1IMathUtilityPtr mathUtility = pConnection->m_KvApp->GetMathUtility();%2%2"
                             "%1double selPts[%3], prop[%4];%2",
                             points.size(), properties.size());
    for (int i = 0; i < points.size(); ++i)
    {
        text += Statement("%1selPts[%3] = %4;%2", i, points.at(i));
    }
    for (int i = 0; i < properties.size(); ++i)
    {
        text += Statement("%1prop[%3] = %4;%2", i, properties.at(i));
    }
    QString blocks;
    for (const TrimSearch::Block& block : search.blocks)
    {
        QString assignments;
        for (const TrimSearch::Assignment& assignment : block.assignments)
        {
            assignments += AssignTrimmed(block.shape, assignment);
        }
        blocks += CompareTrimmed(block.shape, assignments, block.isElse ? Line("%1else ") : QString());
    }
    text += Statement("%1for (int iNewEnt = 0; iNewEnt < %3; iNewEnt++)%2"
                      "%1{%2"
                      "%1    IMathPointPtr firstPoint = mathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, "
                      "selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);%2"
                      "%1    IMathPointPtr secondPoint = mathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, "
                      "selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);%2%2"
                      "%1    VARIANT_BOOL res;%2"
                      "%1    res=selectionManager->SelectByWindow(firstPoint, secondPoint, true);%2%2"
                      "%1    long count = selectionManager->GetSelectedObjectCount(kvSelectionSetType_Previous);%2%2"
                      "%1    for (long i = 0; i < count; i++)%2"
                      "%1    {%2"
                      "%1        kvObjectType_e retObjType;%2"
                      "%1        IDispatchPtr obj = "
                      "selectionManager->GetSelectedObject(kvSelectionSetType_Previous, i, &retObjType);%2"
                      "%1        %4%2"
                      "%1    }%2"
                      "%1    selectionManager->ClearSelections(kvSelectionSetType_Previous);%2"
                      "%1}%2%2",
                      search.Count(), blocks);
    return text;
}

QString CZtConverterKVAPICPPCOM::AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment)
{
    using Shape = TrimSearch::Shape;
    switch (shape)
    {
    case Shape::Line:
        return Statement("%1if (iNewEnt == %3)%2%1    line%4 = kvline;%2", assignment.index, assignment.number);
    case Shape::Ray:
        return Statement("%1if (iNewEnt == %3)%2%1    ray%4 = kvray;%2", assignment.index, assignment.number);
    case Shape::CircleArc:
        return Statement("%1if (iNewEnt == %3)%2%1    circlearc%4 = kvcirclearc;%2", assignment.index,
                         assignment.number);
    case Shape::EllipseArc:
        return Statement("%1if (iNewEnt == %3)%2%1    ellipsearc%4 = kvellipsearc;%2", assignment.index,
                         assignment.number);
    case Shape::PolyLine3D:
        return Statement("%1if (iNewEnt == %3)%2%1    polyline3d%4 = kvpolyline3d;%2", assignment.index,
                         assignment.number);
    case Shape::Spline:
        return Statement("%1if (iNewEnt == %3)%2%1    spline%4 = kvspline;%2", assignment.index, assignment.number);
    case Shape::PolyLine:
        return Statement("%1if (iNewEnt == %3)%2%1    polyline%4 = kvpolyline;%2", assignment.index, assignment.number);
    }
    return {};
}

QString CZtConverterKVAPICPPCOM::CompareTrimmed(TrimSearch::Shape shape, const QString& assignments,
                                                const QString& prefix)
{
    using Shape = TrimSearch::Shape;
    QString text = prefix;
    switch (shape)
    {
    case Shape::Line:
        text += Statement("if (retObjType == kvLineType)%2"
                          "%1{%2"
                          "%1    ILinePtr kvline = obj;%2"
                          "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                          "%1    kvline->GetFirstPoint(&firstX, &firstY, &firstZ);%2"
                          "%1    kvline->GetSecondPoint(&secondX, &secondY, &secondZ);%2");
        text += ComparePoints();
        break;
    case Shape::Ray:
        text += Statement("if (retObjType == kvRayType)%2"
                          "%1{%2"
                          "%1    IRayPtr kvray = obj;%2"
                          "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                          "%1    kvray->GetBasePoint(&firstX, &firstY, &firstZ);%2"
                          "%1    kvray->GetThroughPoint(&secondX, &secondY, &secondZ);%2");
        text += ComparePoints();
        break;
    case Shape::CircleArc:
        text += Statement("if (retObjType == kvCircleArcType)%2"
                          "%1{%2"
                          "%1    ICircleArcPtr kvcirclearc = obj;%2"
                          "%1    double centerX, centerY, centerZ, radius, angleStart, angleEnd;%2"
                          "%1    kvcirclearc->GetCenter(&centerX, &centerY, &centerZ);%2"
                          "%1    kvcirclearc->get_Radius(&radius);%2"
                          "%1    kvcirclearc->get_StartAngle(&angleStart);%2"
                          "%1    kvcirclearc->get_EndAngle(&angleEnd);%2"
                          "%1    if (abs(centerX - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                          "%1        abs(radius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        abs(angleStart - prop[iNewEnt*6 + 4]) < epsi &&%2"
                          "%1        abs(angleEnd - prop[iNewEnt*6 + 5]) < epsi )%2");
        break;
    case Shape::EllipseArc:
        text += Statement("if (retObjType == kvEllipseArcType)%2"
                          "%1{%2"
                          "%1    IEllipseArcPtr kvellipsearc = obj;%2"
                          "%1    double centerX, centerY, centerZ, majorRadius, minorRadius;%2"
                          "%1    kvellipsearc->GetCenter(&centerX, &centerY, &centerZ);%2"
                          "%1    kvellipsearc->get_MajorRadius(&majorRadius);%2"
                          "%1    kvellipsearc->get_MinorRadius(&minorRadius);%2"
                          "%1    if (abs(centerX - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                          "%1        abs(majorRadius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        abs(minorRadius - prop[iNewEnt*6 + 4]) < epsi )%2");
        break;
    case Shape::PolyLine3D:
        text += Statement("if (retObjType == kvPolyLine3DType)%2"
                          "%1{%2"
                          "%1    IPolyLine3DPtr kvpolyline3d = obj;%2"
                          "%1    VARIANT_BOOL success;%2"
                          "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                          "%1    success=kvpolyline3d->GetVertexCoordinate(0, &firstX, &firstY, &firstZ);%2"
                          "%1    success=kvpolyline3d->GetVertexCoordinate(1, &secondX, &secondY, &secondZ);%2");
        text += ComparePoints();
        break;
    case Shape::Spline:
        text += Statement("if (retObjType == kvSplineType)%2"
                          "%1{%2"
                          "%1    ISplinePtr kvspline = obj;%2"
                          "%1    VARIANT_BOOL success;%2"
                          "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                          "%1    success=kvspline->GetControlPointCoordinate(0, &firstX, &firstY, &firstZ);%2"
                          "%1    success=kvspline->GetControlPointCoordinate(1, &secondX, &secondY, &secondZ);%2");
        text += ComparePoints();
        break;
    case Shape::PolyLine:
        text += Statement("if (retObjType == kvPolyLineType)%2"
                          "%1{%2"
                          "%1    IPolyLinePtr kvpolyline = obj;%2"
                          "%1    VARIANT_BOOL success;%2"
                          "%1    double firstX, firstY, secondX, secondY;%2"
                          "%1    success=kvpolyline->GetVertexCoordinate(0, &firstX, &firstY);%2"
                          "%1    success=kvpolyline->GetVertexCoordinate(1, &secondX, &secondY);%2"
                          "%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi )%2");
        break;
    }
    text += Statement("%1    {%2"
                      "%3%1        break;%2"
                      "%1    }%2"
                      "%1}%2",
                      assignments);
    return text;
}

// The comparison of two points in space.
QString CZtConverterKVAPICPPCOM::ComparePoints()
{
    return Statement("%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                     "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                     "%1        abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                     "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                     "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                     "%1        abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2");
}
