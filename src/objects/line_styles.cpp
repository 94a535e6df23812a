// Line styles and rich line styles.
#include "host/db/symbols.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateLineStyle(const Creation& creation)
{
    const QString name = NameOf<OdDbLinetypeTableRecord>(creation, "LineStyleName");
    const QString file = TextOf(creation.properties.TakeProperty("LineStyleFileName", &creation.consumed));
    return WriteLoadLineStyle(creation.variable, name, file);
}

QString CZtConverterKVAPIObject::CreateRichLineStyle(const Creation& creation)
{
    const auto style = Opened<OdDbMlineStyle>(creation.handle);
    return WriteCreateRichLineStyle(creation.variable,
                                    TakeName(creation, "RichLineStyleName", style ? style->name() : OdString()));
}

QString CZtConverterKVAPIObject::ConvertRichLineStyle(const PropertyPass& pass)
{
    PropertyList& properties = pass.properties;
    const QString& variable = pass.variable;
    QString text;
    if (const CZtVariant name = properties.TakeProperty("RichLineStyleName"); !name.IsNull() && !pass.created)
    {
        text += WriteRenameStyle(variable, TextOf(name), false);
    }
    const auto flag = [&](const char* name, const char* word)
    {
        const CZtVariant value = properties.TakeProperty(name);
        return value.IsNull() ? QString()
                              : WriteSetBoolProperty(variable, QLatin1String(word),
                                                     IsWord(words_, value, "Yes", Qt::CaseInsensitive));
    };
    text += flag("Show junctions", "ShowJunctions");
    if (const CZtVariant color = properties.TakeProperty("Color"); !color.IsNull())
    {
        text += WriteSetColorProperty(variable, QStringLiteral("Color"), color.GetColor());
    }
    for (const auto& [name, word] : {std::pair("Angle start", "AngleStart"), std::pair("Angle end", "AngleEnd")})
    {
        if (const CZtVariant angle = properties.TakeProperty(name); !angle.IsNull())
        {
            text += WriteSetDoubleProperty(variable, QLatin1String(word), angle.GetDouble());
        }
    }
    for (const auto& [name, word] :
         {std::pair("Start external arc", "ExternalArcStart"), std::pair("End external arc", "ExternalArcEnd"),
          std::pair("Start internal arc", "InternalArcStart"), std::pair("End internal arc", "InternalArcEnd"),
          std::pair("Start line", "LineStart"), std::pair("End line", "LineEnd")})
    {
        text += flag(name, word);
    }
    // Each list has one value a line.
    const auto each = [&](const char* name, const auto& write)
    {
        const CZtVariant value = properties.TakeProperty(name);
        std::int32_t index = 0;
        if (const CZtVariantCollection* lines = value.GetCollection())
        {
            for (const CZtVariantCollectionElement& line : lines->GetCollectionDataForRead())
            {
                text += write(index++, *line.GetValue());
            }
        }
    };
    each("LineOffset", [&](std::int32_t index, const CZtVariant& value)
         { return WriteSetRichLineOffset(variable, index, value.GetDouble()); });
    each("LineColor", [&](std::int32_t index, const CZtVariant& value)
         { return WriteSetRichLineColor(variable, index, value.GetColor().colorIndex()); });
    each("LineStyleName", [&](std::int32_t index, const CZtVariant& value)
         { return WriteSetRichLineStyle(variable, index, value.GetString()); });
    return text;
}
