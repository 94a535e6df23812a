// Polylines of two and three dimensions, and rich lines.
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

OdArray<OdGePoint2d> CZtConverterKVAPIObject::Flattened(const OdArray<OdGePoint3d>& points)
{
    OdArray<OdGePoint2d> flat;
    flat.reserve(points.size());
    for (const OdGePoint3d& point : points)
    {
        flat.append({point.x, point.y});
    }
    return flat;
}

QString CZtConverterKVAPIObject::CreatePolyline(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint2d> points = Flattened(properties.TakePoints("Vertex", &consumed));
    const CZtVariant closed = properties.TakeProperty("Closed", &consumed);
    return WriteInsertPolyline2D(variable, points, IsWord(words_, closed, "Yes", Qt::CaseInsensitive));
}

QString CZtConverterKVAPIObject::CreatePolyline3D(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Vertex", &consumed);
    const CZtVariant closed = properties.TakeProperty("Closed", &consumed);
    return WriteInsertPolyline3D(variable, points, IsWord(words_, closed, "Yes", Qt::CaseInsensitive));
}

QString CZtConverterKVAPIObject::RichLineJustification(std::int32_t index)
{
    constexpr std::array words = {"Top", "Zero", "Bottom"};
    return index >= 0 && static_cast<std::size_t>(index) < words.size()
               ? QStringLiteral("kvRichLineJustification_e.kvRichLineJustification_%1")
                     .arg(QLatin1String(words.at(static_cast<std::size_t>(index))))
               : QString();
}

QString CZtConverterKVAPIObject::CreateRichLine(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("vertices", &consumed);
    const CZtVariant justification = properties.TakeProperty("RLine justification", &consumed);
    const CZtVariantCollection* selection = justification.GetCollection();
    const double scale = properties.TakeDouble("RLine scale", 0.0, &consumed);
    const QString style = TextOf(properties.TakeProperty("RLineStyle", &consumed));
    const bool closed = properties.TakeProperty("closedMline", &consumed).GetInt32() != 0;
    return WriteInsertRichLine(variable, points,
                               RichLineJustification(selection != nullptr ? selection->GetCurrentIndex() : -1), scale,
                               style, closed);
}

// Widths are set for new polylines too: the insertion doesn't carry them.
QString CZtConverterKVAPIObject::ChangeSegment(const PropertyPass& pass, const char* name, const char* setter)
{
    CZtVariant tag;
    const CZtVariant value = pass.properties.TakeProperty(name, nullptr, &tag);
    return value.IsNull() || tag.IsNull() || tag.GetInt32() == -1
               ? QString()
               : WriteSetPairProperty(pass.variable, QLatin1String(setter), tag.GetInt32(), value.GetDouble());
}

QString CZtConverterKVAPIObject::ConvertPolyLine(const PropertyPass& pass)
{
    QString text = ChangeDouble(pass, "Elevation", "Elevation");
    if (const CZtVariant width = pass.properties.TakeProperty("Global width"); !width.IsNull())
    {
        text += WriteSetDoubleProperty(pass.variable, QStringLiteral("GlobalWidth"), width.GetDouble());
    }
    text += ChangeSegment(pass, "Start segment width", "SetSegmentStartWidth");
    text += ChangeSegment(pass, "End segment width", "SetSegmentEndWidth");
    for (const auto& [name, axis] : {std::pair("Vertex X", Axis::X), std::pair("Vertex Y", Axis::Y)})
    {
        if (const auto change = TakeVertex(pass, name, axis))
        {
            text += WriteSetVertex2D(pass.variable, change->axis, change->value, change->index);
        }
    }
    text += ChangeSwitch(pass, "Closed", "Closed");
    text += ChangeWord(pass, "LineStyleGen", "LineStyleGeneration", "Enabled");
    return text;
}

QString CZtConverterKVAPIObject::ConvertPolyLine3D(const PropertyPass& pass)
{
    QString text =
        ChangeVertices(pass, {"Vertex X", "Vertex Y", "Vertex Z"}, "GetVertexCoordinate", "SetVertexCoordinate");
    text += ChangeEnum(pass, "Fit/Smooth", kv::EnumKind::PolyLine3DFitSmooth, "FitSmooth");
    text += ChangeWord(pass, "Closed", "Closed", "Yes");
    return text;
}

QString CZtConverterKVAPIObject::ConvertRichLine(const PropertyPass& pass)
{
    QString text = ChangeEnum(pass, "RLine justification", kv::EnumKind::RichLineJustification, "Justification");
    text += ChangeDouble(pass, "RLine scale", "Scale");
    return text;
}
