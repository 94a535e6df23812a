// C++ COM texts of curves and points; the logic stands in objects/curves.cpp.
#include "backends/cppcom/object.h"
#include "backends/text/pointer_setters.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertLine(const QString& variable, const OdGePoint3d& start,
                                                       const OdGePoint3d& end)
{
    return Statement("%1%9 = kvSketchManager->InsertLine( %3, %4, %5, %6, %7, %8 );%2", start, end, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertCircle(const QString& variable, const OdGePoint3d& center,
                                                         double radius)
{
    return Statement("%1%7 = kvSketchManager->InsertCircle( %3, %4, %5, %6 );%2", center, Fixed{radius}, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertPoint(const QString& variable, const OdGePoint3d& position)
{
    return Statement("%1%6 = kvSketchManager->InsertPoint( %3, %4, %5 );%2", position, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertRay(const QString& variable, const OdGePoint3d& base,
                                                      const OdGePoint3d& second)
{
    return Statement("%1%9 = kvSketchManager->InsertRay( %3, %4, %5, %6, %7, %8 );%2", base, second, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertArc(const QString& variable, const OdGePoint3d& center, double radius,
                                                      double startAngle, double endAngle)
{
    return Statement("%1%9 = kvSketchManager->InsertArc( %3, %4, %5, %6, %7, %8 );%2", center, Fixed{radius},
                     Fixed{startAngle}, Fixed{endAngle}, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertInfiniteLine(const QString& variable, const OdGePoint3d& base,
                                                               const OdGePoint3d& second)
{
    return Statement("%1%9 = kvSketchManager->InsertInfiniteLine( %3, %4, %5, %6, %7, %8 );%2", base, second, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertEllipse(const QString& variable, const OdGePoint2d& major1,
                                                          const OdGePoint2d& major2, double distance)
{
    return Statement("%1%8 = kvSketchManager->InsertEllipseDistanceToOtherAxis( %3, %4, %5, %6, %7 );%2", major1,
                     major2, Fixed{distance}, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertEllipseArc(const QString& variable, const OdGePoint2d& major1,
                                                             const OdGePoint2d& major2, double distance,
                                                             double startAngle, double endAngle)
{
    return Statement("%1%10 = kvSketchManager->InsertEllipseArcDistanceToOtherAxis( %3, %4, %5, %6, %7, %8, %9 );%2",
                     major1, major2, Fixed{distance}, Fixed{startAngle}, Fixed{endAngle}, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetPointProperty(const QString& variable, Axis axis, const QString& getter,
                                                             const QString& setter, double value, std::int32_t index)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1double X%3;%2", number);
    text += Statement("%1double Y%3;%2", number);
    text += Statement("%1double Z%3;%2", number);
    if (index < 0)
    {
        text += Line("%1%2->%3( &X%5, &Y%5, &Z%5 );%4", variable, getter, kv::LineEnd(), number);
        text += Line("%1%2%5 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd(), number);
        text += Line("%1%2->%3( X%5, Y%5, Z%5 );%4", variable, setter, kv::LineEnd(), number);
        return text;
    }
    text += Statement("%1VARIANT_BOOL bRetVal%3 = VARIANT_FALSE;%2", number);
    text += Line("%1bRetVal%6=%2->%3( %4, &X%6, &Y%6, &Z%6 );%5", variable, getter, index, kv::LineEnd(), number);
    text += Line("%1%2%5 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd(), number);
    text += Line("%1bRetVal%6=%2->%3( %4, X%6, Y%6, Z%6 );%5", variable, setter, index, kv::LineEnd(), number);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetPosition(const QString& variable, Axis axis, double value)
{
    return kv::ChangePosition(CurrentIndent(), variable, axis, value, NextLocalNumber());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetFirstPoint(const QString& variable, Axis axis, double value)
{
    return kv::ChangeFirstPoint(CurrentIndent(), variable, axis, value, NextLocalNumber());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetSecondPoint(const QString& variable, Axis axis, double value)
{
    return kv::ChangeSecondPoint(CurrentIndent(), variable, axis, value, NextLocalNumber());
}
