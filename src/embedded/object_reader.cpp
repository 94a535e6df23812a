// The values of keys, each read as the type of its key's default asks.
#include "embedded/object_reader.h"

#include "embedded/json_values.h"
#include "embedded/object_keys.h"
#include "host/db/classes.h"

namespace kv
{
namespace
{
// The item of extended data for a group code.
OdResBufPtr readCodedItem(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 2> keys = {{{"code"}, {"value"}}};
    const auto [codeNode, value] = node.members(keys);
    const std::int32_t code = codeNode->integer(1000, 1071);
    const auto item = [&](OdResBuf::Value contents) { return OdResBufPtr::make(code, std::move(contents)); };
    // Texts, points, reals and integers have a range of codes each.
    return code < 1010   ? item(ReadText(*value))
           : code < 1040 ? item(ReadPoint(*value))
           : code < 1070 ? item(value->number())
           : code < 1071 ? item(value->integer(INT16_MIN, INT16_MAX))
                         : item(value->integer());
}

ExtendedData readExtendedData(const JsonNode& node)
{
    constexpr int textCode = 1000;
    constexpr int applicationCode = 1001;
    ExtendedData data;
    node.forEachMember("an object",
                       [&](const JsonNode& items)
                       {
                           ApplicationData application{ToText(items.key()), {}};
                           application.items.push_back(OdResBufPtr::make(applicationCode, application.application));
                           items.forEachItem("a list",
                                             [&](const JsonNode& item) {
                                                 application.items.push_back(
                                                     item.isText() ? OdResBufPtr::make(textCode, ReadText(item))
                                                                   : readCodedItem(item));
                                             });
                           data.push_back(std::move(application));
                       });
    return data;
}

EdgeFlags readEdges(const JsonNode& node)
{
    EdgeFlags edges{};
    std::size_t place = 0;
    node.forEachItem(
        "a list of four flags", [&](const JsonNode& item) { edges[place++] = item.flag(); }, edges.size());
    return edges;
}

std::array<std::int32_t, 4> readFace(const JsonNode& node)
{
    std::array<std::int32_t, 4> face{};
    std::size_t place = 0;
    node.forEachItem(
        "a list of four integers", [&](const JsonNode& item) { face[place++] = item.integer(); }, face.size());
    return face;
}

OdDbHandle readHandleOrNull(const JsonNode& node)
{
    return node.isNull() ? OdDbHandle() : ReadHandle(node);
}

// Reads a value of the type that the overload's second argument has.
struct ValueOfType
{
    const JsonNode& node;
    const ObjectKey& key;

    ObjectValue operator()(bool) const { return node.flag(); }
    ObjectValue operator()(std::int32_t) const { return node.integer(key.least, key.most); }
    ObjectValue operator()(double) const { return node.number(); }
    ObjectValue operator()(const QString&) const { return ReadText(node); }
    ObjectValue operator()(const OdGePoint3d&) const { return ReadPoint(node); }
    ObjectValue operator()(const OdCmColor&) const { return ReadColor(node); }
    ObjectValue operator()(const OdDbHandle&) const { return ReadHandle(node); }
    ObjectValue operator()(const NumberList&) const { return ReadList(node, ReadNumber); }
    ObjectValue operator()(const HandleList&) const
    {
        return ReadList(node, key.form == KeyForm::HandleOrNull ? readHandleOrNull : ReadHandle);
    }
    ObjectValue operator()(const PointList&) const { return ReadList(node, ReadPoint); }
    ObjectValue operator()(const FaceList&) const { return ReadList(node, readFace); }
    ObjectValue operator()(const TextRows&) const
    {
        return ReadList(node, [](const JsonNode& row) { return ReadList(row, ReadText); });
    }
    ObjectValue operator()(const EdgeFlags&) const { return readEdges(node); }
    ObjectValue operator()(const ExtendedData&) const { return readExtendedData(node); }
};

ObjectValue readValue(const JsonNode& node, const ObjectKey& key)
{
    return std::visit(ValueOfType{node, key}, key.defaultValue);
}

QString namesOf(const KeyList& keys)
{
    QString names;
    for (const ObjectKey& key : keys)
    {
        names += (names.isEmpty() ? QString() : QStringLiteral(", ")) + ToText(key.name);
    }
    return names;
}

const OdRxClass* readClass(const JsonNode& node)
{
    const OdRxClass* known = FindDatabaseClass(ReadText(node));
    if (known == nullptr)
    {
        node.fail(QStringLiteral("unknown class %1, the name of a database class such as \"AcDbLine\" was expected")
                      .arg(Quoted(node.text())));
    }
    return known;
}
} // namespace

void ReadObject(const JsonNode& node, std::int64_t line, Drawing& drawing)
{
    const OdRxClass* objectClass = nullptr;
    std::optional<OdDbHandle> handle;
    node.forEachMember("an object",
                       [&](const JsonNode& member)
                       {
                           if (member.key() == "class")
                           {
                               objectClass = readClass(member);
                           }
                           else if (member.key() == "handle")
                           {
                               handle = ReadHandle(member);
                           }
                       });
    if (objectClass == nullptr || !handle.has_value())
    {
        node.failMissingKey(objectClass == nullptr ? "class" : "handle");
    }
    if (handle->isNull())
    {
        node.fail(QStringLiteral("an object can't have the handle 0, another handle was expected"));
    }

    const KeyList& keys = KeysOfClass(objectClass);
    ObjectValues values(keys);
    node.forEachMember("an object",
                       [&](const JsonNode& member)
                       {
                           if (member.key() == "class" || member.key() == "handle")
                           {
                               return;
                           }
                           const ObjectKey* key = FindKey(keys, member.key());
                           if (key == nullptr)
                           {
                               key = FindKey(KeysOfAllObjects(), member.key());
                           }
                           if (key == nullptr)
                           {
                               node.failUnknownKey(member.key(),
                                                   QStringLiteral("a key of %1: class, handle, %2")
                                                       .arg(objectClass->name(), namesOf(keys) + QLatin1String(", ") +
                                                                                     namesOf(KeysOfAllObjects())));
                           }
                           values.set(*key, readValue(member, *key));
                       });
    if (!drawing.addObject(*handle, objectClass, std::move(values)))
    {
        node.fail(
            QStringLiteral("the handle %1 has an object already, another handle was expected").arg(handle->ascii()));
    }
    drawing.setLineOf(*handle, line);
}

void ReadDrawingValues(const JsonNode& node, Drawing& drawing)
{
    node.forEachMember("an object",
                       [&](const JsonNode& member)
                       {
                           const ObjectKey* key = FindKey(KeysOfDrawing(), member.key());
                           if (key == nullptr)
                           {
                               node.failUnknownKey(member.key(), QStringLiteral("one of ") + namesOf(KeysOfDrawing()));
                           }
                           drawing.setValue(*key, readValue(member, *key));
                       });
}
} // namespace kv
