// The records of events, each with its keys.
#include "embedded/event_reader.h"

#include "embedded/json_values.h"

namespace kv
{
namespace
{
// The kinds of prompts stand in the order of their numbers.
constexpr std::array<std::string_view, 11> PromptKinds = {
    "point", "angle", "distance", "orientation", "corner", "scale", "string", "keyword", "color", "integer", "double"};

std::int32_t readPromptKind(const JsonNode& node)
{
    if (!node.isText())
    {
        return node.integer();
    }
    for (std::size_t kind = 0; kind < PromptKinds.size(); ++kind)
    {
        if (PromptKinds[kind] == node.text())
        {
            return static_cast<std::int32_t>(kind);
        }
    }
    QString kinds;
    for (const std::string_view kind : PromptKinds)
    {
        kinds += QLatin1String(", ") + ToText(kind);
    }
    node.fail(QStringLiteral("unknown kind of prompt %1, an integer or one of %2 was expected")
                  .arg(Quoted(node.text()), kinds.mid(2)));
}

std::vector<CZtString> readTexts(const JsonNode& node)
{
    return ReadList(node, [](const JsonNode& item) { return CZtString(ReadText(item)); });
}
} // namespace

EventReader::EventReader(Recording& recording) : recording_(recording), values_(*recording.drawing, recording.classes)
{
}

OdRxObjectPtr EventReader::read(const JsonNode& node, std::int64_t line)
{
    using Read = OdRxObjectPtr (EventReader::*)(const JsonNode&);
    struct Record
    {
        std::string_view key;
        Read read;
    };
    static constexpr std::array<Record, 8> records = {{
        {"added", &EventReader::added},
        {"modified", &EventReader::modified},
        {"changed", &EventReader::changed},
        {"prompt", &EventReader::prompt},
        {"sysvar", &EventReader::sysvar},
        {"select", &EventReader::select},
        {"action", &EventReader::action},
        {"other", &EventReader::other},
    }};
    line_ = line;
    for (const Record& record : records)
    {
        if (record.key == node.key())
        {
            return (this->*record.read)(node);
        }
    }
    return {};
}

OdSmartPtr<UserCommand> EventReader::command(const JsonNode& node, std::int64_t line)
{
    line_ = line;
    auto event = OdSmartPtr<UserCommand>::make(ReadText(node));
    static_cast<void>(recorded(event));
    return event;
}

template <class Event>
OdRxObjectPtr EventReader::recorded(OdSmartPtr<Event> event)
{
    event->session = &recording_;
    event->line = line_;
    if constexpr (std::is_base_of_v<CollectingEvent, Event>)
    {
        recording_.collecting.push_back(event.get());
    }
    return event;
}

PropertyPtr EventReader::property(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 4> keys = {{{"name"}, {"group", false}, {"value"}, {"tag", false}}};
    const auto [name, group, value, tag] = node.members(keys);
    const CZtString& nameText = names_.text(name->text());
    const CZtString groupText = group ? names_.text(group->text()) : CZtString();
    PropertyPtr result = tag && !tag->isNull()
                             ? PropertyPtr(OdSmartPtr<TaggedProperty>::make(
                                   nameText, groupText, values_.variant(*value), values_.variant(*tag)))
                             : PropertyPtr::make(nameText, groupText, values_.variant(*value));
    if (values_.takeUnresolved())
    {
        unresolvedProperties_.push_back(result);
    }
    return result;
}

CZtPropertyList EventReader::properties(const JsonNode& node)
{
    CZtPropertyList list;
    list.reserve(node.itemCount());
    node.forEachItem("a list of properties", [&](const JsonNode& item) { list.emplace_back(property(item)); });
    return list;
}

OdRxObjectPtr EventReader::added(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 4> keys = {
        {{"class"}, {"handle"}, {"properties"}, {"remaining", false}}};
    const auto [className, handleNode, propertiesNode, remainingNode] = node.members(keys);
    const OdRxClass* objectClass = recording_.classes.find(className->text());
    const OdDbHandle handle = ReadHandle(*handleNode);
    PropertyList list(properties(*propertiesNode));
    std::unique_ptr<PropertyList> remaining;
    if (remainingNode)
    {
        remaining = std::make_unique<PropertyList>(properties(*remainingNode));
    }
    recording_.drawing->addDefaultObject(handle, objectClass);
    return recorded(OdSmartPtr<ObjectAdded>::make(objectClass, handle, std::move(list), std::move(remaining)));
}

OdRxObjectPtr EventReader::modified(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 3> keys = {{{"class"}, {"handle"}, {"properties"}}};
    const auto [className, handle, list] = node.members(keys);
    return recorded(OdSmartPtr<ObjectModified>::make(recording_.classes.find(className->text()), ReadHandle(*handle),
                                                     PropertyList(properties(*list))));
}

OdRxObjectPtr EventReader::changed(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 3> keys = {{{"class"}, {"handle"}, {"property"}}};
    const auto [className, handle, element] = node.members(keys);
    return recorded(OdSmartPtr<PropertyChanged>::make(recording_.classes.find(className->text()), ReadHandle(*handle),
                                                      property(*element)));
}

OdRxObjectPtr EventReader::prompt(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 4> keys = {
        {{"kind"}, {"text", false}, {"answer", false}, {"keywords", false}}};
    static constexpr std::array<JsonNode::Member, 2> keywordKeys = {{{"local"}, {"global"}}};
    const auto [kind, text, answer, keywords] = node.members(keys);
    auto event = OdSmartPtr<UserInteraction>::make();
    event->kind = readPromptKind(*kind);
    if (text)
    {
        event->text = ReadText(*text);
    }
    if (answer)
    {
        event->answer = values_.resultBuffer(*answer);
    }
    if (keywords)
    {
        const auto [local, global] = keywords->members(keywordKeys);
        event->localKeywords = readTexts(*local);
        event->globalKeywords = readTexts(*global);
    }
    return recorded(event);
}

OdRxObjectPtr EventReader::sysvar(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 2> keys = {{{"name"}, {"value"}}};
    const auto [name, value] = node.members(keys);
    return recorded(OdSmartPtr<SysVarChanged>::make(names_.text(name->text()), values_.resultBuffer(*value)));
}

OdRxObjectPtr EventReader::select(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 2> keys = {{{"handles"}, {"classes"}}};
    const auto [handlesNode, classesNode] = node.members(keys);
    std::vector<OdDbHandle> handles = ReadList(*handlesNode, ReadHandle);
    std::vector<const OdRxClass*> classes =
        ReadList(*classesNode, [&](const JsonNode& item) { return recording_.classes.find(item.text()); });
    if (handles.size() != classes.size())
    {
        node.fail(QStringLiteral("lists of like length were expected, not %1 handles and %2 classes")
                      .arg(handles.size())
                      .arg(classes.size()));
    }
    return recorded(OdSmartPtr<UserSelection>::make(std::move(handles), std::move(classes)));
}

OdRxObjectPtr EventReader::action(const JsonNode& node)
{
    static constexpr std::array<JsonNode::Member, 2> keys = {{{"id"}, {"data"}}};
    const auto [id, data] = node.members(keys);
    auto event = OdSmartPtr<CustomAction>::make(
        id->integer(), ReadList(*data, [&](const JsonNode& item) { return values_.actionItem(item); }));
    if (values_.takeUnresolved())
    {
        unresolvedActions_.push_back(event);
    }
    return recorded(event);
}

OdRxObjectPtr EventReader::other(const JsonNode& node)
{
    return recorded(OdSmartPtr<OtherEvent>::make(ReadText(node)));
}

void EventReader::resolve()
{
    for (const PropertyPtr& property : unresolvedProperties_)
    {
        property->resolve(*recording_.drawing);
    }
    for (const OdSmartPtr<CustomAction>& action : unresolvedActions_)
    {
        action->resolve(*recording_.drawing);
    }
}
} // namespace kv
