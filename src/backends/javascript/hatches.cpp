// JavaScript texts of hatches, embedded objects and regions; the logic stands in core/hatches.cpp and
// objects/hatches.cpp.
#include "backends/javascript/color_expression.h"
#include "backends/javascript/converter.h"
#include "backends/javascript/object.h"
#include "backends/text/coordinate_list.h"

using kv::Fixed;
using kv::General;

QString CZtConverterKVAPIJavaScript::WriteInsertHatchByEntities(const QString& target, const QString& boundary,
                                                                const QString& pattern, double scale, double angle,
                                                                bool erase)
{
    // "kvSketchManager" and the target without a declaration are the format's.
    QString text = Statement("%2"
                             "%1var kvEntities = new Array(1);%2"
                             "%1kvEntities[0] = %6;%2"
                             "%1%7 = kvSketchManager.InsertHatchByEntities(%2"
                             "%1 kvEntities, %2"
                             "%1 \"%3\", %2"
                             "%1 %4, %2"
                             "%1 %5 );%2",
                             pattern, General{scale}, General{angle}, boundary, target);
    if (erase)
    {
        text += Statement("%2"
                          "%1%3.put_Erased(%4);%2",
                          boundary, FlagWord(true));
    }
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteGradientColors(const QString& hatch, const OdCmColor& color1,
                                                         const OdCmColor& color2, bool centered, double value)
{
    return Statement("%1var kvHatchPattern%3 = %6.GetHatchPattern();%2"
                     "%1kvHatchPattern%3.SetGradientData(%7, %8, %4, %5);%2",
                     NextLocalNumber(), FlagWord(centered), General{value}, hatch, kv::ScriptColor(color1),
                     kv::ScriptColor(color2));
}

QString CZtConverterKVAPIJavaScript::WriteInsertEmbeddedObject(const QString& target, const QString& path, bool flag0,
                                                               bool flag1)
{
    return Statement("%1 var %6 = mSkMgr.InsertEmbeddedObjectFromFile(%2"
                     "%1 \"%3\", %2"
                     "%1 %4, %2"
                     "%1 %5);%2",
                     path, FlagWord(flag0), FlagWord(flag1), target);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertRegion(const QString& target, const QStringList& names,
                                                             std::int32_t counter)
{
    QString text = Statement("%1var regionEntities%3 = new Array(%4);%2", counter, names.size());
    for (int i = 0; i < names.size(); ++i)
    {
        text += Statement("%1regionEntities%3[%4] = %5;%2", counter, i, names.at(i));
    }
    text += Statement("%1var regions%3 = mSkMgr.InsertRegion(regionEntities%3);%2"
                      "%1var %4 = regions%3[0];%2",
                      counter, target);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertHatchByBoundary(const QString& target,
                                                                      const OdArray<std::int32_t>& counts,
                                                                      const OdArray<OdGePoint2d>& points,
                                                                      const QString& pattern, double scale,
                                                                      double angle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Line("%1var hatchPoints%2 = new Array(%3);\n", number, kv::CoordinateList<kv::FixedPoint2d>(points));
    text += kv::LineEnd();
    // The count of a single loop makes an array of that length; the format's.
    text += Line("%1var boundaryPointsCount%2 = new Array(%3);\n", number, kv::IntegerList(counts));
    text += kv::LineEnd();
    text += Statement("%1var %7 = mSkMgr.InsertHatchByBoundary(boundaryPointsCount%3, hatchPoints%3, \"%4\", %5, "
                      "%6);%2",
                      number, pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertHatchByInternalPoints(const QString& target,
                                                                            const OdArray<OdGePoint2d>& points,
                                                                            const QString& pattern, double scale,
                                                                            double angle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Line("%1var polyPoints%2 = new Array(%3);\n", number, kv::CoordinateList<kv::FixedPoint2d>(points));
    text += kv::LineEnd();
    text += Statement("%1var %7 = mSkMgr.InsertHatchByInternalPoints(polyPoints%3, \"%4\", %5, %6);%2", number, pattern,
                      Fixed{scale}, Fixed{angle}, target);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteHatchBoundaryEntities(const QString& target, const QStringList& names,
                                                                      const QString& pattern, double scale,
                                                                      double angle)
{
    QString text = Statement("%2"
                             "%1var kvEntities = new Array(%3);%2",
                             names.size());
    for (int i = 0; i < names.size(); ++i)
    {
        text += Statement("%1kvEntities[%3] = %4;%2", i, names.at(i));
    }
    text += Statement("%1var %6 = mSkMgr.InsertHatchByEntities(%2"
                      "%1 kvEntities, %2"
                      "%1 \"%3\", %2"
                      "%1 %4, %2"
                      "%1 %5);%2",
                      pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}
