// Texts of one line, notes and tolerances.
#include "core/escape.h"
#include "host/db/text.h"
#include "objects/dimension_settings.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

namespace
{
// A text whose lines stand in one line of source: a line feed becomes the two characters backslash and n, a backslash
// is doubled.
QString OneLine(const QString& text)
{
    return EscapeBackslashes(text).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

// Two opposite corners of the box of a note, whose position is the point of the attachment, 1 top left to 9 bottom
// right, row by row.
struct NoteBox
{
    OdGePoint3d corner1;
    OdGePoint3d corner2;
};

NoteBox BoxOf(const OdGePoint3d& position, double width, double height, int attachment)
{
    const bool isKnown = attachment >= 1 && attachment <= 9;
    const int column = isKnown ? (attachment - 1) % 3 : 0;
    const int row = isKnown ? (attachment - 1) / 3 : 0;
    const auto corner = [&](double x, double y) { return OdGePoint3d{position.x + x, position.y + y, position.z}; };
    const double left = -0.5 * width * column;
    const double top = 0.5 * height * row;
    return {corner(left, top), corner(left + width, top - height)};
}
} // namespace

QString CZtConverterKVAPIObject::CreateSimpleNote(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const OdGePoint3d alignment =
        properties.TakePoint("Text alignment X", "Text alignment Y", "Text alignment Z", &consumed);
    const double height = properties.TakeDouble("Height", 2.5, &consumed);
    const double rotation = properties.TakeDouble("Rotation", 0.0, &consumed);
    const QString contents = TextOf(properties.TakeProperty("Contents", &consumed));
    const CZtVariant justification = properties.TakeProperty("Justify");
    QString text = WriteInsertSimpleNote(variable, alignment, height, rotation, contents);
    if (!justification.IsNull())
    {
        text += WriteSetEnumProperty(variable, kv::EnumKind::TextJustification, QStringLiteral("Justify"),
                                     TextOf(justification));
    }
    text += SetPoint(variable, "GetAlignmentPoint", "SetAlignmentPoint", alignment);
    text += SetPoint(variable, "GetPosition", "SetPosition", position);
    return text;
}

QString CZtConverterKVAPIObject::CreateNote(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const CZtVariant width = properties.TakeProperty("Width", &consumed);
    const CZtVariant height = properties.TakeProperty("Text Height", &consumed);
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const CZtVariant justification = properties.TakeProperty("Justify");
    const QString contents = TextOf(properties.TakeProperty("Contents", &consumed));
    const CZtVariant direction = properties.TakeProperty("Direction", &consumed);
    const CZtVariant style = properties.TakeProperty("Style", &consumed);
    // The angle is taken twice, and the second taking finds nothing: these lines say 0, and the settings behind the
    // insertion say the true values once more.
    const CZtVariant rotation = properties.TakeProperty("Rotation");
    const double secondRotation = properties.TakeDouble("Rotation", 0.0);
    const CZtVariant lineSpace = properties.TakeProperty("Line space distance");
    const double boxHeight = properties.TakeDouble("TextBoxHeight", 0.0, &consumed);

    const CZtVariantCollection* selection = justification.GetCollection();
    const NoteBox box =
        BoxOf(position, width.GetDouble(), boxHeight, selection != nullptr ? selection->GetCurrentIndex() + 1 : 1);
    QString text = WriteInsertNote(variable, box.corner1, box.corner2, contents);
    if (!rotation.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("Rotation"), secondRotation);
    }
    if (!height.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("TextHeight"), height.GetDouble());
    }
    if (!width.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("Width"), width.GetDouble());
    }
    if (!lineSpace.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("LineSpaceDistance"), secondRotation);
    }
    if (!style.IsNull())
    {
        text += WriteSetStringProperty(variable, QStringLiteral("TextStyle"), TextOf(style), true);
    }
    if (!justification.IsNull())
    {
        text += WriteSetNoteJustification(variable, QStringLiteral("Justify"), TextOf(justification));
    }
    if (!direction.IsNull())
    {
        text += SetNoteDirection(variable, direction);
    }
    return text;
}

QString CZtConverterKVAPIObject::SetNoteDirection(const QString& variable, const CZtVariant& direction)
{
    QString constant = QStringLiteral("kvNoteDirection_e.kvNoteDirection_ByStyle");
    for (const char* word : {"Horizontal", "Vertical"})
    {
        if (IsWord(words_, direction, word))
        {
            constant = QStringLiteral("kvNoteDirection_e.kvNoteDirection_%1").arg(QLatin1String(word));
        }
    }
    return WriteSetNoteDirection(variable, QStringLiteral("Direction"), constant);
}

QString CZtConverterKVAPIObject::CreateTolerance(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const QString content = TextOf(properties.TakeProperty("Content", &consumed));
    return WriteInsertTolerance(variable, position, QString(content).replace(QLatin1Char('\n'), QLatin1String("\\n")));
}

QString CZtConverterKVAPIObject::ConvertSimpleNote(const PropertyPass& pass)
{
    QString text = ChangeDouble(pass, "Angle", "Angle");
    text += ChangeText(pass, "Contents", "Contents");
    text += ChangeDouble(pass, "Height", "Height");
    text += ChangeDouble(pass, "Rotation", "Rotation");
    text += ChangeDouble(pass, "Spacing", "Spacing");
    text += ChangeText(pass, "TextStyle", "TextStyle");
    text += ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    text += ChangeWord(pass, "Backward", "Backwards", "Yes");
    text += ChangeWord(pass, "UpsideDown", "UpsideDown", "Yes");
    text += ChangeEnum(pass, "Justify", kv::EnumKind::TextJustification, "Justify");
    text += ChangeCoordinates(pass, {"Text alignment X", "Text alignment Y", "Text alignment Z"}, "GetAlignmentPoint",
                              "SetAlignmentPoint");
    return text;
}

QString CZtConverterKVAPIObject::ConvertNote(const PropertyPass& pass)
{
    PropertyList& properties = pass.properties;
    const QString& variable = pass.variable;
    QString text;
    if (const CZtVariant mask = properties.TakeProperty("Background mask"); !mask.IsNull())
    {
        text += WriteSetBoolProperty(variable, QStringLiteral("BackgroundMask"), IsSwitchedOn(words_, mask));
    }
    if (const CZtVariant color = properties.TakeProperty("BackgroundFillColor"); !color.IsNull())
    {
        text += WriteSetColorProperty(variable, QStringLiteral("BackgroundFillColor"), color.GetColor());
    }
    if (const CZtVariant use = properties.TakeProperty("UseDrawingBackgroundColor"); !use.IsNull())
    {
        const bool isOn = use.GetType() == CZtVariant::kText ? IsWord(words_, use, "YES", Qt::CaseInsensitive)
                                                             : IsSwitchedOn(words_, use);
        text += WriteSetBoolProperty(variable, QStringLiteral("UseDrawingBackgroundColor"), isOn);
    }
    if (const CZtVariant factor = properties.TakeProperty("BackgroundBorderOffsetFactor"); !factor.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("BackgroundBorderOffsetFactor"), factor.GetDouble());
    }
    text += ChangeText(pass, "Contents", "Text");
    if (const CZtVariant direction = properties.TakeProperty("Direction"); !direction.IsNull() && !pass.created)
    {
        text += SetNoteDirection(variable, direction);
    }
    if (const CZtVariant justification = properties.TakeProperty("Justify"); !justification.IsNull() && !pass.created)
    {
        text += WriteSetNoteJustification(variable, QStringLiteral("Justify"), TextOf(justification));
    }
    if (const CZtVariant distance = properties.TakeProperty("Line space distance"); !distance.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("LineSpaceDistance"), distance.GetDouble());
    }
    text += ChangeDouble(pass, "Line space factor", "LineSpaceFactor");
    if (const CZtVariant style = properties.TakeProperty("Line space style"); !style.IsNull() && !pass.created)
    {
        const CZtVariantCollection* selection = style.GetCollection();
        const bool isExact = selection != nullptr && selection->GetCurrentIndex() == 2;
        text += SetConstant(variable, "LineSpacingStyle",
                            isExact ? "kvNoteLineSpacingStyle_e.kvNoteLineSpacingStyle_Exactly"
                                    : "kvNoteLineSpacingStyle_e.kvNoteLineSpacingStyle_AtLeast");
    }
    if (const CZtVariant rotation = properties.TakeProperty("Rotation"); !rotation.IsNull())
    {
        text += WriteSetDoubleProperty(variable, QStringLiteral("Rotation"), rotation.GetDouble());
    }
    if (const CZtVariant style = properties.TakeProperty("Style"); !style.IsNull())
    {
        text += WriteSetStringProperty(variable, QStringLiteral("TextStyle"), TextOf(style), true);
    }
    text += ChangeDouble(pass, "Text Height", "TextHeight");
    text += ChangeDouble(pass, "Width", "Width");
    text += ChangePoint(pass, {"Position X", "Position Y", "Position Z"}, &CZtConverterKVAPIObject::WriteSetPosition);
    return text;
}

QString CZtConverterKVAPIObject::ConvertTolerance(const PropertyPass& pass)
{
    QString text =
        ChangePoint(pass, {"Position X", "Position Y", "Position Z"}, &CZtConverterKVAPIObject::WriteSetPosition);
    text += ChangeDouble(pass, "Dim scale overall", "DimensionScaleFactor");
    text += ChangeText(pass, "Dim style", "DimensionStyle");
    if (!pass.created)
    {
        text += ChangeLineColor(pass, DimensionRoot::Annotation);
    }
    text += ChangeText(pass, "TextStyle", "TextStyle");
    text += ChangeDouble(pass, "Text height", "TextHeight");
    if (const CZtVariant color = pass.properties.TakeProperty("TextColor"); !color.IsNull())
    {
        text += WriteSetColorProperty(pass.variable, QStringLiteral("TextColor"), color.GetColor());
    }
    if (const CZtVariant content = pass.properties.TakeProperty("Content"); !content.IsNull() && !pass.created)
    {
        text += WriteSetStringProperty(pass.variable, QStringLiteral("Text"), OneLine(TextOf(content)), true);
    }
    return text;
}

// Insertions of what the drawing holds.

QString CZtConverterKVAPIObject::InsertStoredNote(const OdDbMText& note, const QString& variable)
{
    const NoteBox box = BoxOf(note.location(), note.width(), note.actualHeight(), note.attachment());
    return WriteInsertNote(variable, box.corner1, box.corner2, note.contents());
}

QString CZtConverterKVAPIObject::SetLeaderAnnotation(const QString& variable, const OdDbFcf& tolerance)
{
    return WriteSetLeaderAnnotation(variable, OneLine(tolerance.getText(-1)), tolerance.location(), true);
}
