// C++ API texts of polylines; the logic stands in objects/polylines.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertPolyline2D(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                          bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertPolyline2D( Coordinates%3, %4, &%5 );%2", number, FlagWord(closed),
                      variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertPolyline3D(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                          bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertPolyline3D( Coordinates%3, %4, &%5 );%2", number, FlagWord(closed),
                      variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertRichLine(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                        const QString& justification, double scale,
                                                        const QString& style, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertRichLine( Coordinates%3, %4, %5, L\"%6\", %7, &%8 );%2", number,
                      kv::FormOfConstant(kv::EnumForm::Bare, justification), Fixed{scale}, style, FlagWord(closed),
                      variable);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                         std::int32_t index, double value)
{
    return Statement("%1bool bRetVal%7 = false;%2%1%3->%4( %5, %6, &bRetVal%7 );%2", variable, setter, index,
                     Fixed{value}, NextLocalNumber());
}

QString CZtConverterKVAPIObjectCPP::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    return Statement("%1bool bRet%3 = false;%2"
                     "%1%4->SetSegmentAngle( %5, %6, &bRet%3 );%2",
                     NextLocalNumber(), variable, index, Fixed{angle});
}

QString CZtConverterKVAPIObjectCPP::WriteSetVertex2D(const QString& variable, Axis axis, double value,
                                                     std::int32_t index)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1double X%3;%2", number);
    text += Statement("%1double Y%3;%2", number);
    text += Statement("%1bool bRetVal%3 = false;%2", number);
    text += Line("%1%2->GetVertexCoordinate( %3, &X%5, &Y%5, &bRetVal%5 );%4", variable, index, kv::LineEnd(), number);
    text += Line("%1%2%5 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd(), number);
    text += Line("%1%2->SetVertexCoordinate( %3, X%5, Y%5, &bRetVal%5 );%4", variable, index, kv::LineEnd(), number);
    return text;
}

QString CZtConverterKVAPIObjectCPP::CoordinateLines(std::int32_t number, const OdArray<OdGePoint3d>& points) const
{
    QString text;
    for (const OdGePoint3d& point : points)
    {
        text += Statement("%1Coordinates%3.add(%4);Coordinates%3.add(%5);Coordinates%3.add(%6);%2", number, point);
    }
    return text;
}
