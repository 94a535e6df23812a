// C# texts of fillet and chamfer; the logic stands in core/fillet_chamfer.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"

// The two entities with the points at which they were picked.
QString CZtConverterKVAPICSharp::CornerEntities(int number, const QStringList& firstNames,
                                                const OdGePoint3d& firstPoint, const QStringList& secondNames,
                                                const OdGePoint3d& secondPoint) const
{
    QString text =
        Line("%1DispatchWrapper[] firstEntityArray%2 = new DispatchWrapper[%3];\n", number, firstNames.size());
    text += Line("%1DispatchWrapper[] secondEntityArray%2 = new DispatchWrapper[%3];\n", number, secondNames.size());
    text += Line("%1double[] firstPointOnEntityDblArray%2 = new double[3];\n", number);
    text += Line("%1double[] secondPointOnEntityDblArray%2 = new double[3];\n\n", number);
    text += EntityElements("%1firstEntityArray%2[%3] = new DispatchWrapper(%4);\n", number, firstNames);
    text += EntityElements("%1secondEntityArray%2[%3] = new DispatchWrapper(%4);\n", number, secondNames);
    text += kv::LineEnd();
    text += RealElements("%1firstPointOnEntityDblArray%2[%4] = %3;\n", number, {&firstPoint, 1});
    text += kv::LineEnd();
    text += RealElements("%1secondPointOnEntityDblArray%2[%4] = %3;\n", number, {&secondPoint, 1});
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICSharp::WriteFilletEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                     const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = CSharpCounters::OfProcess().WriteFilletEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetFilletOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager.FilletEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICSharp::WriteChamferEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                      const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = CSharpCounters::OfProcess().WriteChamferEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetChamferOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager.ChamferEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICSharp::WriteFilletChamferOptions(const QString& polyline, bool isFillet)
{
    return isFillet ? Statement("%3%2"
                                "%1kvSketchManager.FilletPolyLine( %4 );%2",
                                SetFilletOptions(), polyline)
                    : Statement("%3%1kvSketchManager.ChamferPolyLine( %4 );%2", SetChamferOptions(), polyline);
}
