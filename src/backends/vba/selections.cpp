// VBA texts of selections; the logic stands in core/selections.cpp.
#include "backends/text/basic_selections.h"
#include "backends/vba/converter.h"

namespace
{

// The blank ahead of some lines is the format's.
constexpr kv::BasicSelectionForms forms = {
    "%1types%5(%4) = Morvane.kvObjectType_e.%3%2",
    "%1 Set entities%5(%4) = %3%2",
    "%1types%4(%3) = kvApp.GetObjectType(kvApp.GetActiveDocument().GetObjectByHandle(\"%5\", types%4(%3)))%2",
    "%1 Set entities%4(%3) = kvApp.GetActiveDocument().GetObjectByHandle(\"%5\", types%4(%3))%2",
};

} // namespace

QString CZtConverterKVAPIVba::WriteSelectEntities(const EntityArray& entities)
{
    const std::int32_t number = NextLocalNumber();
    const kv::SelectionLines lines = kv::BasicSelectionLines(forms, entities, {Counters().IndentLevel + 1}, number);
    return Statement("%1 Dim types%3(%7) As Morvane.kvObjectType_e%2"
                     "%4"
                     "%1Dim entities%3(%7) As Object%2"
                     "%5"
                     "%1kvApp.GetCommandMessage().PromptForSelection False, \"%6\", \"\"%2"
                     "%1Dim count%3 As Long%2"
                     "%1count%3 = kvDoc.GetSelectionManager().GetSelectedObjectCount("
                     "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous)%2"
                     "%1Dim i%3 As Long%2"
                     "%1For i%3 = 0 To count%3 - 1%2"
                     "%1    Set entities%3(i%3) = kvDoc.GetSelectionManager().GetSelectedObject("
                     "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous, i%3, types%3(i%3))%2"
                     "%1Next%2",
                     number, lines.types, lines.entities, "Select Objects: ", entities.size() - 1);
}
