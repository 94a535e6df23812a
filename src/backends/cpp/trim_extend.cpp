// C++ API texts of trim and extend; the logic stands in core/trim_extend.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "core/trim_search.h"

using kv::General;

QString CZtConverterKVAPICPP::WriteTrimEntities(const QStringList& cutting, const QStringList& removed,
                                                const OdArray<OdGePoint3d>& points, const TrimSearch& search)
{
    const int number = CppCounters::OfProcess().WriteTrimEntities++;
    QString text = Line("%1kvObjectPtrArray CuttingEntitiesArray%2;\n", number);
    text += Line("%1kvObjectPtrArray EntitiesToRemoveArray%2;\n", number);
    text += Line("%1kvDoubleArray  PointOnEntityDblArray%2;\n", number);
    for (const QString& name : cutting)
    {
        text += Line("%1CuttingEntitiesArray%2.add(%3);\n", number, name);
    }
    text += kv::LineEnd();
    for (const QString& name : removed)
    {
        text += Line("%1EntitiesToRemoveArray%2.add(%3);\n", number, name);
    }
    text += kv::LineEnd();
    text += PointsOnEntities(number, points);
    text += SetEdgeMode();
    text += Line("%1kvSketchManager->TrimEntities(CuttingEntitiesArray%2, EntitiesToRemoveArray%2"
                 ", PointOnEntityDblArray%2);\n",
                 number);
    if (!search.IsEmpty())
    {
        text += SearchTrimmed(search);
    }
    return text;
}

QString CZtConverterKVAPICPP::PointsOnEntities(int number, const OdArray<OdGePoint3d>& points)
{
    QString text;
    for (const OdGePoint3d& point : points)
    {
        for (const double coordinate : {point.x, point.y, point.z})
        {
            text += Line("%1PointOnEntityDblArray%2.add(%3);\n", number, General{coordinate});
        }
    }
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPP::SearchTrimmed(const TrimSearch& search)
{
    QString text = Statement("%2"
                             "%1kvSelectionManager_ptr selectionManager;%2"
                             "%1kvDoc->GetSelectionManager(&selectionManager);%2%2"
                             "%1kvSelectionFilter_c* selectionFilter;%2"
                             "%1selectionManager->GetSelectionFilter( &selectionFilter );%2"
                             "%1selectionFilter->put_Active( false );%2%2"
                             "%1selectionManager->ClearSelections(kvSelectionSetType_Current);%2"
                             "%1selectionManager->ClearSelections(kvSelectionSetType_Previous);%2%2"
                             "%1double epsi = 0.1;%2"
                             "%1kvMathUtility_ptr mathUtility;%2"
                             "%1m_pKvApp->GetMathUtility(&mathUtility);%2%2"
                             "%1kvDoubleArray selPts, prop;                //selection points and properties%2");
    for (const OdGePoint3d& point : search.selectionPoints)
    {
        for (const double coordinate : {point.x, point.y, point.z})
        {
            text += Statement("%1selPts.add(%3);%2", General{coordinate});
        }
    }
    for (const auto& properties : search.properties)
    {
        for (const double property : properties)
        {
            text += Statement("%1prop.add(%3);%2", General{property});
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
                      "%1    kvMathPoint_ptr firstPoint, secondPoint;%2"
                      "%1    mathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, selPts[iNewEnt*3 + 1] + epsi, "
                      "selPts[iNewEnt*3 + 2], &firstPoint);%2"
                      "%1    mathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, selPts[iNewEnt*3 + 1] - epsi, "
                      "selPts[iNewEnt*3 + 2], &secondPoint);%2%2"
                      "%1    bool res;%2"
                      "%1    selectionManager->SelectByWindow(firstPoint, secondPoint, true, &res);%2%2"
                      "%1    long count;%2"
                      "%1    selectionManager->GetSelectedObjectCount(kvSelectionSetType_Previous, &count);%2%2"
                      "%1    for (long i = 0; i < count; i++)%2"
                      "%1    {%2"
                      "%1        kvObjectType_e retObjType;%2"
                      "%1        kvObject *obj;%2"
                      "%1        selectionManager->GetSelectedObject(kvSelectionSetType_Previous, i, &retObjType, "
                      "&obj);%2"
                      "%1        %4%2"
                      "%1    }%2"
                      "%1    selectionManager->ClearSelections(kvSelectionSetType_Previous);%2"
                      "%1}%2%2",
                      search.Count(), blocks);
    return text;
}

QString CZtConverterKVAPICPP::AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment)
{
    using Shape = TrimSearch::Shape;
    switch (shape)
    {
    case Shape::Line:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvline%4 = kvLine_ptr(kvline);%2",
                         assignment.index, assignment.number);
    case Shape::Ray:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvray%4 = kvRay_ptr(kvray);%2",
                         assignment.index, assignment.number);
    case Shape::CircleArc:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvcirclearc%4 = kvCircleArc_ptr(kvcirclearc);%2",
                         assignment.index, assignment.number);
    case Shape::EllipseArc:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvellipsearc%4 = kvEllipseArc_ptr(kvellipsearc);%2",
                         assignment.index, assignment.number);
    case Shape::PolyLine3D:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvpolyline3d%4 = kvPolyLine3D_ptr(kvpolyline3d);%2",
                         assignment.index, assignment.number);
    case Shape::Spline:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvspline%4 = kvSpline_ptr(kvspline);%2",
                         assignment.index, assignment.number);
    case Shape::PolyLine:
        return Statement("%1if (iNewEnt == %3)%2"
                         "%1    kvpolyline%4 = kvPolyLine_ptr(kvpolyline);%2",
                         assignment.index, assignment.number);
    }
    return {};
}

QString CZtConverterKVAPICPP::CompareTrimmed(TrimSearch::Shape shape, const QString& assignments, const QString& prefix)
{
    using Shape = TrimSearch::Shape;
    switch (shape)
    {
    case Shape::Line:
        return Statement("%4if (retObjType == kvLineType)%2"
                         "%1{%2"
                         "%1    kvLine_c* kvline;%2"
                         "%1    kvline = static_cast<kvLine_c*>(obj);%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvline->GetFirstPoint(&firstX, &firstY, &firstZ);%2"
                         "%1    kvline->GetSecondPoint(&secondX, &secondY, &secondZ);%2"
                         "%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::Ray:
        return Statement("%4if (retObjType == kvRayType)%2"
                         "%1{%2"
                         "%1    kvRay_c* kvray;%2"
                         "%1    kvray = static_cast<kvRay_c*>(obj);%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvray->GetBasePoint(&firstX, &firstY, &firstZ);%2"
                         "%1    kvray->GetThroughPoint(&secondX, &secondY, &secondZ);%2"
                         "%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::CircleArc:
        return Statement("%4if (retObjType == kvCircleArcType)%2"
                         "%1{%2"
                         "%1    kvCircleArc_c* kvcirclearc;%2"
                         "%1    kvcirclearc = static_cast<kvCircleArc_c*>(obj);%2"
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
                         "%1        abs(angleEnd - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::EllipseArc:
        return Statement("%4if (retObjType == kvEllipseArcType)%2"
                         "%1{%2"
                         "%1    kvEllipseArc_c* kvellipsearc;%2"
                         "%1    kvellipsearc = static_cast<kvEllipseArc_c*>(obj);%2"
                         "%1    double centerX, centerY, centerZ, majorRadius, minorRadius;%2"
                         "%1    kvellipsearc->GetCenter(&centerX, &centerY, &centerZ);%2"
                         "%1    kvellipsearc->get_MajorRadius(&majorRadius);%2"
                         "%1    kvellipsearc->get_MinorRadius(&minorRadius);%2"
                         "%1    if (abs(centerX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        abs(majorRadius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        abs(minorRadius - prop[iNewEnt*6 + 4]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::PolyLine3D:
        return Statement("%4if (retObjType == kvPolyLine3DType)%2"
                         "%1{%2"
                         "%1    kvPolyLine3D_c* kvpolyline3d;%2"
                         "%1    kvpolyline3d = static_cast<kvPolyLine3D_c*>(obj);%2"
                         "%1    bool success;%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvpolyline3d->GetVertexCoordinate(0, &firstX, &firstY, &firstZ, &success);%2"
                         "%1    kvpolyline3d->GetVertexCoordinate(1, &secondX, &secondY, &secondZ, &success);%2"
                         "%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::Spline:
        return Statement("%4if (retObjType == kvSplineType)%2"
                         "%1{%2"
                         "%1    kvSpline_c* kvspline;%2"
                         "%1    kvspline = static_cast<kvSpline_c*>(obj);%2"
                         "%1    bool success;%2"
                         "%1    double firstX, firstY, firstZ, secondX, secondY, secondZ;%2"
                         "%1    kvspline->GetControlPointCoordinate(0, &firstX, &firstY, &firstZ, &success);%2"
                         "%1    kvspline->GetControlPointCoordinate(1, &secondX, &secondY, &secondZ, &success);%2"
                         "%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&%2"
                         "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&%2"
                         "%1        abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    case Shape::PolyLine:
        return Statement("%4if (retObjType == kvPolyLineType)%2"
                         "%1{%2"
                         "%1    kvPolyLine_c* kvpolyline;%2"
                         "%1    kvpolyline = static_cast<kvPolyLine_c*>(obj);%2"
                         "%1    bool success;%2"
                         "%1    double firstX, firstY, secondX, secondY;%2"
                         "%1    kvpolyline->GetVertexCoordinate(0, &firstX, &firstY, &success);%2"
                         "%1    kvpolyline->GetVertexCoordinate(1, &secondX, &secondY, &success);%2"
                         "%1    if (abs(firstX - prop[iNewEnt*6]) < epsi &&%2"
                         "%1        abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&%2"
                         "%1        abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&%2"
                         "%1        abs(secondY - prop[iNewEnt*6 + 4]) < epsi )%2"
                         "%1    {%2"
                         "%3%1        break;%2"
                         "%1    }%2"
                         "%1}%2",
                         assignments, prefix);
    }
    return {};
}

QString CZtConverterKVAPICPP::WriteExtendEntities(const QStringList& boundaries, const QStringList& extended,
                                                  const OdArray<OdGePoint3d>& points)
{
    const int number = CppCounters::OfProcess().WriteExtendEntities++;
    QString text = Line("%1kvObjectPtrArray BoundaryEntitiesArray%2;\n", number);
    text += Line("%1kvObjectPtrArray EntitiesToExtendArray%2;\n", number);
    text += Line("%1kvDoubleArray  PointOnEntityDblArray%2;\n", number);
    for (const QString& name : boundaries)
    {
        text += Line("%1BoundaryEntitiesArray%2.add(%3);\n", number, name);
    }
    text += kv::LineEnd();
    for (const QString& name : extended)
    {
        text += Line("%1EntitiesToExtendArray%2.add(%3);\n", number, name);
    }
    text += kv::LineEnd();
    text += PointsOnEntities(number, points);
    text += SetEdgeMode();
    text += Line("%1kvSketchManager->ExtendEntities(BoundaryEntitiesArray%2, EntitiesToExtendArray%2"
                 ", PointOnEntityDblArray%2);\n",
                 number);
    return text;
}
