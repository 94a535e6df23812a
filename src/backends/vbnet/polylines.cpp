// VB.NET texts of polylines; the logic stands in objects/polylines.cpp.
#include "backends/text/enumerations.h"
#include "backends/vbnet/object.h"

using kv::Fixed;

// A number is taken in every language, though nothing is declared here.

QString CZtConverterKVAPIObjectVbNet::WriteInsertPolyline2D(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                            bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text +=
        Statement("%1%5 = kvSketchManager.InsertPolyline2D( Coordinates%3, %4 )%2", number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertPolyline3D(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                            bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text +=
        Statement("%1%5 = kvSketchManager.InsertPolyline3D( Coordinates%3, %4 )%2", number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertRichLine(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                          const QString& justification, double scale,
                                                          const QString& style, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%8 = kvSketchManager.InsertRichLine( Coordinates%3, %4, %5, \"%6\", %7 )%2", number,
                      kv::FormOfConstant(kv::EnumForm::Morvane, justification), Fixed{scale}, style, FlagWord(closed),
                      variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                           std::int32_t index, double value)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.%4( %5, %6 )%2", variable, setter, index, Fixed{value});
}

QString CZtConverterKVAPIObjectVbNet::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.SetSegmentAngle( %4, %5 )%2", variable, index, Fixed{angle});
}

QString CZtConverterKVAPIObjectVbNet::WriteSetVertex2D(const QString& variable, Axis axis, double value,
                                                       std::int32_t index)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1Dim X%3 As Double%2", number);
    text += Statement("%1Dim Y%3 As Double%2", number);
    text += Line("%1%2.GetVertexCoordinate( %3, X%5, Y%5 )%4", variable, index, kv::LineEnd(), number);
    text += Line("%1%2%5 = %3%4", AxisName(axis), Fixed{value}, kv::LineEnd(), number);
    text += Line("%1%2.SetVertexCoordinate( %3, X%5, Y%5 )%4", variable, index, kv::LineEnd(), number);
    return text;
}
