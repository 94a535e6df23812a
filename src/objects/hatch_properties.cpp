// Changes of hatches: pattern, gradient, region detection, origin and elevation.
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

namespace
{
std::optional<double> Number(const CZtVariant& value)
{
    return value.IsNull() ? std::nullopt : std::optional(value.GetDouble());
}

std::optional<OdCmColor> Color(const CZtVariant& value)
{
    return value.IsNull() ? std::nullopt : std::optional(value.GetColor());
}
} // namespace

QString CZtConverterKVAPIObject::ConvertHatch(const PropertyPass& pass)
{
    if (pass.created)
    {
        return {};
    }
    PropertyList& properties = pass.properties;
    const CZtVariant name = properties.TakeProperty("Pattern name");
    HatchData data;
    data.angle = Number(properties.TakeProperty("Angle"));
    data.scale = Number(properties.TakeProperty("Scale"));
    data.spacing = Number(properties.TakeProperty("Spacing"));
    if (!name.IsNull())
    {
        data.name = TextOf(name);
    }
    if (const CZtVariant type = properties.TakeProperty("Type"); !type.IsNull())
    {
        data.type =
            IsWord(words_, type, "Predefined") ? QStringLiteral("kvHatchPatternType_e.kvHatchPatternType_Predefined")
            : IsWord(words_, type, "Custom")   ? QStringLiteral("kvHatchPatternType_e.kvHatchPatternType_Custom")
                                               : QStringLiteral("kvHatchPatternType_e.kvHatchPatternType_UserDefined");
    }
    GradientData gradient;
    gradient.color1 = Color(properties.TakeProperty("Color 1"));
    gradient.color2 = Color(properties.TakeProperty("Color 2"));
    if (const CZtVariant centered = properties.TakeProperty("Centered"); !centered.IsNull())
    {
        gradient.centered = IsWord(words_, centered, "Yes");
    }
    gradient.angle = Number(properties.TakeProperty("Gradient Angle"));

    // The number is taken also when nothing follows.
    const QString pattern = QStringLiteral("kvHatchPattern%1").arg(++Counters().LocalNameSequence);
    const QString head = WriteGetHatchPattern(pattern, pass.variable);
    const QString region = ConvertRegionAndOrigin(properties, pattern);
    const bool hasPattern = data.name || data.angle || data.scale || data.spacing || !data.type.isEmpty();
    const bool hasGradient = gradient.color1 || gradient.color2 || gradient.centered || gradient.angle;
    QString text;
    if (hasPattern || hasGradient || !region.isEmpty())
    {
        text += head;
        text += hasPattern ? WriteSetHatchData(pattern, data) : QString();
        text += hasGradient ? WriteSetGradientData(pattern, gradient) : QString();
        text += region;
    }
    text += ChangeDouble(pass, "Elevation", "Elevation");
    return text;
}

QString CZtConverterKVAPIObject::ConvertRegionAndOrigin(PropertyList& properties, const QString& pattern)
{
    QString text;
    if (const CZtVariant detection = properties.TakeProperty("Internal region detection"); !detection.IsNull())
    {
        constexpr std::array words = {"Normal", "Outer", "Ignore"};
        const CZtVariantCollection* selection = detection.GetCollection();
        std::size_t index = selection != nullptr && selection->GetCurrentIndex() > 0
                                ? static_cast<std::size_t>(selection->GetCurrentIndex())
                                : 0;
        if (selection == nullptr)
        {
            index = IsWord(words_, detection, "Outer", Qt::CaseInsensitive)    ? 1
                    : IsWord(words_, detection, "Ignore", Qt::CaseInsensitive) ? 2
                                                                               : 0;
        }
        text += WriteSetHatchRegionDetection(
            pattern, QStringLiteral("kvHatchPatternInternalRegionDetection_e.kvHatchPatternInternalRegionDetection_%1")
                         .arg(QLatin1String(words.at(std::min(index, words.size() - 1)))));
    }
    if (const CZtVariant x = properties.TakeProperty("Origin X"); !x.IsNull())
    {
        text += WriteSetFirstCoordinate(pattern, QStringLiteral("Origin"), x.GetDouble());
    }
    if (const CZtVariant y = properties.TakeProperty("Origin Y"); !y.IsNull())
    {
        text += WriteSetSecondCoordinate(pattern, QStringLiteral("Origin"), y.GetDouble());
    }
    return text;
}
