// The forms of values by the key that names them.
#include "embedded/value_reader.h"

#include "embedded/json_values.h"

namespace kv
{
namespace
{
using Type = JsonNode::Type;

// A table from a key to the way in which its value is read.
template <class Read>
struct Form
{
    std::string_view key;
    Read read;
};

template <class Forms>
const auto& formOf(const Forms& forms, const JsonNode& node, const JsonNode& form)
{
    for (const auto& known : forms)
    {
        if (known.key == form.key())
        {
            return known;
        }
    }
    QString keys;
    for (const auto& known : forms)
    {
        keys += (keys.isEmpty() ? QStringLiteral("one of ") : QStringLiteral(", ")) + ToText(known.key);
    }
    node.failUnknownKey(form.key(), keys);
}

constexpr const char* OneKey = "null, a text, a number, true, false or an object with one key";

CZtVariantCollection pointCollection(const JsonNode& node)
{
    CZtVariantCollection points;
    node.forEachItem("a list of points", [&](const JsonNode& item)
                     { points.GetCollectionDataForWrite().emplace_back(CZtVariant(), ReadPoint(item)); });
    return points;
}

OdResBufPtr buffer(int code, OdResBuf::Value value)
{
    return OdResBufPtr::make(code, std::move(value));
}

template <class Item, class Read>
CZtCustomActionData::Value arrayOf(const JsonNode& node, Read read)
{
    return OdArray<Item>(ReadList(node, read));
}

OdGeVector3d readVector(const JsonNode& node)
{
    const OdGePoint3d point = ReadPoint(node);
    return {point.x, point.y, point.z};
}
} // namespace

OdDbObjectId ValueReader::id(const JsonNode& node)
{
    const OdDbHandle handle = ReadHandle(node);
    unresolved_ = unresolved_ || !drawing_.contains(handle);
    return OdDbObjectId(&drawing_, handle);
}

CZtVariantCollectionElement ValueReader::element(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 2> keys = {{{"tag"}, {"value"}}};
    const auto [tag, value] = node.members(keys);
    return {variant(*tag), variant(*value)};
}

CZtVariantCollection ValueReader::collection(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 2> keys = {{{"index"}, {"elements"}}};
    const auto [index, elements] = node.members(keys);
    CZtVariantCollection result;
    result.SetCurrentIndex(index->integer());
    elements->forEachItem("a list of elements",
                          [&](const JsonNode& item) { result.GetCollectionDataForWrite().push_back(element(item)); });
    return result;
}

CZtVariant ValueReader::variant(const JsonNode& node)
{
    using Read = CZtVariant (*)(ValueReader&, const JsonNode&);
    static constexpr std::array<Form<Read>, 8> forms = {{
        {"int", [](ValueReader&, const JsonNode& value) { return CZtVariant(value.integer()); }},
        {"point", [](ValueReader&, const JsonNode& value) { return CZtVariant(ReadPoint(value)); }},
        {"points", [](ValueReader&, const JsonNode& value) { return CZtVariant(pointCollection(value)); }},
        {"color", [](ValueReader&, const JsonNode& value) { return CZtVariant(ReadColor(value)); }},
        {"transparency", [](ValueReader&, const JsonNode& value) { return CZtVariant(ReadTransparency(value)); }},
        {"id", [](ValueReader& reader, const JsonNode& value) { return CZtVariant(reader.id(value)); }},
        {"element", [](ValueReader& reader, const JsonNode& value) { return CZtVariant(reader.element(value)); }},
        {"collection", [](ValueReader& reader, const JsonNode& value) { return CZtVariant(reader.collection(value)); }},
    }};
    switch (node.type())
    {
    case Type::NULL_VALUE:
        return {};
    case Type::STRING:
        return CZtString(ReadText(node));
    case Type::BOOL:
        return CZtVariant(node.flag() ? 1 : 0);
    case Type::INT64:
    case Type::UINT64:
    case Type::DOUBLE:
        return {node.number(), false};
    default:
        const JsonNode form = node.onlyMember(OneKey);
        return formOf(forms, node, form).read(*this, form);
    }
}

OdResBufPtr ValueReader::resultBuffer(const JsonNode& node) const
{
    using Read = OdResBufPtr (*)(const JsonNode&);
    static constexpr std::array<Form<Read>, 12> forms = {{
        {"real", [](const JsonNode& value) { return buffer(OdResBuf::kReal, value.number()); }},
        {"angle", [](const JsonNode& value) { return buffer(OdResBuf::kAngle, value.number()); }},
        {"text", [](const JsonNode& value) { return buffer(OdResBuf::kText, ReadText(value)); }},
        {"point", [](const JsonNode& value) { return buffer(OdResBuf::kPoint3d, ReadPoint(value)); }},
        {"bool", [](const JsonNode& value) { return buffer(OdResBuf::kBool, value.flag()); }},
        {"int8", [](const JsonNode& value) { return buffer(OdResBuf::kInt8, value.integer(INT8_MIN, INT8_MAX)); }},
        {"int16", [](const JsonNode& value) { return buffer(OdResBuf::kInt16, value.integer(INT16_MIN, INT16_MAX)); }},
        {"int32", [](const JsonNode& value) { return buffer(OdResBuf::kInt32, value.integer()); }},
        {"double", [](const JsonNode& value) { return buffer(OdResBuf::kReal, value.number()); }},
        {"string", [](const JsonNode& value) { return buffer(OdResBuf::kText, ReadText(value)); }},
        {"point2d", [](const JsonNode& value) { return buffer(OdResBuf::kPoint2d, ReadPoint2d(value)); }},
        {"point3d", [](const JsonNode& value) { return buffer(OdResBuf::kPoint3d, ReadPoint(value)); }},
    }};
    switch (node.type())
    {
    case Type::NULL_VALUE:
        return {};
    case Type::STRING:
        return buffer(OdResBuf::kText, ReadText(node));
    case Type::BOOL:
        return buffer(OdResBuf::kBool, node.flag());
    case Type::INT64:
    case Type::UINT64:
    case Type::DOUBLE:
        return buffer(OdResBuf::kReal, node.number());
    default:
        const JsonNode form = node.onlyMember(OneKey);
        return formOf(forms, node, form).read(form);
    }
}

CZtCustomActionData ValueReader::actionItem(const JsonNode& node)
{
    using Value = CZtCustomActionData::Value;
    using Read = Value (*)(ValueReader&, const JsonNode&);
    static constexpr auto classOrNone = [](ValueReader& reader, const JsonNode& value) -> const OdRxClass*
    { return value.isNull() ? nullptr : reader.classes_.find(value.text()); };
    static constexpr std::array<Form<Read>, 15> forms = {{
        {"int", [](ValueReader&, const JsonNode& value) -> Value { return value.integer(); }},
        {"int16",
         [](ValueReader&, const JsonNode& value) -> Value
         { return static_cast<std::int16_t>(value.integer(INT16_MIN, INT16_MAX)); }},
        {"color", [](ValueReader&, const JsonNode& value) -> Value { return ReadColor(value); }},
        {"handle", [](ValueReader&, const JsonNode& value) -> Value { return ReadHandle(value); }},
        {"class", [](ValueReader& reader, const JsonNode& value) -> Value { return classOrNone(reader, value); }},
        {"point", [](ValueReader&, const JsonNode& value) -> Value { return ReadPoint(value); }},
        {"vector", [](ValueReader&, const JsonNode& value) -> Value { return readVector(value); }},
        {"handles", [](ValueReader&, const JsonNode& value) -> Value { return ReadList(value, ReadHandle); }},
        {"classes",
         [](ValueReader& reader, const JsonNode& value) -> Value
         { return ReadList(value, [&](const JsonNode& item) { return classOrNone(reader, item); }); }},
        {"strings",
         [](ValueReader&, const JsonNode& value) -> Value
         { return ReadList(value, [](const JsonNode& item) { return CZtString(ReadText(item)); }); }},
        {"points", [](ValueReader&, const JsonNode& value) { return arrayOf<OdGePoint3d>(value, ReadPoint); }},
        {"points2d", [](ValueReader&, const JsonNode& value) { return arrayOf<OdGePoint2d>(value, ReadPoint2d); }},
        {"ids", [](ValueReader& reader, const JsonNode& value)
         { return arrayOf<OdDbObjectId>(value, [&](const JsonNode& item) { return reader.id(item); }); }},
        {"doubles", [](ValueReader&, const JsonNode& value) { return arrayOf<double>(value, ReadNumber); }},
        {"ints", [](ValueReader&, const JsonNode& value) { return arrayOf<std::int32_t>(value, ReadInteger); }},
    }};
    switch (node.type())
    {
    case Type::NULL_VALUE:
        return {};
    case Type::STRING:
        return CZtCustomActionData(CZtString(ReadText(node)));
    case Type::BOOL:
        return CZtCustomActionData(node.flag());
    case Type::INT64:
    case Type::UINT64:
    case Type::DOUBLE:
        return CZtCustomActionData(node.number());
    default:
        const JsonNode form = node.onlyMember(OneKey);
        return CZtCustomActionData(formOf(forms, node, form).read(*this, form));
    }
}

CZtVariant ResolveIds(const CZtVariant& value, Drawing& drawing)
{
    const auto resolved = [&](const CZtVariantCollectionElement& element)
    {
        return CZtVariantCollectionElement(ResolveIds(*element.GetTag(), drawing),
                                           ResolveIds(*element.GetValue(), drawing));
    };
    switch (value.GetType())
    {
    case CZtVariant::kObjectId:
        return drawing.getOdDbObjectId(value.GetId().getHandle());
    case CZtVariant::kElement:
        return resolved(*value.GetCollectionElement());
    case CZtVariant::kCollection:
    {
        CZtVariantCollection collection;
        collection.SetCurrentIndex(value.GetCollection()->GetCurrentIndex());
        for (const CZtVariantCollectionElement& element : value.GetCollection()->GetCollectionDataForRead())
        {
            collection.GetCollectionDataForWrite().push_back(resolved(element));
        }
        return collection;
    }
    default:
        return value;
    }
}

CZtCustomActionData ResolveIds(const CZtCustomActionData& item, Drawing& drawing)
{
    if (item.GetType() != CZtCustomActionData::kObjectIdArray)
    {
        return item;
    }
    OdArray<OdDbObjectId> ids;
    for (const OdDbObjectId& id : item.GetObjectIdArray())
    {
        ids.append(drawing.getOdDbObjectId(id.getHandle()));
    }
    return CZtCustomActionData(std::move(ids));
}
} // namespace kv
