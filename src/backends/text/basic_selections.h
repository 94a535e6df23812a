// The element lines of a selection's arrays in the Basic languages.
#pragma once

#include "backends/text/fill.h"
#include "core/entity_array.h"

namespace kv
{
// The lines of one entity. An entity of the macro fills type or name, index, number; one from before the recording is
// looked up and fills index, number, handle.
struct BasicSelectionForms
{
    using Known = Template<Indent, QString, QString, int, std::int32_t>;
    using Recorded = Template<Indent, QString, int, std::int32_t, QString>;

    Known knownType;
    Known knownEntity;
    Recorded recordedType;
    Recorded recordedEntity;
};

struct SelectionLines
{
    QString types;
    QString entities;
};

[[nodiscard]] SelectionLines BasicSelectionLines(const BasicSelectionForms& forms, const EntityArray& entities,
                                                 Indent indent, std::int32_t number);
} // namespace kv
