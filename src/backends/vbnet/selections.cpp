// VB.NET texts of selections; the logic stands in core/selections.cpp.
#include "backends/text/basic_selections.h"
#include "backends/vbnet/converter.h"

namespace
{

// The blank ahead of some lines is the format's.
constexpr kv::BasicSelectionForms forms = {
    "%1types%5(%4) = Morvane.kvObjectType_e.%3%2",
    "%1 entities%5(%4) = New DispatchWrapper(%3)%2",
    "%1types%4(%3) = kvApp.GetObjectType(kvApp.GetActiveDocument().GetObjectByHandle(\"%5\", types%4(%3)))%2",
    "%1 entities%4(%3) = New DispatchWrapper(kvApp.GetActiveDocument().GetObjectByHandle(\"%5\", types%4(%3)))%2",
};

} // namespace

QString CZtConverterKVAPIVbNet::WriteSelectEntities(const EntityArray& entities)
{
    const std::int32_t number = NextLocalNumber();
    const kv::SelectionLines lines = kv::BasicSelectionLines(forms, entities, {Counters().IndentLevel + 1}, number);
    return Statement("%1 Dim types%3(%7) As Morvane.kvObjectType_e%2"
                     "%4"
                     "%1Dim entities%3 As DispatchWrapper() = New DispatchWrapper(%7){}%2"
                     "%5"
                     "%1kvApp.GetCommandMessage().PromptForSelection(false, \"%6\", \"\")%2"
                     "%1Dim count%3 As Integer = kvDoc.GetSelectionManager().GetSelectedObjectCount("
                     "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous)%2"
                     "%1ReDim types%3(count%3 - 1)%2"
                     "%1ReDim entities%3(count%3 - 1)%2"
                     "%1For i As Integer = 0 To count%3 - 1%2"
                     "%1    entities%3(i) = New DispatchWrapper(kvDoc.GetSelectionManager().GetSelectedObject("
                     "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous, i, types%3(i)))%2"
                     "%1Next%2",
                     number, lines.types, lines.entities, "Select Objects: ", entities.size() - 1);
}
