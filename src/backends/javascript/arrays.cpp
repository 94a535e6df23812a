// JavaScript texts of the arrays that operations of the journal side take.
#include "backends/javascript/converter.h"
#include "backends/text/coordinate_list.h"

using kv::GeneralPoint;
using kv::GeneralPoint2d;

QString CZtConverterKVAPIJavaScript::DeclareArray(const QString& array, int size)
{
    return Line("%1var %2 = new Array(%3);\n", array, size);
}

QString CZtConverterKVAPIJavaScript::AssignElements(const QString& array, const QStringList& names)
{
    QString text;
    for (int i = 0; i < names.size(); ++i)
    {
        text += Line("%1%2[%3] = %4;\n", array, i, names.at(i));
    }
    return text;
}

QString CZtConverterKVAPIJavaScript::CoordinateArray(const QString& array, const OdArray<OdGePoint2d>& points)
{
    return Line("%1var %2 = new Array(%3);\n", array, kv::CoordinateList<GeneralPoint2d>(points));
}

QString CZtConverterKVAPIJavaScript::Coordinates(std::span<const OdGePoint3d> points)
{
    QStringList triples;
    for (const OdGePoint3d& point : points)
    {
        triples.append(kv::Fill<GeneralPoint>("%1,%2,%3", GeneralPoint{point}));
    }
    return triples.join(QLatin1Char(','));
}
