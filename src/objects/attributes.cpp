// Attribute definitions.
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateAttributeDefinition(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const auto take = [&](const char* name) { return TextOf(properties.TakeProperty(name, &consumed)); };
    const auto isSet = [&](const char* name)
    { return IsWord(words_, properties.TakeProperty(name, &consumed), "Yes", Qt::CaseInsensitive); };

    const QString value = take("Value");
    const QString tag = take("Tag");
    const QString prompt = take("Prompt");
    const QString style = take("Style");
    const QString justification = take("Justify");
    const bool isLeft =
        words_.Matches(DisplayWords::Context::PropertyValues, "Left", justification, Qt::CaseInsensitive);
    const OdGePoint3d point =
        isLeft ? properties.TakePoint("Position X", "Position Y", "Position Z", &consumed)
               : properties.TakePoint("Text alignment X", "Text alignment Y", "Text alignment Z", &consumed);
    const double height = properties.TakeDouble("Height", 0.2, &consumed);
    const double rotation = properties.TakeDouble("Rotation", 0.0, &consumed);
    // Braces keep the order of the readings.
    const AttributeFlags flags{isSet("Constant"), isSet("Invisible"), isSet("Preset"), isSet("Verify"),
                               isSet("Lock position")};
    return WriteInsertAttributeDefinition(variable, value, tag, prompt, point, style, height, justification, rotation,
                                          flags);
}

QString CZtConverterKVAPIObject::ConvertAttributeDefinition(const PropertyPass& pass)
{
    QString text = ChangeDouble(pass, "Angle", "Angle");
    text += ChangeDouble(pass, "Height", "Height");
    text += ChangeEnum(pass, "Justify", kv::EnumKind::TextJustification, "Justification");
    text += ChangeText(pass, "Prompt", "Caption");
    text += ChangeDouble(pass, "Rotation", "Rotation");
    text += ChangeDouble(pass, "Spacing", "Spacing");
    text += ChangeText(pass, "Style", "TextStyle");
    text += ChangeText(pass, "Tag", "Name");
    text += ChangeText(pass, "Value", "Value");
    text += ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    text += ChangeCoordinates(pass, {"Text alignment X", "Text alignment Y", "Text alignment Z"}, "GetAlignmentPoint",
                              "SetAlignmentPoint");
    for (const auto& [name, word] :
         {std::pair("Backward", "Backwards"), std::pair("Constant", "Constant"), std::pair("Invisible", "Hidden"),
          std::pair("Lock position", "LockPosition"), std::pair("Preset", "Preset"),
          std::pair("UpsideDown", "UpsideDown"), std::pair("Verify", "Verify")})
    {
        text += ChangeWord(pass, name, word, "Yes");
    }
    return text;
}
