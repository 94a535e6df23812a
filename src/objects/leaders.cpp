// Leaders and what they point from.
#include "core/escape.h"
#include "host/db/blocks.h"
#include "host/db/text.h"
#include "objects/dimension_settings.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateLeader(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Vertex", &consumed);
    const QString content = TextOf(properties.TakeProperty("content", &consumed));
    const double width = properties.TakeDouble("width", 0.0, &consumed);
    QString text = WriteInsertLeader(variable, points, width, EscapeBackslashes(content));
    if (const auto leader = Opened<OdDbLeader>(handle))
    {
        text += LeaderAnnotation(variable, leader->annotationObjId());
    }
    return text;
}

QString CZtConverterKVAPIObject::LeaderAnnotation(const QString& leader, const OdDbObjectId& annotation)
{
    const OdDbHandle handle = annotation.getHandle();
    if (annotation.isNull())
    {
        return {};
    }
    if (const auto tolerance = Opened<OdDbFcf>(handle))
    {
        return SetLeaderAnnotation(leader, *tolerance);
    }
    if (const auto reference = Opened<OdDbBlockReference>(handle))
    {
        const auto block = Opened<OdDbBlockTableRecord>(reference->blockTableRecord().getHandle());
        return WriteSetLeaderAnnotation(leader, block ? block->getName() : OdString(), reference->position(), false);
    }
    const auto note = Opened<OdDbMText>(handle);
    return note ? LeaderNote(leader, *note) : QString();
}

// The state of the note that a leader made.
QString CZtConverterKVAPIObject::LeaderNote(const QString& leader, const OdDbMText& note)
{
    // Display words of the attachments 1 to 9.
    constexpr std::array words = {"Top Left",     "Top Center",  "Top Right",     "Middle Left", "Middle Center",
                                  "Middle Right", "Bottom Left", "Bottom Center", "Bottom Right"};
    QString variable;
    static_cast<void>(GetObjectByHandle(note.getDbHandle(), OdDbMText::desc(), variable));
    QString text = WriteGetNoteAnnotation(leader, variable);
    if (note.backgroundFillOn())
    {
        text += WriteSetBoolProperty(variable, QStringLiteral("BackgroundMask"), true);
    }
    if (note.useBackgroundColorOn())
    {
        text += WriteSetBoolProperty(variable, QStringLiteral("UseDrawingBackgroundColor"), true);
    }
    text += WriteSetColorProperty(variable, QStringLiteral("BackgroundFillColor"), note.getBackgroundFillColor());
    text += WriteSetDoubleProperty(variable, QStringLiteral("BackgroundBorderOffsetFactor"),
                                   note.getBackgroundScaleFactor());
    // Lines of single spacing stand five thirds of the text's height apart.
    text += WriteSetDoubleProperty(variable, QStringLiteral("LineSpaceDistance"),
                                   note.lineSpacingFactor() * note.textHeight() * 1.6666666666666667);
    text += WriteSetDoubleProperty(variable, QStringLiteral("LineSpaceFactor"), note.lineSpacingFactor());
    text += WriteSetDoubleProperty(variable, QStringLiteral("Rotation"), note.rotation());
    text += WriteSetDoubleProperty(variable, QStringLiteral("TextHeight"), note.textHeight());
    text += WriteSetDoubleProperty(variable, QStringLiteral("Width"), note.width());
    if (const int attachment = note.attachment(); attachment >= 1 && attachment <= 9)
    {
        text += WriteSetNoteJustification(variable, QStringLiteral("Justify"),
                                          words_.Translate(DisplayWords::Context::PropertyValues,
                                                           words.at(static_cast<std::size_t>(attachment) - 1)));
    }
    if (const auto style = Opened<OdDbTextStyleTableRecord>(note.textStyle().getHandle()))
    {
        text += WriteSetStringProperty(variable, QStringLiteral("TextStyle"), style->getName(), true);
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertLeader(const PropertyPass& pass)
{
    if (pass.created)
    {
        return {};
    }
    QString text = ChangeText(pass, "Dim style", "DimensionStyle");
    text += ChangeArrows(pass, DimensionRoot::Annotation);
    text += ChangeLineLook(pass, DimensionRoot::Annotation);
    return text;
}
