// Block definitions, their instances and external references.
#include "host/db/blocks.h"

#include "core/escape.h"
#include "core/macro_language.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

namespace
{
constexpr QLatin1String AnonymousMark("*U", 2);

// The application's name of the data that makes a reference a cloud, and of hyperlinks.
const QString CloudData = QStringLiteral("PE_CLOUD");
const QString LinkData = QStringLiteral("PE_URL");

// A description in one line of source: its line feeds become the two characters backslash and n.
QString OneLine(const QString& description)
{
    return EscapeBackslashes(description).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}
} // namespace

OdArray<OdDbObjectId> CZtConverterKVAPIObject::ObjectsOf(const CZtVariant& list)
{
    OdArray<OdDbObjectId> ids;
    const CZtVariantCollection* collection = list.GetCollection();
    CZtDocument* document = ACTIVE_DOCUMENT();
    if (collection == nullptr || collection->GetCurrentIndex() < 0 || document == nullptr)
    {
        return ids;
    }
    for (const CZtVariantCollectionElement& element : collection->GetCollectionDataForRead())
    {
        const OdDbHandle handle(element.GetValue()->GetString().text());
        if (const OdDbObjectId id = document->GetZtDatabase()->getOdDbObjectId(handle); !id.isNull())
        {
            ids.append(id);
        }
    }
    return ids;
}

QString CZtConverterKVAPIObject::CreateBlockDefinition(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const auto block = Opened<OdDbBlockTableRecord>(handle);
    if (!block || block->isFromExternalReference() || block->isLayout())
    {
        return {};
    }
    const QString description = OneLine(TextOf(properties.TakeProperty("Description", &consumed)));
    const OdArray<OdDbObjectId> ids = ObjectsOf(properties.TakeProperty("Objects", &consumed));
    QString text = BlockDefinition(variable, block->getName(), description, block->origin(), ids);
    if (const OdArray<OdResBufPtr> link = block->xData(LinkData); link.size() > 1)
    {
        text += SetHyperLink(variable, FirstText(link), LastText(link));
    }
    for (const auto& [name, word] :
         {std::pair("ApplyUniformScale", "ApplyUniformScale"), std::pair("Explodable", "Explodable")})
    {
        if (const CZtVariant value = properties.TakeProperty(name, &consumed); !value.IsNull())
        {
            text +=
                WriteSetBoolProperty(variable, QLatin1String(word), IsWord(words_, value, "Yes", Qt::CaseInsensitive));
        }
    }
    if (const CZtVariant unit = properties.TakeProperty("BlockUnit", &consumed); !unit.IsNull())
    {
        // The units come as a number or as the user's word for it.
        bool isNumber = false;
        const int number = TextOf(unit).toInt(&isNumber);
        text += WriteSetEnumProperty(variable, kv::EnumKind::BlockInsertUnits, QStringLiteral("BlockInsertUnits"),
                                     isNumber ? CZtUtils::GetStringForUnitScalingFactor(number).text() : TextOf(unit));
    }
    if (CZtDocument* document = ACTIVE_DOCUMENT())
    {
        text += Converter().WriteSetCommandOptionInt16(QStringLiteral("kvCommandOptionInt16_SetBlkInsUnt"),
                                                       document->GetZtDatabase()->getInsUnits());
    }
    return text;
}

// The hyperlink's address is the first and its description the last text of the data.
QString CZtConverterKVAPIObject::FirstText(const OdArray<OdResBufPtr>& data)
{
    constexpr int textCode = 1000;
    const auto found = std::ranges::find_if(data, [](const OdResBufPtr& item) { return item->restype() == textCode; });
    return found != data.end() ? QString((*found)->getString()) : QString();
}

QString CZtConverterKVAPIObject::LastText(const OdArray<OdResBufPtr>& data)
{
    constexpr int textCode = 1000;
    QString last;
    for (const OdResBufPtr& item : data)
    {
        if (item->restype() == textCode)
        {
            last = item->getString();
        }
    }
    return last;
}

CustomData CZtConverterKVAPIObject::CustomDataOf(const OdArray<OdResBufPtr>& data)
{
    // Group codes: points and vectors, reals, integers; all others are texts, the first the application's name.
    constexpr int firstPoint = 1010;
    constexpr int firstReal = 1040;
    constexpr int firstInteger = 1060;
    CustomData custom;
    for (const OdResBufPtr& item : data)
    {
        const int code = item->restype();
        if (custom.application.isEmpty())
        {
            custom.application = item->getString();
        }
        else if (code >= firstInteger)
        {
            custom.items.push_back({code, item->getInt32()});
        }
        else if (code >= firstReal)
        {
            custom.items.push_back({code, item->getDouble()});
        }
        else if (code >= firstPoint)
        {
            custom.items.push_back({code, item->getPoint3d()});
        }
        else
        {
            custom.items.push_back({code, QString(item->getString())});
        }
    }
    return custom;
}

QString CZtConverterKVAPIObject::BlockDefinition(const QString& variable, const QString& name,
                                                 const QString& description, const OdGePoint3d& basePoint,
                                                 const OdArray<OdDbObjectId>& ids)
{
    if (!name.startsWith(AnonymousMark))
    {
        return WriteCreateBlockDefinition(variable, name, description, basePoint) + BlockContents(variable, ids);
    }
    // The application gives an anonymous block its name; the macro asks for it.
    const QString definition = variable + QLatin1String("Def");
    QString text = WriteDeclareBlockDefinition(definition);
    text += WriteCreateBlockDefinition(definition, name, description, basePoint);
    text += WriteGetBlockName(variable + QLatin1String("Name"), definition);
    text += BlockContents(definition, ids);
    return text;
}

QString CZtConverterKVAPIObject::BlockContents(const QString& definition, const OdArray<OdDbObjectId>& ids)
{
    if (ids.isEmpty())
    {
        return {};
    }
    QString text = Converter().WriteBlockBegin();
    const std::int32_t number = ++Counters().LocalNameSequence;
    text += WriteEnterBlockDefinition(definition, number);
    for (const OdDbObjectId& id : ids)
    {
        const OdDbObjectPtr object = id.openObject();
        const QString stem = object ? StemOf(object->isA()) : QString();
        QString typeName;
        if (!stem.isEmpty() && GetObjectTypeName(id.getHandle(), object->isA(), typeName))
        {
            const std::int32_t local = ++Counters().LocalNameSequence;
            text += Converter().WriteDeclareVariable(typeName, stem, local);
            text += InsertStored(*object, stem + QString::number(local));
        }
    }
    text += WriteLeaveBlockDefinition(number);
    text += Converter().WriteBlockEnd();
    return text;
}

QString CZtConverterKVAPIObject::ConvertBlockDefinition(const PropertyPass& pass)
{
    if (pass.created)
    {
        return {};
    }
    const OdArray<OdDbObjectId> ids = ObjectsOf(pass.properties.TakeProperty("Objects"));
    const QString description = OneLine(TextOf(pass.properties.TakeProperty("Description")));
    const auto block = Opened<OdDbBlockTableRecord>(pass.handle);
    if (ids.isEmpty() || !block)
    {
        return {};
    }
    return WriteUpdateBlockDefinition(pass.variable, block->getName(), description) + BlockContents(pass.variable, ids);
}

QString CZtConverterKVAPIObject::CreateBlockInstance(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    QString name = TextOf(properties.TakeProperty("Name", &consumed));
    const OdGePoint3d position = properties.TakePoint("Position X", "Position Y", "Position Z", &consumed);
    const double scaleX = properties.TakeDouble("Scale X", 1.0, &consumed);
    const double scaleY = properties.TakeDouble("Scale Y", 1.0, &consumed);
    const double scaleZ = properties.TakeDouble("Scale Z", 1.0, &consumed);
    const double rotation = properties.TakeDouble("Rotation", 0.0, &consumed);

    const auto reference = Opened<OdDbBlockReference>(handle);
    const auto block = reference ? Opened<OdDbBlockTableRecord>(reference->blockTableRecord().getHandle())
                                 : OdSmartPtr<OdDbBlockTableRecord>();
    const OdArray<OdResBufPtr> cloud = reference ? reference->xData(CloudData) : OdArray<OdResBufPtr>();
    const bool isCloud = !cloud.isEmpty();
    QString text;
    if (isCloud)
    {
        name = AnonymousMark;
        if (block)
        {
            text += BlockDefinition(variable, name, OneLine(block->comments()), block->origin(), block->entityIds());
        }
    }
    if (block && block->isFromExternalReference())
    {
        text = WriteInsertExternalReference(variable, EscapeBackslashes(block->pathName()), position, scaleX, rotation);
    }
    else
    {
        text += WriteInsertBlockInstance(variable, isCloud ? variable + QLatin1String("Name") : name, isCloud, position,
                                         {scaleX, scaleY, scaleZ}, rotation);
    }
    if (isCloud)
    {
        text += WriteCustomData(variable, CustomDataOf(cloud));
    }
    const std::size_t attributes = reference ? reference->attributeIds().size() : 0;
    for (std::size_t i = 0; i < attributes; ++i)
    {
        CZtVariant tag;
        const CZtVariant value = properties.TakeProperty("BlockAttributes", &consumed, &tag);
        if (!value.IsNull() && !tag.IsNull())
        {
            text += WriteSetAttributeValue(variable, QStringLiteral("Value"), TextOf(tag), TextOf(value));
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertBlockInstance(const PropertyPass& pass)
{
    if (pass.created)
    {
        return {};
    }
    QString text = ChangeCoordinates(pass, {"Position X", "Position Y", "Position Z"}, "GetPosition", "SetPosition");
    if (CurrentLanguage() == MacroLanguage::JavaScript)
    {
        // The script library has a setter for each direction.
        text += ChangeDouble(pass, "Scale X", "ScaleX");
        text += ChangeDouble(pass, "Scale Y", "ScaleY");
        text += ChangeDouble(pass, "Scale Z", "ScaleZ");
    }
    else
    {
        text += ChangeCoordinates(pass, {"Scale X", "Scale Y", "Scale Z"}, "GetScales", "SetScales");
    }
    text += ChangeDouble(pass, "Rotation", "Rotation");
    CZtVariant tag;
    for (CZtVariant value = pass.properties.TakeProperty("BlockAttributes", nullptr, &tag); !value.IsNull();
         value = pass.properties.TakeProperty("BlockAttributes", nullptr, &tag))
    {
        text += WriteSetAttributeValue(pass.variable, QStringLiteral("Value"), TextOf(tag), TextOf(value));
    }
    return text;
}
