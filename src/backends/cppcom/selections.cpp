// C++ COM texts of selections; the logic stands in core/selections.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/safe_array.h"

QString CZtConverterKVAPICPPCOM::WriteSelectEntities(const EntityArray& entities)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent deeper{Counters().IndentLevel + 1};
    const SafeArrayText typeArray(SafeArrayText::Kind::Integers, "types", number);
    const SafeArrayText entityArray(SafeArrayText::Kind::Entities, "entities", number);
    QString types = typeArray.Begin(deeper);
    QString names = entityArray.Begin(deeper);
    for (int i = 0; i < entities.size(); ++i)
    {
        if (!entities.names.at(i).isNull() && !entities.types.at(i).isNull())
        {
            types += typeArray.Element(deeper, entities.types.at(i));
            names += entityArray.Element(deeper, entities.names.at(i));
            continue;
        }
        // An entity from before the recording is looked up by its handle. The variable "type" isn't declared
        // anywhere; that is the format's.
        const QString entity = kv::Fill("pConnection->m_KvApp->GetActiveDocument()->GetObjectByHandle(\"%1\", &type)",
                                        entities.handles.at(i));
        types += typeArray.Element(deeper, kv::Fill("pConnection->m_KvApp->GetObjectType(%1)", entity));
        names += entityArray.Element(deeper, entity);
    }
    QString text = typeArray.Declare(CurrentIndent(), entities.size());
    text += Statement("%1{%2%3%1};%2", types);
    text += entityArray.Declare(CurrentIndent(), entities.size());
    text += Statement("%1{%2%3%1};%2", names);
    text += Statement("%1pConnection->m_KvApp->GetCommandMessage()->PromptForSelection(false, L\"%4\", L\"\");%2"
                      "%1long count%3 = kvSelManager->GetSelectedObjectCount(kvSelectionSetType_Previous);%2"
                      "%1{%2"
                      "%1entities%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, count%3 );%2",
                      number, "Select Objects: ");
    text += entityArray.Begin(CurrentIndent());
    text += Statement("%1kvObjectType_e type%3;%2"
                      "%1for (int i = 0; i < count%3; ++i)%2"
                      "%1    {%2"
                      "%1        IDispatchPtr SelObj%3 = "
                      "kvSelManager->GetSelectedObject(kvSelectionSetType_Previous, i, &type%3);%2",
                      number);
    text += entityArray.Element({Counters().IndentLevel + 2}, kv::Fill("SelObj%1", number));
    text += Statement("%1    }%2"
                      "%1}%2");
    return text;
}
