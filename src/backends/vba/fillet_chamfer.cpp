// VBA texts of fillet and chamfer; the logic stands in core/fillet_chamfer.cpp.
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"

// The two blanks ahead of the second array of entities are the format's.

QString CZtConverterKVAPIVba::WriteFilletEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                  const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = VbaCounters::OfProcess().WriteFilletEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetFilletOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager.FilletEntities firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2\n",
                 number);
    return text;
}

QString CZtConverterKVAPIVba::WriteChamferEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                   const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = VbaCounters::OfProcess().WriteChamferEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetChamferOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager.ChamferEntities firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2\n",
                 number);
    return text;
}

QString CZtConverterKVAPIVba::WriteFilletChamferOptions(const QString& polyline, bool isFillet)
{
    return isFillet ? Statement("%3%2"
                                "%1kvSketchManager.FilletPolyLine %4%2",
                                SetFilletOptions(), polyline)
                    : Statement("%3%1kvSketchManager.ChamferPolyLine %4%2", SetChamferOptions(), polyline);
}
