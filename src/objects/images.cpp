// Pictures, shapes and embedded objects.
#include "core/escape.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreatePicture(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const QString path = EscapeBackslashes(TextOf(properties.TakeProperty("Path", &consumed)));
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const double scale = properties.TakeDouble("Scale", 1.0, &consumed);
    const double rotation = properties.TakeDouble("Rotation", 0.0, &consumed);
    return WriteInsertPicture(variable, path, position, scale, rotation);
}

QString CZtConverterKVAPIObject::CreateShape(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const QString name = TextOf(properties.TakeProperty("Name", &consumed));
    const double size = properties.TakeDouble("Size", 0.0, &consumed);
    const double rotation = properties.TakeDouble("Rotation", 0.0, &consumed);
    return WriteInsertShape(variable, name, position, size, rotation);
}

QString CZtConverterKVAPIObject::ConvertReferenceImage(const PropertyPass& pass)
{
    QString text;
    for (const char* name : {"Brightness", "Contrast", "Fade", "Height", "Rotation", "Width"})
    {
        text += ChangeDouble(pass, name, name);
    }
    text += ChangeDouble(pass, "Scale", "ScaleImage");
    text += ChangeWord(pass, "Show clipped", "ShowClipped", "Yes");
    text += ChangeWord(pass, "Show image", "ShowImage", "Yes");
    text += ChangeWord(pass, "Transparency", "Transparency", "Yes");
    text += ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    return text;
}

QString CZtConverterKVAPIObject::ConvertShape(const PropertyPass& pass)
{
    QString text = ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    for (const char* name : {"Obliquing", "Rotation", "Size"})
    {
        text += ChangeDouble(pass, name, name);
    }
    text += ChangeDouble(pass, "Width factor", "WidthFactor");
    return text;
}

QString CZtConverterKVAPIObject::ConvertEmbeddedObject(const PropertyPass& pass)
{
    QString text = ChangeDouble(pass, "Height", "Height");
    text += ChangeDouble(pass, "Width", "Width");
    text += ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    text += ChangeEnum(pass, "Print quality", kv::EnumKind::EmbeddedObjectPrintQuality, "PrintQuality");
    return text;
}
