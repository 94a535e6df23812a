// Changed properties in the forms that most classes share.
#include "objects/object_converter.h"

namespace
{
constexpr std::array Axes = {Axis::X, Axis::Y, Axis::Z};
}

std::optional<double> CZtConverterKVAPIObject::TakeChange(const PropertyPass& pass, const char* name)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    return value.IsNull() || pass.created ? std::nullopt : std::optional(value.GetDouble());
}

QString CZtConverterKVAPIObject::ChangeDouble(const PropertyPass& pass, const char* name, const char* word)
{
    const std::optional<double> value = TakeChange(pass, name);
    return value ? WriteSetDoubleProperty(pass.variable, QLatin1String(word), *value) : QString();
}

QString CZtConverterKVAPIObject::ChangePoint(const PropertyPass& pass, const CoordinateNames& names, PointWriter write)
{
    QString text;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        if (const std::optional<double> value = TakeChange(pass, names.at(i)))
        {
            text += (this->*write)(pass.variable, Axes.at(i), *value);
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::ChangeCoordinates(const PropertyPass& pass, const CoordinateNames& names,
                                                   const char* getter, const char* setter)
{
    QString text;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        if (const std::optional<double> value = TakeChange(pass, names.at(i)))
        {
            text += WriteSetPointProperty(pass.variable, Axes.at(i), QLatin1String(getter), QLatin1String(setter),
                                          *value, -1);
        }
    }
    return text;
}
