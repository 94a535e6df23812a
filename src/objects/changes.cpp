// Changed properties in the forms that most classes share.
#include "core/constant_form.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

namespace
{
constexpr std::array Axes = {Axis::X, Axis::Y, Axis::Z};
}

std::optional<double> CZtConverterKVAPIObject::TakeChange(const PropertyPass& pass, const char* name)
{
    if (!pass.properties.MayHold(name))
    {
        return std::nullopt;
    }
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

std::optional<CZtConverterKVAPIObject::VertexChange> CZtConverterKVAPIObject::TakeVertex(const PropertyPass& pass,
                                                                                         const char* name, Axis axis)
{
    CZtVariant tag;
    const CZtVariant value = pass.properties.TakeProperty(name, nullptr, &tag);
    if (value.IsNull() || pass.created || tag.IsNull() || tag.GetInt32() == -1)
    {
        return std::nullopt;
    }
    return VertexChange{axis, value.GetDouble(), tag.GetInt32()};
}

QString CZtConverterKVAPIObject::ChangeVertices(const PropertyPass& pass, const CoordinateNames& names,
                                                const char* getter, const char* setter)
{
    QString text;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        if (const auto change = TakeVertex(pass, names.at(i), Axes.at(i)))
        {
            text += WriteSetPointProperty(pass.variable, change->axis, QLatin1String(getter), QLatin1String(setter),
                                          change->value, change->index);
        }
    }
    return text;
}

// Corners have a getter and a setter each; indices beyond the last one count as the last one.
QString CZtConverterKVAPIObject::ChangeCorners(const PropertyPass& pass, std::int32_t lastIndex)
{
    constexpr std::array names = {"Vertex X", "Vertex Y", "Vertex Z"};
    QString text;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        if (const auto change = TakeVertex(pass, names.at(i), Axes.at(i)))
        {
            const bool isKnown = change->index >= 0 && change->index <= lastIndex;
            const QString number = QString::number((isKnown ? change->index : lastIndex) + 1);
            text +=
                WriteSetPointProperty(pass.variable, change->axis, QStringLiteral("GetVertex%1Coordinate").arg(number),
                                      QStringLiteral("SetVertex%1Coordinate").arg(number), change->value, -1);
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::ChangeSwitch(const PropertyPass& pass, const char* name, const char* word)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    return value.IsNull() || pass.created
               ? QString()
               : WriteSetBoolProperty(pass.variable, QLatin1String(word), IsSwitchedOn(words_, value));
}

QString CZtConverterKVAPIObject::ChangeWord(const PropertyPass& pass, const char* name, const char* word,
                                            const char* yes)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    return value.IsNull() || pass.created ? QString()
                                          : WriteSetBoolProperty(pass.variable, QLatin1String(word),
                                                                 IsWord(words_, value, yes, Qt::CaseInsensitive));
}

QString CZtConverterKVAPIObject::ChangeEnum(const PropertyPass& pass, const char* name, kv::EnumKind kind,
                                            const char* word)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    return value.IsNull() || pass.created
               ? QString()
               : WriteSetEnumProperty(pass.variable, kind, QLatin1String(word), TextOf(value));
}

QString CZtConverterKVAPIObject::ChangeText(const PropertyPass& pass, const char* name, const char* word)
{
    const CZtVariant value = pass.properties.TakeProperty(name);
    return value.IsNull() || pass.created
               ? QString()
               : WriteSetStringProperty(pass.variable, QLatin1String(word), TextOf(value), true);
}

QString CZtConverterKVAPIObject::SetPoint(const QString& variable, const char* getter, const char* setter,
                                          const OdGePoint3d& point)
{
    const std::array values = {point.x, point.y, point.z};
    QString text;
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        text +=
            WriteSetPointProperty(variable, Axes.at(i), QLatin1String(getter), QLatin1String(setter), values.at(i), -1);
    }
    return text;
}

QString CZtConverterKVAPIObject::SetConstant(const QString& variable, const char* word, const char* constant)
{
    return WriteSetStringProperty(variable, QLatin1String(word), ConstantForLanguage(QLatin1String(constant)), false);
}
