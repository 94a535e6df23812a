// C++ COM texts of hatches, embedded objects and regions; the logic stands in core/hatches.cpp and objects/hatches.cpp.
#include "backends/cppcom/color_expression.h"
#include "backends/cppcom/converter.h"
#include "backends/cppcom/object.h"
#include "backends/cppcom/safe_array.h"

using kv::Fixed;
using kv::General;

QString CZtConverterKVAPICPPCOM::WriteInsertHatchByEntities(const QString& target, const QString& boundary,
                                                            const QString& pattern, double scale, double angle,
                                                            bool erase)
{
    const SafeArrayText entities(SafeArrayText::Kind::Entities, "kvEntities");
    QString text = kv::LineEnd();
    text += entities.Declare(CurrentIndent(), 1);
    text += entities.Block(CurrentIndent(), {boundary});
    text += Statement("%1%6 = kvSketchManager->InsertHatchByEntities(%2"
                      "%1 kvEntities, %2"
                      "%1 L\"%3\", %2"
                      "%1 %4, %2"
                      "%1 %5 );%2",
                      pattern, General{scale}, General{angle}, target);
    if (erase)
    {
        text += Statement("%2"
                          "%1%3->put_Erased( %4 );%2",
                          boundary, FlagWord(true));
    }
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteGradientColors(const QString& hatch, const OdCmColor& color1,
                                                     const OdCmColor& color2, bool centered, double value)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%2"
                             "%1IColorPtr kvColor1%3 = %4;%2%2",
                             number, ColorExpression(color1));
    text += Statement("%2"
                      "%1IColorPtr kvColor2%3 = %4;%2%2",
                      number, ColorExpression(color2));
    text += Statement("%1IHatchPatternPtr kvHatchPattern%3 = %6->GetHatchPattern();%2"
                      "%1kvHatchPattern%3->SetGradientData( kvColor1%3, kvColor2%3, %4, %5);%2",
                      number, FlagWord(centered), General{value}, hatch);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteInsertEmbeddedObject(const QString& target, const QString& path, bool flag0,
                                                           bool flag1)
{
    return Statement("%1 %6 = kvSketchManager->InsertEmbeddedObjectFromFile(%2"
                     "%1 L\"%3\", %2"
                     "%1 %4, %2"
                     "%1 %5 );%2",
                     path, FlagWord(flag0), FlagWord(flag1), target);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertRegion(const QString& target, const QStringList& names,
                                                         std::int32_t counter)
{
    const SafeArrayText entities(SafeArrayText::Kind::Entities, "regionEntities", counter);
    QString text = entities.Declare(CurrentIndent(), names.size());
    text += entities.Block(CurrentIndent(), names);
    text += Statement("%1_variant_t regions%3 = kvSketchManager->InsertRegion( regionEntities%3 );%2"
                      "%1int regionCount%3 = 0;%2"
                      "%1IRegionPtr *regionArray%3 = NULL;%2"
                      "%1TypeConverter::convertVariantArrayToPtrArray<IRegionPtr, IRegion>( regions%3, regionArray%3, "
                      "regionCount%3 );%2"
                      "%1%4 = regionArray%3[0];%2",
                      counter, target);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertHatchByBoundary(const QString& target,
                                                                  const OdArray<std::int32_t>& counts,
                                                                  const OdArray<OdGePoint2d>& points,
                                                                  const QString& pattern, double scale, double angle)
{
    // A number for each list: the names of index and element hold the number alone.
    const std::int32_t number = NextLocalNumber();
    const std::int32_t countNumber = NextLocalNumber();
    const SafeArrayText coordinates(SafeArrayText::Kind::Doubles, "variant", number);
    const SafeArrayText pointCounts(SafeArrayText::Kind::Integers, "BoundaryPointCountLongArray", countNumber);
    const QStringList values = CoordinateTexts(points, kv::FixedText);
    const QStringList countTexts = IntegerTexts(counts);
    QString text = coordinates.Declare(CurrentIndent(), values.size());
    text += pointCounts.Declare(CurrentIndent(), countTexts.size());
    text += kv::LineEnd();
    text += coordinates.Elements(CurrentIndent(), values);
    text += kv::LineEnd();
    text += pointCounts.Elements(CurrentIndent(), countTexts);
    text += kv::LineEnd();
    text += Statement("%1%8 = kvSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray%4, variant%3, "
                      "L\"%5\", %6, %7 );%2",
                      number, countNumber, pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertHatchByInternalPoints(const QString& target,
                                                                        const OdArray<OdGePoint2d>& points,
                                                                        const QString& pattern, double scale,
                                                                        double angle)
{
    const std::int32_t number = NextLocalNumber();
    const SafeArrayText coordinates(SafeArrayText::Kind::Doubles, "variant", number);
    const QStringList values = CoordinateTexts(points, kv::FixedText);
    QString text = coordinates.Declare(CurrentIndent(), values.size());
    text += kv::LineEnd();
    text += coordinates.Elements(CurrentIndent(), values);
    text += kv::LineEnd();
    text += Statement("%1%7 = kvSketchManager->InsertHatchByInternalPoints( variant%3, L\"%4\", %5, %6 );%2", number,
                      pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteHatchBoundaryEntities(const QString& target, const QStringList& names,
                                                                  const QString& pattern, double scale, double angle)
{
    const SafeArrayText entities(SafeArrayText::Kind::Entities, "kvEntities");
    QString text = kv::LineEnd();
    text += entities.Declare(CurrentIndent(), names.size());
    text += entities.Block(CurrentIndent(), names);
    text += Statement("%1%6 = kvSketchManager->InsertHatchByEntities(%2%1 kvEntities, %2%1 L\"%3\", %2%1 %4, %2"
                      "%1 %5 );%2",
                      pattern, Fixed{scale}, Fixed{angle}, target);
    return text;
}
