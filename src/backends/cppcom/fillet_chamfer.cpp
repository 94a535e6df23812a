// C++ COM texts of fillet and chamfer; the logic stands in core/fillet_chamfer.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/safe_array.h"

// The two entities with the points at which they were picked.
QString CZtConverterKVAPICPPCOM::CornerEntities(int number, const QStringList& firstNames,
                                                const OdGePoint3d& firstPoint, const QStringList& secondNames,
                                                const OdGePoint3d& secondPoint)
{
    const SafeArrayText firstEntities(SafeArrayText::Kind::Entities, "firstEntityArray", number);
    const SafeArrayText secondEntities(SafeArrayText::Kind::Entities, "secondEntityArray", number);
    const SafeArrayText firstPoints(SafeArrayText::Kind::Doubles, "firstPointOnEntityDblArray", number);
    const SafeArrayText secondPoints(SafeArrayText::Kind::Doubles, "secondPointOnEntityDblArray", number);
    QString text = firstEntities.Declare(CurrentIndent(), firstNames.size());
    text += secondEntities.Declare(CurrentIndent(), secondNames.size());
    text += firstPoints.Declare(CurrentIndent(), 3);
    text += secondPoints.Declare(CurrentIndent(), 3);
    text += kv::LineEnd();
    text += firstEntities.Block(CurrentIndent(), firstNames);
    text += secondEntities.Block(CurrentIndent(), secondNames);
    text += kv::LineEnd();
    text += firstPoints.Block(CurrentIndent(), CoordinateTexts(firstPoint, kv::GeneralText));
    text += kv::LineEnd();
    text += secondPoints.Block(CurrentIndent(), CoordinateTexts(secondPoint, kv::GeneralText));
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteFilletEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                     const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = ComCounters::OfProcess().WriteFilletEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetFilletOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager->FilletEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteChamferEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                      const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = ComCounters::OfProcess().WriteChamferEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetChamferOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager->ChamferEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteFilletChamferOptions(const QString& polyline, bool isFillet)
{
    return isFillet ? Statement("%3%2"
                                "%1kvSketchManager->FilletPolyLine( %4 );%2",
                                SetFilletOptions(), polyline)
                    : Statement("%3%1kvSketchManager->ChamferPolyLine( %4 );%2", SetChamferOptions(), polyline);
}
