// C# texts of trim and extend; the logic stands in core/trim_extend.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"

using kv::General;

QString CZtConverterKVAPICSharp::WriteTrimEntities(const QStringList& cutting, const QStringList& removed,
                                                   const OdArray<OdGePoint3d>& points, const TrimSearch& search)
{
    const int number = CSharpCounters::OfProcess().WriteTrimEntities++;
    QString text =
        Line("%1DispatchWrapper[] CuttingEntitiesArray%2 = new DispatchWrapper[%3];\n", number, cutting.size());
    text += Line("%1DispatchWrapper[] EntitiesToRemoveArray%2 = new DispatchWrapper[%3];\n", number, removed.size());
    text += Line("%1double[] PointOnEntityDblArray%2 = new double[%3];\n", number, 3 * points.size());
    text += EntityElements("%1CuttingEntitiesArray%2[%3] = new DispatchWrapper(%4);\n", number, cutting);
    text += kv::LineEnd();
    text += EntityElements("%1EntitiesToRemoveArray%2[%3] = new DispatchWrapper(%4);\n", number, removed);
    text += kv::LineEnd();
    text += RealElements("%1PointOnEntityDblArray%2[%4] = %3;\n", number, points);
    text += kv::LineEnd();
    text += SetEdgeMode();
    text += Line("%1kvSketchManager.TrimEntities(CuttingEntitiesArray%2, EntitiesToRemoveArray%2, "
                 "PointOnEntityDblArray%2);\n",
                 number);
    if (!search.IsEmpty())
    {
        text += SearchTrimmed(search);
    }
    return text;
}

QString CZtConverterKVAPICSharp::SearchTrimmed(const TrimSearch& search) const
{
    QString text = Statement("%2"
                             "%1SelectionManager selectionManager = kvDoc.GetSelectionManager();%2%2"
                             "%1SelectionFilter selectionFilter = selectionManager.GetSelectionFilter();%2"
                             "%1selectionFilter.Active = false;%2%2"
                             "%1selectionManager.ClearSelections(kvSelectionSetType_e.kvSelectionSetType_Current);%2"
                             "%1selectionManager.ClearSelections(kvSelectionSetType_e.kvSelectionSetType_Previous);%2%2"
                             "%1double epsi = 0.1;%2"
                             "%1MathUtility mathUtility = kvApp.GetMathUtility();%2%2"
                             "%1double[] selPts = new double[%3], prop = new double[%4];                "
                             "//selection points and properties%2",
                             3 * search.Count(), 6 * search.Count());
    int index = 0;
    for (const OdGePoint3d& point : search.selectionPoints)
    {
        for (const double coordinate : {point.x, point.y, point.z})
        {
            text += Statement("%1selPts[%3] = %4;%2", index++, General{coordinate});
        }
    }
    index = 0;
    for (const auto& properties : search.properties)
    {
        for (const double property : properties)
        {
            text += Statement("%1prop[%3] = %4;%2", index++, General{property});
        }
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
                      "%1    MathPoint firstPoint, secondPoint;%2"
                      "%1    firstPoint = mathUtility.CreatePoint(selPts[iNewEnt*3] + epsi, "
                      "selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);%2"
                      "%1    secondPoint = mathUtility.CreatePoint(selPts[iNewEnt*3] - epsi, "
                      "selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);%2%2"
                      "%1    selectionManager.SelectByWindow(firstPoint, secondPoint, true);%2%2"
                      "%1    int count = selectionManager"
                      ".GetSelectedObjectCount(kvSelectionSetType_e.kvSelectionSetType_Previous);%2%2"
                      "%1    for (int i = 0; i < count; i++)%2"
                      "%1    {%2"
                      "%1        kvObjectType_e retObjType;%2"
                      "%1        object obj = selectionManager"
                      ".GetSelectedObject(kvSelectionSetType_e.kvSelectionSetType_Previous, i, out retObjType);%2"
                      "%1        %4%2"
                      "%1    }%2"
                      "%1    selectionManager.ClearSelections(kvSelectionSetType_e.kvSelectionSetType_Previous);%2"
                      "%1}%2%2",
                      search.Count(), blocks);
    return text;
}

QString CZtConverterKVAPICSharp::AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment) const
{
    using Shape = TrimSearch::Shape;
    switch (shape)
    {
    case Shape::Line:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    line%4 = kvline;%2",
                         assignment.index, assignment.number);
    case Shape::Ray:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    ray%4 = kvray;%2",
                         assignment.index, assignment.number);
    case Shape::CircleArc:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    circlearc%4 = kvcirclearc;%2",
                         assignment.index, assignment.number);
    case Shape::EllipseArc:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    ellipsearc%4 = kvellipsearc;%2",
                         assignment.index, assignment.number);
    case Shape::PolyLine3D:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    polyline3d%4 = kvpolyline3d;%2",
                         assignment.index, assignment.number);
    case Shape::Spline:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    spline%4 = kvspline;%2",
                         assignment.index, assignment.number);
    case Shape::PolyLine:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    polyline%4 = kvpolyline;%2",
                         assignment.index, assignment.number);
    }
    return {};
}

QString CZtConverterKVAPICSharp::CompareTrimmed(TrimSearch::Shape shape, const QString& assignments,
                                                const QString& prefix) const
{
    using Shape = TrimSearch::Shape;
    switch (shape)
    {
    case Shape::Line:
        return Statement("%4if (retObjType == kvObjectType_e.kvLineType)%2"
                         "%1{%2"
                         "%1    Line kvline = (Line)obj;%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvline.GetFirstPoint(out firstX, out firstY, out firstZ);%2"
                         "%1    kvline.GetSecondPoint(out secondX, out secondY, out secondZ);%2"
                         "%1    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::Ray:
        return Statement("%4if (retObjType == kvObjectType_e.kvRayType)%2"
                         "%1{%2"
                         "%1    Ray kvray = (Ray)obj;%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvray.GetBasePoint(out firstX, out firstY, out firstZ);%2"
                         "%1    kvray.GetThroughPoint(out secondX, out secondY, out secondZ);%2"
                         "%1    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::CircleArc:
        return Statement("%4if (retObjType == kvObjectType_e.kvCircleArcType)%2"
                         "%1{%2"
                         "%1    CircleArc kvcirclearc = (CircleArc)obj;%2"
                         "%1    double centerX, centerY, centerZ, radius, angleStart, angleEnd;%2"
                         "%1    kvcirclearc.GetCenter(out centerX, out centerY, out centerZ);%2"
                         "%1    radius = kvcirclearc.Radius;%2"
                         "%1    angleStart = kvcirclearc.StartAngle;%2"
                         "%1    angleEnd = kvcirclearc.EndAngle;%2"
                         "%1    if (Math.Abs(centerX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        Math.Abs(radius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(angleStart - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        Math.Abs(angleEnd - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::EllipseArc:
        return Statement("%4if (retObjType == kvObjectType_e.kvEllipseArcType)%2"
                         "%1{%2"
                         "%1    EllipseArc kvellipsearc = (EllipseArc)obj;%2"
                         "%1    double centerX, centerY, centerZ, majorRadius, minorRadius;%2"
                         "%1    kvellipsearc.GetCenter(out centerX, out centerY, out centerZ);%2"
                         "%1    majorRadius = kvellipsearc.MajorRadius;%2"
                         "%1    minorRadius = kvellipsearc.MinorRadius;%2"
                         "%1    if (Math.Abs(centerX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        Math.Abs(majorRadius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(minorRadius - prop[iNewEnt*6 + 4]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::PolyLine3D:
        return Statement("%4if (retObjType == kvObjectType_e.kvPolyLine3DType)%2"
                         "%1{%2"
                         "%1    PolyLine3D kvpolyline3d = (PolyLine3D)obj;%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvpolyline3d.GetVertexCoordinate(0, out firstX, out firstY, out firstZ);%2"
                         "%1    kvpolyline3d.GetVertexCoordinate(1, out secondX, out secondY, out secondZ);%2"
                         "%1    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::Spline:
        return Statement("%4if (retObjType == kvObjectType_e.kvSplineType)%2"
                         "%1{%2"
                         "%1    Spline kvspline = (Spline)obj;%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvspline.GetControlPointCoordinate(0, out firstX, out firstY, out firstZ);%2"
                         "%1    kvspline.GetControlPointCoordinate(1, out secondX, out secondY, out secondZ);%2"
                         "%1    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::PolyLine:
        return Statement("%4if (retObjType == kvObjectType_e.kvPolyLineType)%2"
                         "%1{%2"
                         "%1    PolyLine kvpolyline = (PolyLine)obj;%2"
                         "%1    double firstX, firstY, secondX, secondY;%2"
                         "%1    kvpolyline.GetVertexCoordinate(0, out firstX, out firstY);%2"
                         "%1    kvpolyline.GetVertexCoordinate(1, out secondX, out secondY);%2"
                         "%1    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    }
    return {};
}

QString CZtConverterKVAPICSharp::WriteExtendEntities(const QStringList& boundaries, const QStringList& extended,
                                                     const OdArray<OdGePoint3d>& points)
{
    const int number = CSharpCounters::OfProcess().WriteExtendEntities++;
    QString text =
        Line("%1DispatchWrapper[] BoundaryEntitiesArray%2 = new DispatchWrapper[%3];\n", number, boundaries.size());
    text += Line("%1DispatchWrapper[] EntitiesToExtendArray%2 = new DispatchWrapper[%3];\n", number, extended.size());
    text += Line("%1double[] PointOnEntityDblArray%2 = new double[%3];\n", number, 3 * points.size());
    text += EntityElements("%1BoundaryEntitiesArray%2[%3] = new DispatchWrapper(%4);\n", number, boundaries);
    text += kv::LineEnd();
    text += EntityElements("%1EntitiesToExtendArray%2[%3] = new DispatchWrapper(%4);\n", number, extended);
    text += kv::LineEnd();
    text += RealElements("%1PointOnEntityDblArray%2[%4] = %3;\n", number, points);
    text += kv::LineEnd();
    text += SetEdgeMode();
    text += Line("%1kvSketchManager.ExtendEntities(BoundaryEntitiesArray%2, EntitiesToExtendArray%2, "
                 "PointOnEntityDblArray%2);\n",
                 number);
    return text;
}
