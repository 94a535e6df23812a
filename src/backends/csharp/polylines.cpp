// C# texts of polylines; the logic stands in objects/polylines.cpp. The success of a setter is its result, which
// nothing reads; it takes a number in every language all the same.
#include "backends/csharp/object.h"
#include "backends/text/coordinate_list.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteInsertPolyline2D(const QString& variable,
                                                             const OdArray<OdGePoint2d>& points, bool closed)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%5 = kvSketchManager.InsertPolyline2D(%2%1 new double[]{%3},%2%1 %4 );%2",
                     kv::CoordinateList<kv::FixedPoint2d>(points), FlagWord(closed), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertPolyline3D(const QString& variable,
                                                             const OdArray<OdGePoint3d>& points, bool closed)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%5 = kvSketchManager.InsertPolyline3D(%2%1 new double[]{%3},%2%1 %4 );%2",
                     kv::CoordinateList<kv::FixedPoint>(points), FlagWord(closed), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertRichLine(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                           const QString& justification, double scale,
                                                           const QString& style, bool closed)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%8 = kvSketchManager.InsertRichLine( new double[]{%3}, %4, %5, \"%6\", %7 );%2",
                     kv::CoordinateList<kv::FixedPoint>(points),
                     kv::FormOfConstant(kv::EnumForm::Qualified, justification), Fixed{scale}, style, FlagWord(closed),
                     variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                            std::int32_t index, double value)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.%4( %5, %6 );%2", variable, setter, index, Fixed{value});
}

QString CZtConverterKVAPIObjectCSharp::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.SetSegmentAngle( %4, %5 );%2", variable, index, Fixed{angle});
}

QString CZtConverterKVAPIObjectCSharp::WriteSetVertex2D(const QString& variable, Axis axis, double value,
                                                        std::int32_t index)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1double X%3;%2", number);
    text += Statement("%1double Y%3;%2", number);
    text += Line("%1%2.GetVertexCoordinate( %3, out X%5, out Y%5 );%4", variable, index, kv::LineEnd(), number);
    text += Line("%1%2%5 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd(), number);
    text += Line("%1%2.SetVertexCoordinate( %3, X%5, Y%5 );%4", variable, index, kv::LineEnd(), number);
    return text;
}
