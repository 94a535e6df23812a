// JavaScript texts of trim and extend; the logic stands in core/trim_extend.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"

using kv::General;

QString CZtConverterKVAPIJavaScript::WriteTrimEntities(const QStringList& cutting, const QStringList& removed,
                                                       const OdArray<OdGePoint3d>& points, const TrimSearch& search)
{
    const int number = JavaScriptCounters::OfProcess().WriteTrimEntities++;
    QString text = PickedEntities(kv::Fill("CuttingEntitiesArray%1", number), cutting,
                                  kv::Fill("EntitiesToRemoveArray%1", number), removed, number, points);
    text += SetEdgeMode();
    text += Line("%1mSkMgr.TrimEntities(CuttingEntitiesArray%2, EntitiesToRemoveArray%2, PointOnEntityDblArray%2);\n",
                 number);
    if (!search.IsEmpty())
    {
        text += SearchTrimmed(search);
    }
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteExtendEntities(const QStringList& boundaries, const QStringList& extended,
                                                         const OdArray<OdGePoint3d>& points)
{
    const int number = JavaScriptCounters::OfProcess().WriteExtendEntities++;
    QString text = PickedEntities(kv::Fill("BoundaryEntitiesArray%1", number), boundaries,
                                  kv::Fill("EntitiesToExtendArray%1", number), extended, number, points);
    text += SetEdgeMode();
    text +=
        Line("%1mSkMgr.ExtendEntities(BoundaryEntitiesArray%2, EntitiesToExtendArray%2, PointOnEntityDblArray%2);\n",
             number);
    return text;
}

QString CZtConverterKVAPIJavaScript::PickedEntities(const QString& edges, const QStringList& edgeNames,
                                                    const QString& changed, const QStringList& changedNames, int number,
                                                    const OdArray<OdGePoint3d>& points)
{
    QString text = DeclareArray(edges, edgeNames.size());
    text += DeclareArray(changed, changedNames.size());
    text += AssignElements(edges, edgeNames);
    text += kv::LineEnd();
    text += AssignElements(changed, changedNames);
    text += kv::LineEnd();
    text += Line("%1var PointOnEntityDblArray%2 = new Array(%3);\n", number, Coordinates(points));
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPIJavaScript::SearchTrimmed(const TrimSearch& search)
{
    QString properties;
    for (const auto& six : search.properties)
    {
        for (const double property : six)
        {
            properties += kv::Fill("%1,", General{property});
        }
    }
    properties.chop(1);
    QString text = Statement("%2"
                             "%1var selectionManager = mDoc.GetSelectionManager();%2%2"
                             "%1var selectionFilter = selectionManager.GetSelectionFilter();%2"
                             "%1selectionFilter.put_Active(false);%2%2"
                             "%1selectionManager.ClearSelections(\"kvSelectionSetType_Current\");%2"
                             "%1selectionManager.ClearSelections(\"kvSelectionSetType_Previous\");%2%2"
                             "%1var epsi = 0.1;%2"
                             "%1var mathUtility = mApp.GetMathUtility();%2%2"
                             "%1var selPts = new Array(%3), prop = new Array(%4);                "
                             "//selection points and properties%2",
                             Coordinates(search.selectionPoints), properties);
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
    text +=
        Statement("%1for (var iNewEnt = 0; iNewEnt < %3; iNewEnt++)%2"
                  "%1{%2"
                  "%1    var firstPoint = mathUtility.CreatePoint(selPts[iNewEnt*3] + epsi, "
                  "selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);%2"
                  "%1    var secondPoint = mathUtility.CreatePoint(selPts[iNewEnt*3] - epsi, "
                  "selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);%2%2"
                  "%1    selectionManager.SelectByWindow(firstPoint, secondPoint, true);%2%2"
                  "%1    var count = selectionManager.GetSelectedObjectCount(\"kvSelectionSetType_Previous\");%2%2"
                  "%1    for (var i = 0; i < count; i++)%2"
                  "%1    {%2"
                  "%1        var results = selectionManager.GetSelectedObject(\"kvSelectionSetType_Previous\", i);%2"
                  "%1        var retObjType = results[0];%2"
                  "%1        var obj = results[1];%2"
                  "%1        %4%2"
                  "%1    }%2"
                  "%1    selectionManager.ClearSelections(\"kvSelectionSetType_Previous\");%2"
                  "%1}%2%2",
                  search.Count(), blocks);
    return text;
}

namespace
{

// What tells the entities of a shape: the constant of the type, the stem of their variables and, where two points are
// compared in all coordinates, the calls that give them.
struct ShapeWords
{
    QLatin1String type;
    QLatin1String stem;
    QLatin1String first;
    QLatin1String second;
};

ShapeWords WordsOf(TrimSearch::Shape shape)
{
    using Shape = TrimSearch::Shape;
    const auto words = [](const char* type, const char* stem, const char* first = "", const char* second = "") {
        return ShapeWords{QLatin1String(type), QLatin1String(stem), QLatin1String(first), QLatin1String(second)};
    };
    switch (shape)
    {
    case Shape::Line:
        return words("kvLineType", "line", "GetFirstPoint()", "GetSecondPoint()");
    case Shape::Ray:
        return words("kvRayType", "ray", "GetBasePoint()", "GetThroughPoint()");
    case Shape::CircleArc:
        return words("kvCircleArcType", "circlearc");
    case Shape::EllipseArc:
        return words("kvEllipseArcType", "ellipsearc");
    case Shape::PolyLine3D:
        return words("kvPolyLine3DType", "polyline3d", "GetVertexCoordinate(0)", "GetVertexCoordinate(1)");
    case Shape::Spline:
        return words("kvSplineType", "spline", "GetControlPointCoordinate(0)", "GetControlPointCoordinate(1)");
    case Shape::PolyLine:
        return words("kvPolyLineType", "polyline", "GetVertexCoordinate(0)", "GetVertexCoordinate(1)");
    }
    return {};
}

} // namespace

QString CZtConverterKVAPIJavaScript::AssignTrimmed(TrimSearch::Shape shape, const TrimSearch::Assignment& assignment)
{
    return Statement("%1if (iNewEnt == %3)%2"
                     "%1    var %4%5 = kv%4;%2",
                     assignment.index, WordsOf(shape).stem, assignment.number);
}

QString CZtConverterKVAPIJavaScript::CompareTrimmed(TrimSearch::Shape shape, const QString& assignments,
                                                    const QString& prefix)
{
    using Shape = TrimSearch::Shape;
    const ShapeWords words = WordsOf(shape);
    QString text = Statement("%3if (retObjType == \"%4\")%2"
                             "%1{%2"
                             "%1    var kv%5 = obj;%2",
                             prefix, words.type, words.stem);
    switch (shape)
    {
    case Shape::CircleArc:
        text += Statement("%1    var center = kvcirclearc.GetCenter();%2"
                          "%1    var radius = kvcirclearc.get_Radius();%2"
                          "%1    var angleStart = kvcirclearc.get_StartAngle();%2"
                          "%1    var angleEnd = kvcirclearc.get_EndAngle();%2"
                          "%1    if (Math.abs(center.X - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        Math.abs(center.Y - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        Math.abs(center.Z - prop[iNewEnt*6 + 2]) < epsi &&%2"
                          "%1        Math.abs(radius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        Math.abs(angleStart - prop[iNewEnt*6 + 4]) < epsi &&%2"
                          "%1        Math.abs(angleEnd - prop[iNewEnt*6 + 5]) < epsi)%2");
        break;
    case Shape::EllipseArc:
        text += Statement("%1    var center = kvellipsearc.GetCenter();%2"
                          "%1    var majorRadius = kvellipsearc.get_MajorRadius();%2"
                          "%1    var minorRadius = kvellipsearc.get_MinorRadius();%2"
                          "%1    if (Math.abs(center.X - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        Math.abs(center.Y - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        Math.abs(center.Z - prop[iNewEnt*6 + 2]) < epsi &&%2"
                          "%1        Math.abs(majorRadius - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        Math.abs(minorRadius - prop[iNewEnt*6 + 4]) < epsi)%2");
        break;
    case Shape::PolyLine:
        text += Statement("%1    var first = kv%3.%4;%2"
                          "%1    var second = kv%3.%5;%2"
                          "%1    if (Math.abs(first.X - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        Math.abs(first.Y - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        Math.abs(second.X - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        Math.abs(second.Y - prop[iNewEnt*6 + 4]) < epsi)%2",
                          words.stem, words.first, words.second);
        break;
    case Shape::Line:
    case Shape::Ray:
    case Shape::PolyLine3D:
    case Shape::Spline:
        text += Statement("%1    var first = kv%3.%4;%2"
                          "%1    var second = kv%3.%5;%2"
                          "%1    if (Math.abs(first.X - prop[iNewEnt*6]) < epsi &&%2"
                          "%1        Math.abs(first.Y - prop[iNewEnt*6 + 1]) < epsi &&%2"
                          "%1        Math.abs(first.Z - prop[iNewEnt*6 + 2]) < epsi &&%2"
                          "%1        Math.abs(second.X - prop[iNewEnt*6 + 3]) < epsi &&%2"
                          "%1        Math.abs(second.Y - prop[iNewEnt*6 + 4]) < epsi &&%2"
                          "%1        Math.abs(second.Z - prop[iNewEnt*6 + 5]) < epsi)%2",
                          words.stem, words.first, words.second);
        break;
    }
    text += Statement("%1    {%2"
                      "%3%1        break;%2"
                      "%1    }%2"
                      "%1}%2",
                      assignments);
    return text;
}
