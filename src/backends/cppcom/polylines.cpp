// C++ COM texts of polylines; the logic stands in objects/polylines.cpp.
#include "backends/cppcom/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertPolyline2D(const QString& variable,
                                                             const OdArray<OdGePoint2d>& points, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%5=kvSketchManager->InsertPolyline2D( variant%3, %4);%2", number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertPolyline3D(const QString& variable,
                                                             const OdArray<OdGePoint3d>& points, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text +=
        Statement("%1%5 = kvSketchManager->InsertPolyline3D( variant%3, %4 );%2", number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertRichLine(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                           const QString& justification, double scale,
                                                           const QString& style, bool closed)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%8 = kvSketchManager->InsertRichLine( variant%3, %4, %5, L\"%6\", %7 );%2", number,
                      kv::FormOfConstant(kv::EnumForm::Bare, justification), Fixed{scale}, style, FlagWord(closed),
                      variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                            std::int32_t index, double value)
{
    return Statement("%1VARIANT_BOOL bRetVal%7 = VARIANT_FALSE;%2"
                     "%1bRetVal%7=%3->%4( %5, %6 );%2",
                     variable, setter, index, Fixed{value}, NextLocalNumber());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    return Statement("%1VARIANT_BOOL bRet%3 = VARIANT_FALSE;%2"
                     "%1bRet%3=%4->SetSegmentAngle( %5, %6 );%2",
                     NextLocalNumber(), variable, index, Fixed{angle});
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetVertex2D(const QString& variable, Axis axis, double value,
                                                        std::int32_t index)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1double X%3;%2", number);
    text += Statement("%1double Y%3;%2", number);
    text += Statement("%1VARIANT_BOOL bRetVal%3 = VARIANT_FALSE;%2", number);
    text += Line("%1bRetVal%5=%2->GetVertexCoordinate( %3, &X%5, &Y%5 );%4", variable, index, kv::LineEnd(), number);
    text += Line("%1%2%5 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd(), number);
    text += Line("%1bRetVal%5=%2->SetVertexCoordinate( %3, X%5, Y%5 );%4", variable, index, kv::LineEnd(), number);
    return text;
}
