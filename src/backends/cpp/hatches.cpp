// C++ API texts of hatches, embedded objects and regions; the logic stands in core/hatches.cpp and objects/hatches.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/object.h"

using kv::Fixed;
using kv::General;

QString CZtConverterKVAPICPP::WriteInsertHatchByEntities(const QString& target, const QString& boundary,
                                                         const QString& pattern, double scale, double angle, bool erase)
{
    QString text = Statement("%2"
                             "%1kvObjectPtrArray kvEntities;%2"
                             "%1kvEntities.add( %6 );%2"
                             "%1kvSketchManager->InsertHatchByEntities(%2"
                             "%1 kvEntities, %2"
                             "%1 L\"%3\", %2"
                             "%1 %4, %2"
                             "%1 %5, &%7 );%2",
                             pattern, General{scale}, General{angle}, boundary, target);
    if (erase)
    {
        text += Statement("%2"
                          "%1%3->put_Erased( %4 );%2",
                          boundary, FlagWord(true));
    }
    return text;
}

QString CZtConverterKVAPICPP::WriteGradientColors(const QString& hatch, const OdCmColor& color1,
                                                  const OdCmColor& color2, bool centered, double value)
{
    const std::int32_t number = NextLocalNumber();
    QString text;
    text += color1.colorMethod() != OdCmColor::Method::ByColor
                ? Statement("%2"
                            "%1kvColor_ptr kvColor1%3;%2"
                            "%1m_pKvApp->GetColorByIndex( %4, &kvColor1%3 );%2%2",
                            number, color1.colorIndex())
                : Statement("%2"
                            "%1kvColor_ptr kvColor1%3;%2"
                            "%1m_pKvApp->GetRGBColor( %4, %5, %6, &kvColor1%3 );%2%2",
                            number, int{color1.red()}, int{color1.green()}, int{color1.blue()});
    text += color2.colorMethod() != OdCmColor::Method::ByColor
                ? Statement("%2"
                            "%1kvColor_ptr kvColor2%3;%2"
                            "%1m_pKvApp->GetColorByIndex( %4, &kvColor2%3 );%2%2",
                            number, color2.colorIndex())
                : Statement("%2"
                            "%1kvColor_ptr kvColor2%3;%2"
                            "%1m_pKvApp->GetRGBColor( %4, %5, %6, &kvColor2%3 );%2%2",
                            number, int{color2.red()}, int{color2.green()}, int{color2.blue()});
    text += Statement("%1kvHatchPattern_ptr kvHatchPattern%3;%2"
                      "%1%6->GetHatchPattern( &kvHatchPattern%3 );%2"
                      "%1kvHatchPattern%3->SetGradientData( kvColor1%3, kvColor2%3, %4, %5);%2",
                      number, FlagWord(centered), General{value}, hatch);
    return text;
}

QString CZtConverterKVAPICPP::WriteInsertEmbeddedObject(const QString& target, const QString& path, bool flag0,
                                                        bool flag1)
{
    return Statement("%1 kvSketchManager->InsertEmbeddedObjectFromFile(%2"
                     "%1 L\"%3\", %2"
                     "%1 %4, %2"
                     "%1 %5 ,&%6);%2",
                     path, FlagWord(flag0), FlagWord(flag1), target);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertRegion(const QString& target, const QStringList& names,
                                                      std::int32_t counter)
{
    QString text = Statement("%1kvObjectPtrArray regionEntities%3;%2", counter);
    for (const QString& name : names)
    {
        text += Statement("%1regionEntities%3.add( %4 );%2", counter, name);
    }
    text += Statement("%1kvObjectPtrArray regions%3;%2"
                      "%1kvSketchManager->InsertRegion( regionEntities%3, &regions%3 );%2"
                      "%1%4 =(kvRegion_c*)regions%3[0];%2",
                      counter, target);
    return text;
}

QString CZtConverterKVAPIObjectCPP::CoordinateLines(std::int32_t number, const OdArray<OdGePoint2d>& points) const
{
    QString text;
    for (const OdGePoint2d& point : points)
    {
        text += Statement("%1Coordinates%3.add(%4);Coordinates%3.add(%5);%2", number, point);
    }
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertHatchByBoundary(const QString& target,
                                                               const OdArray<std::int32_t>& counts,
                                                               const OdArray<OdGePoint2d>& points,
                                                               const QString& pattern, double scale, double angle)
{
    const std::int32_t number = NextLocalNumber();
    QString countLines;
    for (const std::int32_t count : counts)
    {
        countLines += Statement("%1%3%4.add(%5);%2", "BoundaryPointCountLongArray", number, count);
    }
    return Statement("%1kvDoubleArray Coordinates%3;%2"
                     "%1kvLongArray BoundaryPointCountLongArray%3;%2"
                     "%1BoundaryPointCountLongArray%3.clear();%2"
                     "%1Coordinates%3.clear();%2%2"
                     "%4%2"
                     "%5%2"
                     "%1kvSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray%3, Coordinates%3, "
                     "L\"%6\", %7, %8, &%9 );%2",
                     number, CoordinateLines(number, points), countLines, pattern, Fixed{scale}, Fixed{angle}, target);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertHatchByInternalPoints(const QString& target,
                                                                     const OdArray<OdGePoint2d>& points,
                                                                     const QString& pattern, double scale, double angle)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvDoubleArray Coordinates%3;%2"
                     "%1Coordinates%3.clear();%2%2"
                     "%4%2"
                     "%1kvSketchManager->InsertHatchByInternalPoints( Coordinates%3, L\"%5\", %6, %7, &%8 );%2",
                     number, CoordinateLines(number, points), pattern, Fixed{scale}, Fixed{angle}, target);
}

QString CZtConverterKVAPIObjectCPP::WriteHatchBoundaryEntities(const QString& target, const QStringList& names,
                                                               const QString& pattern, double scale, double angle)
{
    QString text = Statement("%2%1kvObjectPtrArray kvEntities;%2");
    for (const QString& name : names)
    {
        text += Statement("%1kvEntities.add( %3 );%2", name);
    }
    text +=
        Statement("%1kvSketchManager->InsertHatchByEntities(%2%1 kvEntities, %2%1 L\"%3\", %2%1 %4, %2%1 %5, &%6 );%2",
                  pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}
