// C++ API texts of fillet and chamfer; the logic stands in core/fillet_chamfer.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"

using kv::General;

// The two entities with the points at which they were picked.
QString CZtConverterKVAPICPP::CornerEntities(int number, const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                             const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    QString text = Line("%1kvObjectPtrArray firstEntityArray%2;\n", number);
    text += Line("%1kvObjectPtrArray secondEntityArray%2;\n", number);
    text += Line("%1kvDoubleArray firstPointOnEntityDblArray%2;\n", number);
    text += Line("%1kvDoubleArray secondPointOnEntityDblArray%2;\n\n", number);
    for (const QString& name : firstNames)
    {
        text += Line("%1firstEntityArray%2.add(%3);\n", number, name);
    }
    for (const QString& name : secondNames)
    {
        text += Line("%1secondEntityArray%2.add(%3);\n", number, name);
    }
    text += kv::LineEnd();
    for (const double coordinate : {firstPoint.x, firstPoint.y, firstPoint.z})
    {
        text += Line("%1firstPointOnEntityDblArray%2.add(%3);\n", number, General{coordinate});
    }
    text += kv::LineEnd();
    for (const double coordinate : {secondPoint.x, secondPoint.y, secondPoint.z})
    {
        text += Line("%1secondPointOnEntityDblArray%2.add(%3);\n", number, General{coordinate});
    }
    text += kv::LineEnd();
    return text;
}

QString CZtConverterKVAPICPP::WriteFilletEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                  const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = CppCounters::OfProcess().WriteFilletEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetFilletOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager->FilletEntities(firstPointOnEntityDblArray%2, firstEntityArray%2"
                 ", secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICPP::WriteChamferEntities(const QStringList& firstNames, const OdGePoint3d& firstPoint,
                                                   const QStringList& secondNames, const OdGePoint3d& secondPoint)
{
    const int number = CppCounters::OfProcess().WriteChamferEntities++;
    QString text = CornerEntities(number, firstNames, firstPoint, secondNames, secondPoint);
    text += SetChamferOptions();
    text += kv::LineEnd();
    text += Line("%1kvSketchManager->ChamferEntities(firstPointOnEntityDblArray%2, firstEntityArray%2"
                 ", secondPointOnEntityDblArray%2,  secondEntityArray%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICPP::WriteFilletChamferOptions(const QString& polyline, bool isFillet)
{
    return isFillet ? Statement("%3%2"
                                "%1kvSketchManager->FilletPolyLine( %4 );%2",
                                SetFilletOptions(), polyline)
                    : Statement("%3%1kvSketchManager->ChamferPolyLine( %4 );%2", SetChamferOptions(), polyline);
}
