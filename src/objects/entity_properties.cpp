// The properties that every entity shares: colour, layer, line style and weight, thickness, print style, transparency.
#include "core/macro_language.h"
#include "host/db/symbols.h"
#include "objects/object_converter.h"

namespace
{
// How clear an alpha of 0 to 255 is, in whole percents.
std::int32_t ClearPercent(std::uint8_t alpha)
{
    return static_cast<std::int32_t>(100.0 - alpha / 255.0 * 100.0);
}
} // namespace

QString CZtConverterKVAPIObject::SetLayer(const QString& variable, const OdDbObjectId& layer)
{
    const auto record = OdSmartPtr<OdDbLayerTableRecord>::cast(layer.openObject());
    return record ? WriteSetLayerProperty(variable, record->getName()) : QString();
}

QString CZtConverterKVAPIObject::SetLineStyle(const QString& variable, const QString& word,
                                              const OdDbObjectId& lineStyle)
{
    const auto record = OdSmartPtr<OdDbLinetypeTableRecord>::cast(lineStyle.openObject());
    return record ? WriteSetLineStyleProperty(variable, word, record->getName()) : QString();
}

QString CZtConverterKVAPIObject::SetHyperLink(const QString& variable, const QString& address,
                                              const QString& description)
{
    return WriteSetHyperLink(variable, ParseHyperLink(address, description));
}

QString CZtConverterKVAPIObject::ConvertEntityProperties(const PropertyPass& pass, bool& noBlock)
{
    // After a colour, a line style or a line weight the object gets no block, and its text stands one level further
    // out; the other properties leave the block alone. JavaScript has no blocks.
    noBlock = false;
    const bool hasBlocks = CurrentLanguage() != MacroLanguage::JavaScript;
    const auto leaveBlock = [&]
    {
        if (hasBlocks && !noBlock)
        {
            --Counters().IndentLevel;
            noBlock = true;
        }
    };

    QString text;
    PropertyList& properties = pass.properties;
    if (const CZtVariant color = properties.TakeProperty("LineColor"); !color.IsNull())
    {
        leaveBlock();
        text += WriteSetColorProperty(pass.variable, QStringLiteral("Color"), color.GetColor());
    }
    if (const CZtVariant layer = properties.TakeProperty("Layer"); !layer.IsNull())
    {
        text += SetLayer(pass.variable, layer.GetId());
    }
    if (const CZtVariant style = properties.TakeProperty("LineStyle"); !style.IsNull())
    {
        leaveBlock();
        text += SetLineStyle(pass.variable, QStringLiteral("LineStyle"), style.GetId());
    }
    if (const CZtVariant scale = properties.TakeProperty("LineScale"); !scale.IsNull())
    {
        text += WriteSetDoubleProperty(pass.variable, QStringLiteral("LineScale"), scale.GetDouble());
    }
    if (const CZtVariant weight = properties.TakeProperty("LineWeight"); !weight.IsNull())
    {
        leaveBlock();
        text += WriteSetLineWeightProperty(pass.variable, QStringLiteral("LineWeight"), weight.GetInt32());
    }
    if (const CZtVariant thickness = properties.TakeProperty("Thickness"); !thickness.IsNull())
    {
        text += WriteSetDoubleProperty(pass.variable, QStringLiteral("Thickness"), thickness.GetDouble());
    }
    if (const CZtVariant style = properties.TakeProperty("PrintStyle"); !style.IsNull())
    {
        text += WriteSetStringProperty(pass.variable, QStringLiteral("PrintStyle"), style.GetString(), true);
    }
    if (const CZtVariant value = properties.TakeProperty("Transparency");
        value.GetType() == CZtVariant::kTransparency && !pass.created)
    {
        const OdCmTransparency transparency = value.GetTransparency();
        text += WriteSetTransparency(pass.variable, transparency.method(), ClearPercent(transparency.alpha()));
    }
    return text;
}
