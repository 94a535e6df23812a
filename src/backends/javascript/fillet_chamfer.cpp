// JavaScript texts of fillet and chamfer; the logic stands in core/fillet_chamfer.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"

// The two entities with the points at which they were picked.
QString CZtConverterKVAPIJavaScript::CornerEntities(int number, const QStringList& firstNames,
                                                    const OdGePoint3d& firstPoint, const QStringList& secondNames,
                                                    const OdGePoint3d& secondPoint)
{
    const QString first = kv::Fill("firstEntityArray%1", number);
    const QString second = kv::Fill("secondEntityArray%1", number);
    QString text = DeclareArray(first, firstNames.size());
    text += DeclareArray(second, secondNames.size());
    text += kv::LineEnd();
    text += AssignElements(first, firstNames);
    text += AssignElements(second, secondNames);
    text += kv::LineEnd();
    text += Line("%1var firstPointOnEntityDblArray%2 = new Array(%3,%4,%5);\n", number, firstPoint);
    text += kv::LineEnd();
    text += Line("%1var secondPointOnEntityDblArray%2 = new Array(%3,%4,%5);\n", number, secondPoint);
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteFilletEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                         const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = JavaScriptCounters::OfProcess().WriteFilletEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetFilletOptions();
    text += kv::LineEnd();
    text += Line("%1mSkMgr.FilletEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteChamferEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                          const QStringList& secondNames,
                                                          const OdGePoint3d& secondPoint)
{
    const int number = JavaScriptCounters::OfProcess().WriteChamferEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetChamferOptions();
    text += kv::LineEnd();
    text += Line("%1mSkMgr.ChamferEntities(firstPointOnEntityDblArray%2, firstEntityArray%2, "
                 "secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteFilletChamferOptions(const QString& polyline, bool isFillet)
{
    return isFillet ? Statement("%3%2"
                                "%1mSkMgr.FilletPolyLine(%4);%2",
                                SetFilletOptions(), polyline)
                    : Statement("%3%1mSkMgr.ChamferPolyLine(%4);%2", SetChamferOptions(), polyline);
}
