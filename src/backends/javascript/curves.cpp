// JavaScript texts of curves and points; the logic stands in objects/curves.cpp.
#include "backends/javascript/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertLine(const QString& variable, const OdGePoint3d& start,
                                                           const OdGePoint3d& end)
{
    return Statement("%1var %9 = mSkMgr.InsertLine(%3, %4, %5, %6, %7, %8);%2", start, end, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertCircle(const QString& variable, const OdGePoint3d& center,
                                                             double radius)
{
    return Statement("%1var %7 = mSkMgr.InsertCircle(%3, %4, %5, %6);%2", center, Fixed{radius}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertPoint(const QString& variable, const OdGePoint3d& position)
{
    return Statement("%1var %6 = mSkMgr.InsertPoint(%3, %4, %5);%2", position, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertRay(const QString& variable, const OdGePoint3d& base,
                                                          const OdGePoint3d& second)
{
    return Statement("%1var %9 = mSkMgr.InsertRay(%3, %4, %5, %6, %7, %8);%2", base, second, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertArc(const QString& variable, const OdGePoint3d& center,
                                                          double radius, double startAngle, double endAngle)
{
    return Statement("%1var %9 = mSkMgr.InsertArc(%3, %4, %5, %6, %7, %8);%2", center, Fixed{radius}, Fixed{startAngle},
                     Fixed{endAngle}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertInfiniteLine(const QString& variable, const OdGePoint3d& base,
                                                                   const OdGePoint3d& second)
{
    return Statement("%1var %9 = mSkMgr.InsertInfiniteLine(%3, %4, %5, %6, %7, %8);%2", base, second, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertEllipse(const QString& variable, const OdGePoint2d& major1,
                                                              const OdGePoint2d& major2, double distance)
{
    return Statement("%1var %8 = mSkMgr.InsertEllipseDistanceToOtherAxis(%3, %4, %5, %6, %7);%2", major1, major2,
                     Fixed{distance}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertEllipseArc(const QString& variable, const OdGePoint2d& major1,
                                                                 const OdGePoint2d& major2, double distance,
                                                                 double startAngle, double endAngle)
{
    return Statement("%1var %10 = mSkMgr.InsertEllipseArcDistanceToOtherAxis(%3, %4, %5, %6, %7, %8, %9);%2", major1,
                     major2, Fixed{distance}, Fixed{startAngle}, Fixed{endAngle}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetPointProperty(const QString& variable, Axis axis,
                                                                 const QString& getter, const QString& setter,
                                                                 double value, std::int32_t index)
{
    if (index < 0)
    {
        return SetPointMember(variable, axis, getter, setter, value);
    }
    return SetVertexMember(variable, axis, getter, setter, value, index);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetPosition(const QString& variable, Axis axis, double value)
{
    return SetPointMember(variable, axis, QStringLiteral("GetPosition"), QStringLiteral("SetPosition"), value);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetFirstPoint(const QString& variable, Axis axis, double value)
{
    return SetPointMember(variable, axis, QStringLiteral("GetFirstPoint"), QStringLiteral("SetFirstPoint"), value);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetSecondPoint(const QString& variable, Axis axis, double value)
{
    return SetPointMember(variable, axis, QStringLiteral("GetSecondPoint"), QStringLiteral("SetSecondPoint"), value);
}

QString CZtConverterKVAPIObjectJavaScript::SetPointMember(const QString& variable, Axis axis, const QString& getter,
                                                          const QString& setter, double value)
{
    // The point has one name throughout, but takes its number as in every language.
    ++Counters().LocalNameSequence;
    QString text = Line("%1var points = %2.%3();%4", variable, getter, kv::LineEnd());
    text += Line("%1points.%2 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd());
    text += Line("%1%2.%3(points.X, points.Y, points.Z);%4", variable, setter, kv::LineEnd());
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::SetVertexMember(const QString& variable, Axis axis, const QString& getter,
                                                           const QString& setter, double value, std::int32_t index)
{
    ++Counters().LocalNameSequence;
    // The words of C# in both forms, and the second form's point without a declaration, are the format's.
    if (getter == QLatin1String("GetVertexCoordinate"))
    {
        QString text = Statement("%1double X;%2");
        text += Statement("%1double Y;%2");
        text += Statement("%1double Z;%2");
        text += Line("%1%2.GetVertexCoordinate(%3, out X, out Y, out Z);%4", variable, index, kv::LineEnd());
        text += Line("%1%2 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd());
        text += Line("%1%2.SetVertexCoordinate(%3, X, Y, Z);%4", variable, index, kv::LineEnd());
        return text;
    }
    QString text = Line("%1points = %2.%3(%4, out X, out Y, out Z);%5", variable, getter, index, kv::LineEnd());
    text += Line("%1points.%2 = %3;%4", AxisName(axis), Fixed{value}, kv::LineEnd());
    text += Line("%1%2.%3(%4, points.X, points.Y, points.Z);%5", variable, setter, index, kv::LineEnd());
    return text;
}
