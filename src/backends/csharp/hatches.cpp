// C# texts of hatches, embedded objects and regions; the logic stands in core/hatches.cpp and objects/hatches.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/object.h"
#include "backends/text/color_expression.h"
#include "backends/text/coordinate_list.h"

using kv::Fixed;
using kv::General;

QString CZtConverterKVAPICSharp::WriteInsertHatchByEntities(const QString& target, const QString& boundary,
                                                            const QString& pattern, double scale, double angle,
                                                            bool erase)
{
    QString text = Statement("%2"
                             "%1DispatchWrapper[] kvEntities = new DispatchWrapper[1];%2"
                             "%1kvEntities[0] = new DispatchWrapper(%6);%2"
                             "%1%7 = kvSketchManager.InsertHatchByEntities(%2"
                             "%1 kvEntities, %2"
                             "%1 \"%3\", %2"
                             "%1 %4, %2"
                             "%1 %5 );%2",
                             pattern, General{scale}, General{angle}, boundary, target);
    if (erase)
    {
        text += Statement("%2"
                          "%1%3.Erased = %4;%2",
                          boundary, FlagWord(true));
    }
    return text;
}

QString CZtConverterKVAPICSharp::WriteGradientColors(const QString& hatch, const OdCmColor& color1,
                                                     const OdCmColor& color2, bool centered, double value)
{
    return Statement("%1HatchPattern kvHatchPattern%3 = %4.GetHatchPattern();%2"
                     "%1kvHatchPattern%3.SetGradientData( %5, %6, %7, %8);%2",
                     NextLocalNumber(), hatch, kv::ColorExpression(color1), kv::ColorExpression(color2),
                     FlagWord(centered), General{value});
}

QString CZtConverterKVAPICSharp::WriteInsertEmbeddedObject(const QString& target, const QString& path, bool flag0,
                                                           bool flag1)
{
    return Statement("%1%6 = kvSketchManager.InsertEmbeddedObjectFromFile(%2"
                     "%1 \"%3\", %2"
                     "%1 %4, %2"
                     "%1 %5);%2",
                     path, FlagWord(flag0), FlagWord(flag1), target);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertRegion(const QString& target, const QStringList& names,
                                                         std::int32_t counter)
{
    QString text =
        Statement("%1DispatchWrapper[] regionEntities%3 = new DispatchWrapper[%4];%2", counter, names.size());
    for (int i = 0; i < names.size(); ++i)
    {
        text += Statement("%1regionEntities%3[%4] = new DispatchWrapper(%5);%2", counter, i, names.at(i));
    }
    text += Statement("%1object[] regions%3 = (object[])kvSketchManager.InsertRegion( regionEntities%3 );%2"
                      "%1%4 = (Region)regions%3[0];%2",
                      counter, target);
    return text;
}

// The arrays of a hatch take a number in every language, though they need no local here.

QString CZtConverterKVAPIObjectCSharp::WriteInsertHatchByBoundary(const QString& target,
                                                                  const OdArray<std::int32_t>& counts,
                                                                  const OdArray<OdGePoint2d>& points,
                                                                  const QString& pattern, double scale, double angle)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%8 = kvSketchManager.InsertHatchByBoundary( new int[]{%3}, new double[]{%4}, "
                     "\"%5\", %6, %7 );%2",
                     kv::IntegerList(counts), kv::CoordinateList<kv::FixedPoint2d>(points), pattern, Fixed{scale},
                     Fixed{angle}, target);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertHatchByInternalPoints(const QString& target,
                                                                        const OdArray<OdGePoint2d>& points,
                                                                        const QString& pattern, double scale,
                                                                        double angle)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%7 = kvSketchManager.InsertHatchByInternalPoints( new double[]{%3}, \"%4\", %5, %6 );%2",
                     kv::CoordinateList<kv::FixedPoint2d>(points), pattern, Fixed{scale}, Fixed{angle}, target);
}

QString CZtConverterKVAPIObjectCSharp::WriteHatchBoundaryEntities(const QString& target, const QStringList& names,
                                                                  const QString& pattern, double scale, double angle)
{
    QString text = Statement("%2%1DispatchWrapper[] kvEntities = new DispatchWrapper[%3];%2", names.size());
    for (int i = 0; i < names.size(); ++i)
    {
        text += Statement("%1kvEntities[%3] = new DispatchWrapper(%4);%2", i, names.at(i));
    }
    text += Statement("%1%6 = kvSketchManager.InsertHatchByEntities(%2"
                      "%1 kvEntities, %2"
                      "%1 \"%3\", %2"
                      "%1 %4, %2"
                      "%1 %5 );%2",
                      pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}
