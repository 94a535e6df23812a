// Makes events of the records of a journal file.
#pragma once

#include "embedded/json_node.h"
#include "embedded/recording.h"
#include "embedded/value_reader.h"

namespace kv
{
class EventReader
{
public:
    explicit EventReader(Recording& recording);

    // The event of a record whose value is the node and whose key is the node's. Null when the key names no event.
    // Throws BadInput when the value isn't what the key asks for.
    [[nodiscard]] OdRxObjectPtr read(const JsonNode& node, std::int64_t line);

    // A command, to which its children are appended as they come.
    [[nodiscard]] OdSmartPtr<UserCommand> command(const JsonNode& node, std::int64_t line);

    // Makes the ids null of objects that the drawing doesn't have. To be called once, behind the last line.
    void resolve();

private:
    OdRxObjectPtr added(const JsonNode& node);
    OdRxObjectPtr modified(const JsonNode& node);
    OdRxObjectPtr changed(const JsonNode& node);
    OdRxObjectPtr prompt(const JsonNode& node);
    OdRxObjectPtr sysvar(const JsonNode& node);
    OdRxObjectPtr select(const JsonNode& node);
    OdRxObjectPtr action(const JsonNode& node);
    OdRxObjectPtr other(const JsonNode& node);

    template <class Event>
    OdRxObjectPtr recorded(OdSmartPtr<Event> event);
    PropertyPtr property(const JsonNode& node);
    CZtPropertyList properties(const JsonNode& node);

    Recording& recording_;
    ValueReader values_;
    NamePool names_;
    std::int64_t line_ = 0;
    std::vector<PropertyPtr> unresolvedProperties_;
    std::vector<OdSmartPtr<CustomAction>> unresolvedActions_;
};
} // namespace kv
