// Lines, circles, arcs, ellipses, points, rays and infinite lines.
#include "objects/object_converter.h"

#include <cmath>
#include <numbers>

// Creation: everything that the insertion call needs.

QString CZtConverterKVAPIObject::CreateLine(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d start = properties.TakePoint("Start X", "Start Y", "Start Z", &consumed);
    const OdGePoint3d end = properties.TakePoint("End X", "End Y", "End Z", &consumed);
    return WriteInsertLine(variable, start, end);
}

QString CZtConverterKVAPIObject::CreateCircle(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d center = properties.TakePoint("Center X", "Center Y", "Center Z", &consumed);
    const double radius = properties.TakeDouble("Radius", 1.0, &consumed);
    return WriteInsertCircle(variable, center, radius);
}

QString CZtConverterKVAPIObject::CreatePoint(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    return WriteInsertPoint(variable, properties.TakePoint("Position X", "Position Y", "Position Z", &consumed));
}

QString CZtConverterKVAPIObject::CreateRay(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d base = properties.TakePoint("Base point X", "Base point Y", "Base point Z", &consumed);
    const OdGePoint3d second = properties.TakePoint("Second point X", "Second point Y", "Second point Z", &consumed);
    return WriteInsertRay(variable, base, second);
}

QString CZtConverterKVAPIObject::CreateArc(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d center = properties.TakePoint("Center X", "Center Y", "Center Z", &consumed);
    const double radius = properties.TakeDouble("Radius", 1.0, &consumed);
    const double startAngle = properties.TakeDouble("Start Angle", 0.0, &consumed);
    const double endAngle = properties.TakeDouble("End Angle", 0.0, &consumed);
    return WriteInsertArc(variable, center, radius, startAngle, endAngle);
}

QString CZtConverterKVAPIObject::CreateInfiniteLine(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d base = properties.TakePoint("Base point X", "Base point Y", "Base point Z", &consumed);
    const OdGePoint3d second = properties.TakePoint("Second point X", "Second point Y", "Second point Z", &consumed);
    return WriteInsertInfiniteLine(variable, base, second);
}

QString CZtConverterKVAPIObject::CreateEllipse(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d center = properties.TakePoint("Center X", "Center Y", "Center Z", &consumed);
    const OdGePoint3d axis =
        properties.TakePoint("Major axis vector X", "Major axis vector Y", "Major axis vector Z", &consumed);
    const double minorRadius = properties.TakeDouble("Minor radius", 1.0, &consumed);
    const double startAngle = properties.TakeDouble("Start angle", 0.0, &consumed);
    const double endAngle = properties.TakeDouble("End angle", 0.0, &consumed);
    return InsertEllipse(variable, center, axis, minorRadius, startAngle, endAngle);
}

QString CZtConverterKVAPIObject::InsertEllipse(const QString& variable, const OdGePoint3d& center,
                                               const OdGePoint3d& axis, double minorRadius, double startAngle,
                                               double endAngle)
{
    // The API's call has no Z.
    const OdGePoint2d major1{center.x + axis.x, center.y + axis.y};
    const OdGePoint2d major2{center.x - axis.x, center.y - axis.y};
    if (startAngle == 0.0 && endAngle == 2.0 * std::numbers::pi)
    {
        return WriteInsertEllipse(variable, major1, major2, minorRadius);
    }
    return WriteInsertEllipseArc(variable, major1, major2, minorRadius, startAngle, endAngle);
}

// Changes: each property that changed. After a creation there is nothing left to say.

QString CZtConverterKVAPIObject::ConvertLine(const PropertyPass& pass)
{
    QString text = ChangePoint(pass, {"Start X", "Start Y", "Start Z"}, &CZtConverterKVAPIObject::WriteSetFirstPoint);
    text += ChangePoint(pass, {"End X", "End Y", "End Z"}, &CZtConverterKVAPIObject::WriteSetSecondPoint);
    return text;
}

QString CZtConverterKVAPIObject::ConvertCircle(const PropertyPass& pass)
{
    // Whatever the user changed, the API has the radius; of several changes the last one counts.
    const QString radius = QStringLiteral("Radius");
    QString text;
    if (const std::optional<double> area = TakeChange(pass, "Area"))
    {
        text += WriteSetDoubleProperty(pass.variable, radius, std::sqrt(*area / std::numbers::pi));
    }
    text += ChangeCoordinates(pass, {"Center X", "Center Y", "Center Z"}, "GetCenter", "SetCenter");
    if (const std::optional<double> circumference = TakeChange(pass, "Circumference"))
    {
        text += WriteSetDoubleProperty(pass.variable, radius, *circumference / (2.0 * std::numbers::pi));
    }
    if (const std::optional<double> diameter = TakeChange(pass, "Diameter"))
    {
        text += WriteSetDoubleProperty(pass.variable, radius, *diameter * 0.5);
    }
    text += ChangeDouble(pass, "Radius", "Radius");
    return text;
}

QString CZtConverterKVAPIObject::ConvertPoint(const PropertyPass& pass)
{
    return ChangePoint(pass, {"Position X", "Position Y", "Position Z"}, &CZtConverterKVAPIObject::WriteSetPosition);
}

QString CZtConverterKVAPIObject::ConvertRay(const PropertyPass& pass)
{
    QString text =
        ChangeCoordinates(pass, {"Base point X", "Base point Y", "Base point Z"}, "GetBasePoint", "SetBasePoint");
    text += ChangeCoordinates(pass, {"Second point X", "Second point Y", "Second point Z"}, "GetThroughPoint",
                              "SetThroughPoint");
    return text;
}

QString CZtConverterKVAPIObject::ConvertArc(const PropertyPass& pass)
{
    QString text = ChangeCoordinates(pass, {"Center X", "Center Y", "Center Z"}, "GetCenter", "SetCenter");
    text += ChangeDouble(pass, "End Angle", "EndAngle");
    text += ChangeDouble(pass, "Radius", "Radius");
    text += ChangeDouble(pass, "Start Angle", "StartAngle");
    return text;
}

QString CZtConverterKVAPIObject::ConvertInfiniteLine(const PropertyPass& pass)
{
    QString text = ChangePoint(pass, {"Base point X", "Base point Y", "Base point Z"},
                               &CZtConverterKVAPIObject::WriteSetFirstPoint);
    text += ChangePoint(pass, {"Second point X", "Second point Y", "Second point Z"},
                        &CZtConverterKVAPIObject::WriteSetSecondPoint);
    return text;
}

QString CZtConverterKVAPIObject::ConvertEllipse(const PropertyPass& pass)
{
    QString text = ChangeCoordinates(pass, {"Center X", "Center Y", "Center Z"}, "GetCenter", "SetCenter");
    text += ChangeDouble(pass, "End angle", "EndAngle");
    text += ChangeDouble(pass, "Major radius", "MajorRadius");
    text += ChangeDouble(pass, "Minor radius", "MinorRadius");
    text += ChangeDouble(pass, "Radius ratio", "RadiusRatio");
    text += ChangeDouble(pass, "Start angle", "StartAngle");
    return text;
}
