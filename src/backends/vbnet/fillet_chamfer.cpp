// VB.NET texts of fillet and chamfer; the logic stands in core/fillet_chamfer.cpp.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

// The two blanks ahead of the second array of entities are the format's.

QString CZtConverterKVAPIVbNet::WriteFilletEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                    const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = VbNetCounters::OfProcess().WriteFilletEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetFilletOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager.FilletEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2)\n",
                 number);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteChamferEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                     const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = VbNetCounters::OfProcess().WriteChamferEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetChamferOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager.ChamferEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2)\n",
                 number);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteFilletChamferOptions(const QString& polyline, bool isFillet)
{
    return isFillet ? Statement("%3%2"
                                "%1kvSketchManager.FilletPolyLine( %4 )%2",
                                SetFilletOptions(), polyline)
                    : Statement("%3%1kvSketchManager.ChamferPolyLine( %4 )%2", SetChamferOptions(), polyline);
}
