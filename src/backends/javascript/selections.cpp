// JavaScript texts of selections; the logic stands in core/selections.cpp.
#include "backends/javascript/converter.h"

QString CZtConverterKVAPIJavaScript::WriteSelectEntities(const EntityArray& entities)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent deeper{Counters().IndentLevel + 1};
    QString types;
    QString names;
    for (int i = 0; i < entities.size(); ++i)
    {
        QString type = entities.types.at(i);
        QString name = entities.names.at(i);
        if (name.isNull() || type.isNull())
        {
            // An entity from before the recording is looked up by its handle.
            name = kv::Fill("mApp.GetActiveDocument().GetObjectByHandle(\"%1\", &type)", entities.handles.at(i));
            type = kv::Fill("mApp.GetObjectType(mApp.GetActiveDocument().GetObjectByHandle(\"%1\", &type))",
                            entities.handles.at(i));
        }
        types += kv::Fill("%1types%5(%4) = %3;%2", deeper, kv::LineEnd(), type, i, number);
        names += kv::Fill("%1entities%5(%4) = %3;%2", deeper, kv::LineEnd(), name, i, number);
    }
    // The C# words in it, such as "int count", are the format's.
    return Statement(
        "%1types%3 = new Array(%7)%2%4"
        "%1entities%3 =new Array(%7)%2%5"
        "%1mCmdMess.PromptForSelection(false, \"%6\", \"\");%2"
        "%1   int count = mDoc.GetSelectionManager().GetSelectedObjectCount(kvSelectionSetType_Previous);%2"
        "%1    types%3 = new Array[count];%2"
        "%1    entities%3 = new Array[count];%2"
        "%1    for (var i = 0; i < count; ++i)%2"
        "%1    {%2"
        "%1        entities%3[i] = mDoc.GetSelectionManager().GetSelectedObject(kvSelectionSetType_Previous, i, "
        "types%3[i]);%2"
        "%1    }%2",
        number, types, names, "Select Objects: ", entities.size());
}
