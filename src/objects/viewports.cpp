// Viewports of sheets, tiles of the model's window, and the print styles of layouts.
#include "host/db/blocks.h"
#include "host/db/symbols.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateViewport(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d center = properties.TakePoint("Center X", "Center Y", "Center Z", &consumed);
    const double height = properties.TakeDouble("Height", 0.0, &consumed);
    const double width = properties.TakeDouble("Width", 0.0, &consumed);
    // A viewport with an edge of its own is made by its custom action.
    const auto viewport = Opened<OdDbViewport>(handle);
    return viewport && viewport->isNonRectClipOn() ? QString() : WriteInsertViewport(variable, center, width, height);
}

QString CZtConverterKVAPIObject::ConvertViewport(const PropertyPass& pass)
{
    QString text = ChangeCoordinates(pass, {"Center X", "Center Y", "Center Z"}, "GetCenter", "SetCenter");
    text += ChangeDouble(pass, "Height", "Height");
    text += ChangeDouble(pass, "Width", "Width");
    text += ChangeWord(pass, "CCS per viewport", "CCSPerViewport", "Yes");
    text += ChangeDouble(pass, "Custom scale", "CustomScale");
    text += ChangeWord(pass, "Display locked", "DisplayLocked", "Yes");
    text += ChangeWord(pass, "On", "IsOn", "Yes");
    text += ChangeEnum(pass, "Shade print", kv::EnumKind::ViewportShadePrintStyle, "ShadePrintStyle");
    text += ChangeEnum(pass, "Standard scale", kv::EnumKind::ViewportStandardScale, "StandardScale");
    return text;
}

QString CZtConverterKVAPIObject::ConvertViewTile(const PropertyPass& pass)
{
    QString text;
    for (const auto& [name, word] :
         {std::pair("CCS per View Tile", "CCSPerViewTile"), std::pair("CS icon at origin", "CSIconAtOrigin"),
          std::pair("CS icon on", "CSIconIsOn")})
    {
        const CZtVariant value = pass.properties.TakeProperty(name);
        if (!value.IsNull() && !pass.created)
        {
            text += WriteSetBoolProperty(pass.variable, QLatin1String(word), TagOf(value) == 1);
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertLayout(const PropertyPass& pass)
{
    const CZtVariant style = pass.properties.TakeProperty("PrintStyleTable");
    const bool isModel = IsWord(words_, pass.properties.TakeProperty("Model_PrintStyleTable"), "Yes");
    const QString sheet = TextOf(pass.properties.TakeProperty("SheetName_PrintStyleTable"));
    return style.IsNull() || pass.created
               ? QString()
               : WriteSetNamedProperty(QStringLiteral("PrintStyleTable"), TextOf(style), isModel, sheet);
}
