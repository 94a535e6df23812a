// The element lines of a selection's arrays in the Basic languages.
#include "backends/text/basic_selections.h"

namespace kv
{

SelectionLines BasicSelectionLines(const BasicSelectionForms& forms, const EntityArray& entities, Indent indent,
                                   std::int32_t number)
{
    const auto known = [&](const BasicSelectionForms::Known& form, const QString& value, int index)
    { return Fill<Indent, QString, QString, int, std::int32_t>(form, indent, LineEnd(), value, index, number); };
    const auto recorded = [&](const BasicSelectionForms::Recorded& form, const QString& handle, int index)
    { return Fill<Indent, QString, int, std::int32_t, QString>(form, indent, LineEnd(), index, number, handle); };

    SelectionLines lines;
    for (int i = 0; i < entities.size(); ++i)
    {
        const bool isKnown = !entities.names.at(i).isNull() && !entities.types.at(i).isNull();
        const QString& handle = entities.handles.at(i);
        lines.types +=
            isKnown ? known(forms.knownType, entities.types.at(i), i) : recorded(forms.recordedType, handle, i);
        lines.entities +=
            isKnown ? known(forms.knownEntity, entities.names.at(i), i) : recorded(forms.recordedEntity, handle, i);
    }
    return lines;
}

} // namespace kv
