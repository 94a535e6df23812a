// C++ API texts of selections; the logic stands in core/selections.cpp.
#include "backends/cpp/converter.h"

QString CZtConverterKVAPICPP::WriteSelectEntities(const EntityArray& entities)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent deeper{Counters().IndentLevel + 1};
    const QString typesLine = QStringLiteral("%1types%4.add(%3);%2");
    const QString entitiesLine = QStringLiteral("%1entities%4.add(%3);%2");
    QString types;
    QString names;
    for (int i = 0; i < entities.size(); ++i)
    {
        if (!entities.names.at(i).isNull() && !entities.types.at(i).isNull())
        {
            types += kv::FillChain(typesLine, deeper, kv::LineEnd(), entities.types.at(i), number);
            names += kv::FillChain(entitiesLine, deeper, kv::LineEnd(), entities.names.at(i), number);
            continue;
        }
        // An entity from before the recording is looked up by its handle. Its markers %3 and %4 stay open for the
        // filling of the whole text, which the format takes as it comes out.
        types += kv::FillChain(
            typesLine, deeper, kv::LineEnd(),
            kv::FillChain(QStringLiteral("m_pKvApp->GetObjectType(kvDoc%3->GetObjectByHandle(\"%1\", &type))"),
                          entities.handles.at(i)));
        names += kv::FillChain(
            entitiesLine, deeper, kv::LineEnd(),
            kv::FillChain(QStringLiteral("kvDoc%3->GetObjectByHandle(\"%1\", &type)"), entities.handles.at(i)));
    }
    return Statement("%1kvDocument_c* kvDoc%3;%2"
                     "%1kvSelectionManager_c* SelManager%3;%2"
                     "%1m_pKvApp->GetActiveDocument(&kvDoc%3);%2"
                     "%1kvDoc%3->GetSelectionManager(&SelManager%3);%2"
                     "%1kvLongArray types%3;%2"
                     "%1{%2%4%1};%2"
                     "%1kvObjectPtrArray entities%3;%2"
                     "%1{%2%5%1};%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1bool result%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForSelection(false, L\"%6\", L\"\",&result%3);%2"
                     "%1{%2"
                     "%1long count%3;%2"
                     "%1SelManager%3->GetSelectedObjectCount(kvSelectionSetType_Previous ,&count%3);%2"
                     "%1kvObjectType_e* type%3;%2"
                     "%1for (int i = 0; i < count%3; ++i)%2"
                     "%1    {%2"
                     "%1        kvObject *SelObj%3;%2"
                     "%1        SelManager%3->GetSelectedObject(kvSelectionSetType_Previous, i,type%3,&SelObj%3);%2"
                     "%1        entities%3.add(SelObj%3);%2"
                     "%1    }%2"
                     "%1}%2",
                     number, types, names, "Select Objects: ");
}
