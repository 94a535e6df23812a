// Splines.
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateSpline(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Fit point", &consumed);
    const bool closed = IsWord(words_, properties.TakeProperty("Closed", &consumed), "Yes", Qt::CaseInsensitive);
    const OdGePoint3d start =
        properties.TakePoint("Start tangent vector X", "Start tangent vector Y", "Start tangent vector Z", &consumed);
    const OdGePoint3d end =
        properties.TakePoint("End tangent vector X", "End tangent vector Y", "End tangent vector Z", &consumed);
    const double tolerance = properties.TakeDouble("Fit tolerance", 0.0, &consumed);
    return InsertSpline(variable, points, closed, start, end, tolerance);
}

QString CZtConverterKVAPIObject::InsertSpline(const QString& variable, const OdArray<OdGePoint3d>& points, bool closed,
                                              const OdGePoint3d& startTangent, const OdGePoint3d& endTangent,
                                              double tolerance)
{
    QString text = WriteInsertSpline(variable, points, closed, startTangent, endTangent);
    if (tolerance != 0.0)
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("FitTolerance"), tolerance);
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertSpline(const PropertyPass& pass)
{
    QString text = ChangeVertices(pass, {"Control point X", "Control point Y", "Control point Z"},
                                  "GetControlPointCoordinate", "SetControlPointCoordinate");
    text += ChangeVertices(pass, {"Fit point X", "Fit point Y", "Fit point Z"}, "GetFitPointCoordinate",
                           "SetFitPointCoordinate");
    text += ChangeDouble(pass, "Fit tolerance", "FitTolerance");
    return text;
}
