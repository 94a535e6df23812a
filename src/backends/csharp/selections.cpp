// C# texts of selections; the logic stands in core/selections.cpp.
#include "backends/csharp/converter.h"

QString CZtConverterKVAPICSharp::WriteSelectEntities(const EntityArray& entities)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent deeper{Counters().IndentLevel + 1};
    QString types;
    QString names;
    for (int i = 0; i < entities.size(); ++i)
    {
        if (!entities.names.at(i).isNull() && !entities.types.at(i).isNull())
        {
            types += kv::Fill("%1kvObjectType_e.%3,%2", deeper, kv::LineEnd(), entities.types.at(i));
            names += kv::Fill("%1%3,%2", deeper, kv::LineEnd(), entities.names.at(i));
            continue;
        }
        // An entity from before the recording is looked up by its handle. The variable "type" isn't declared
        // anywhere; that is the format's.
        const QString& handle = entities.handles.at(i);
        types += kv::Fill(
            "%1%3,%2", deeper, kv::LineEnd(),
            kv::Fill("kvApp.GetObjectType(kvApp.GetActiveDocument().GetObjectByHandle(\"%1\", out type))", handle));
        names += kv::Fill("%1%3,%2", deeper, kv::LineEnd(),
                          kv::Fill("kvApp.GetActiveDocument().GetObjectByHandle(\"%1\", out type)", handle));
    }
    return Statement("%1kvObjectType_e[] types%3 =%2"
                     "%1{%2%4%1};%2"
                     "%1object[] entities%3 =%2"
                     "%1{%2%5%1};%2"
                     "%1kvApp.GetCommandMessage().PromptForSelection(false, \"%6\", \"\");%2"
                     "%1int count%3 = kvDoc.GetSelectionManager()"
                     ".GetSelectedObjectCount(kvSelectionSetType_e.kvSelectionSetType_Previous);%2"
                     "%1types%3 = new kvObjectType_e[count%3];%2"
                     "%1entities%3 = new object[count%3];%2"
                     "%1for (int i = 0; i < count%3; ++i)%2"
                     "%1{%2"
                     "%1    entities%3[i] = kvDoc.GetSelectionManager()"
                     ".GetSelectedObject(kvSelectionSetType_e.kvSelectionSetType_Previous, i, out types%3[i]);%2"
                     "%1}%2",
                     number, types, names, "Select Objects: ");
}
