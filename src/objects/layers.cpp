// Layers, and what they look like in the active viewport.
#include "core/macro_language.h"
#include "host/db/symbols.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateLayer(const Creation& creation)
{
    return WriteCreateLayer(creation.variable, NameOf<OdDbLayerTableRecord>(creation, "Name"));
}

QString CZtConverterKVAPIObject::ConvertLayer(const PropertyPass& whole)
{
    // What the script library's calls give holds the layer as a member.
    const QString variable =
        CurrentLanguage() == MacroLanguage::JavaScript ? whole.variable + QLatin1String(".Layer") : whole.variable;
    PropertyList& properties = whole.properties;
    const auto text = [&](const char* name, const char* word)
    {
        const CZtVariant value = properties.TakeProperty(name);
        return value.IsNull() ? QString() : WriteSetStringProperty(variable, QLatin1String(word), TextOf(value), true);
    };
    const auto flag = [&](const char* name, const char* word)
    {
        const CZtVariant value = properties.TakeProperty(name);
        return value.IsNull() ? QString()
                              : WriteSetBoolProperty(variable, QLatin1String(word), IsWord(words_, value, "Yes"));
    };

    QString result = text("Description", "Description");
    if (const CZtVariant color = properties.TakeProperty("Color"); !color.IsNull() && !whole.created)
    {
        result += WriteSetColorProperty(variable, QStringLiteral("Color"), color.GetColor());
    }
    if (const CZtVariant style = properties.TakeProperty("LineStyle"); !style.IsNull())
    {
        result += SetLineStyle(variable, QStringLiteral("LineStyle"), style.GetId());
    }
    if (const CZtVariant weight = properties.TakeProperty("LineWeight"); !weight.IsNull())
    {
        result += WriteSetLineWeightProperty(variable, QStringLiteral("LineWeight"), weight.GetInt32());
    }
    for (const char* name : {"Frozen", "Locked", "Printable", "Hidden"})
    {
        result += flag(name, name);
    }
    if (const CZtVariant shown = properties.TakeProperty("Show"); !shown.IsNull())
    {
        result += WriteSetBoolProperty(variable, QStringLiteral("Shown"), !IsWord(words_, shown, "No"));
    }
    if (const CZtVariant name = properties.TakeProperty("Name"); !name.IsNull() && !whole.created)
    {
        result += WriteRenameEntity(variable, TextOf(name));
    }
    if (const CZtVariant active = properties.TakeProperty("ActivateLayer");
        !whole.created && IsWord(words_, active, "Yes", Qt::CaseInsensitive))
    {
        result += WriteActivateEntity(variable);
    }
    result += text("PrintStyle", "PrintStyle");
    if (const CZtVariant transparency = properties.TakeProperty("Transparency"); !transparency.IsNull())
    {
        result += WriteSetStringProperty(variable, QStringLiteral("Transparency"), NumberOrText(transparency), false);
    }
    result += flag("FrozenInNewViewport", "FrozenInNewViewport");
    result += ConvertLayerInViewport(properties, variable);
    return result;
}

// "Weigth" and "Tranparency" are the API's.
QString CZtConverterKVAPIObject::ConvertLayerInViewport(PropertyList& properties, const QString& variable)
{
    QString result;
    if (const CZtVariant frozen = properties.TakeProperty("FrozenInViewport"); !frozen.IsNull())
    {
        result +=
            WriteSetFrozenInViewport(variable, QStringLiteral("SetFrozenInViewport"), IsWord(words_, frozen, "Yes"));
    }
    if (const CZtVariant color = properties.TakeProperty("ColorInViewport"); !color.IsNull())
    {
        result += WriteSetColorInViewport(variable, QStringLiteral("SetColorInViewport"), color.GetColor());
    }
    if (const CZtVariant style = properties.TakeProperty("LinetypeInViewport"); !style.IsNull())
    {
        if (const auto record = OdSmartPtr<OdDbLinetypeTableRecord>::cast(style.GetId().openObject()))
        {
            result +=
                WriteSetLineStyleInViewport(variable, QStringLiteral("SetLineStyleInViewport"), record->getName());
        }
    }
    if (const CZtVariant weight = properties.TakeProperty("LineweightInViewport"); !weight.IsNull())
    {
        result += WriteSetLineWeightInViewport(variable, QStringLiteral("SetLineWeigthInViewport"), weight.GetInt32());
    }
    if (const CZtVariant transparency = properties.TakeProperty("TransparencyInViewport"); !transparency.IsNull())
    {
        result += WriteSetPrintStyleInViewport(variable, QStringLiteral("SetTranparencyInViewport"),
                                               NumberOrText(transparency), true);
    }
    if (const CZtVariant style = properties.TakeProperty("PrintStyleInViewport"); !style.IsNull())
    {
        result += WriteSetPrintStyleInViewport(variable, QStringLiteral("SetPrintStyleInViewport"), NumberOrText(style),
                                               style.GetType() == CZtVariant::kText);
    }
    return result;
}
