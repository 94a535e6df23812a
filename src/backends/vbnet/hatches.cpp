// VB.NET texts of hatches, embedded objects and regions; the logic stands in core/hatches.cpp and objects/hatches.cpp.
#include "backends/text/color_expression.h"
#include "backends/vbnet/converter.h"
#include "backends/vbnet/object.h"

using kv::Fixed;
using kv::General;

QString CZtConverterKVAPIVbNet::WriteInsertHatchByEntities(const QString& target, const QString& boundary,
                                                           const QString& pattern, double scale, double angle,
                                                           bool erase)
{
    QString text = Statement("%2"
                             "%1Dim kvEntities As DispatchWrapper() = New DispatchWrapper( 0 ) {}%2"
                             "%1kvEntities( 0 ) = New DispatchWrapper( %6 )%2"
                             "%1%7 = kvSketchManager.InsertHatchByEntities( _%2"
                             "%1 kvEntities, _%2"
                             "%1 \"%3\", _%2"
                             "%1 %4, _%2"
                             "%1 %5 )%2",
                             pattern, General{scale}, General{angle}, boundary, target);
    if (erase)
    {
        text += Statement("%2"
                          "%1%3.Erased = %4%2",
                          boundary, FlagWord(true));
    }
    return text;
}

QString CZtConverterKVAPIVbNet::WriteGradientColors(const QString& hatch, const OdCmColor& color1,
                                                    const OdCmColor& color2, bool centered, double value)
{
    return Statement("%1Dim kvHatchPattern%3 As Morvane.HatchPattern = %4.GetHatchPattern()%2"
                     "%1kvHatchPattern%3.SetGradientData( %5, %6, %7, %8)%2",
                     NextLocalNumber(), hatch, kv::ColorExpression(color1), kv::ColorExpression(color2),
                     FlagWord(centered), General{value});
}

QString CZtConverterKVAPIVbNet::WriteInsertEmbeddedObject(const QString& target, const QString& path, bool flag0,
                                                          bool flag1)
{
    return Statement("%1%6 = kvSketchManager.InsertEmbeddedObjectFromFile( _%2"
                     "%1 \"%3\", _%2"
                     "%1 %4, _%2"
                     "%1 %5)%2",
                     path, FlagWord(flag0), FlagWord(flag1), target);
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertRegion(const QString& target, const QStringList& names,
                                                        std::int32_t counter)
{
    QString text = DeclareEntities("regionEntities", counter, names.size());
    text += EntityElements("regionEntities", counter, names);
    text += Statement("%1Dim regions%3 As Object = kvSketchManager.InsertRegion( regionEntities%3 )%2"
                      "%1%4 = regions%3(0)%2",
                      counter, target);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertHatchByBoundary(const QString& target,
                                                                 const OdArray<std::int32_t>& counts,
                                                                 const OdArray<OdGePoint2d>& points,
                                                                 const QString& pattern, double scale, double angle)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim Coordinates%3(%4) As Double%2"
        "%1Dim BoundaryPointCountLongArray%3(%5) As Long%2%2"
        "%6%2"
        "%7%2"
        "%1%11 = kvSketchManager.InsertHatchByBoundary( BoundaryPointCountLongArray%3, Coordinates%3, "
        "\"%8\", %9, %10 )%2",
        number, HighestIndex2D(points), static_cast<int>(counts.size()) - 1, WriteCoordinateElements2D(number, points),
        CountElements("BoundaryPointCountLongArray", number, counts), pattern, Fixed{scale}, Fixed{angle}, target);
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertHatchByInternalPoints(const QString& target,
                                                                       const OdArray<OdGePoint2d>& points,
                                                                       const QString& pattern, double scale,
                                                                       double angle)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim Coordinates%3(%4) As Double%2%2"
                     "%5%2"
                     "%1%9 = kvSketchManager.InsertHatchByInternalPoints( Coordinates%3, \"%6\", %7, %8 )%2",
                     number, HighestIndex2D(points), WriteCoordinateElements2D(number, points), pattern, Fixed{scale},
                     Fixed{angle}, target);
}

QString CZtConverterKVAPIObjectVbNet::WriteHatchBoundaryEntities(const QString& target, const QStringList& names,
                                                                 const QString& pattern, double scale, double angle)
{
    QString text =
        Statement("%2%1Dim kvEntities As DispatchWrapper() = New DispatchWrapper( %3 ) {}%2", names.size() - 1);
    for (int i = 0; i < names.size(); ++i)
    {
        text += Statement("%1kvEntities( %3 ) = New DispatchWrapper( %4 )%2", i, names.at(i));
    }
    text += Statement("%1%6 = kvSketchManager.InsertHatchByEntities( _%2"
                      "%1 kvEntities, _%2"
                      "%1 \"%3\", _%2"
                      "%1 %4, _%2"
                      "%1 %5 )%2",
                      pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}
