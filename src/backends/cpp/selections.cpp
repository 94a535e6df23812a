// C++ API texts of selections; the logic stands in core/selections.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"

using kv::General;

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

QString CZtConverterKVAPICPP::WriteSelectByMethods(const SelectionMethod& method, bool filterActive)
{
    using Kind = SelectionMethod::Kind;
    const int number = CppCounters::OfProcess().WriteSelectByMethods++;
    const auto& points = method.points;
    QString text;
    if (!filterActive)
    {
        text += Line("%1kvSelectionManager_ptr kvSelectionMgr%2;\n"
                     "%1kvDoc->GetSelectionManager( &kvSelectionMgr%2 );\n",
                     number);
    }
    text += Line("%1kvMathUtility_ptr kvMathUtility%2; \n"
                 "%1m_pKvApp->GetMathUtility(&kvMathUtility%2);;\n",
                 number);
    switch (method.kind)
    {
    case Kind::Point:
        text += Line("%1kvMathPoint_ptr Point_%2_1;\n", number);
        text += Line("%1kvMathUtility%2->CreatePoint(%3, %4, %5 , &Point_%2_1);\n", number, points[0]);
        text += Line("%1bool Result;\n"
                     " %1kvSelectionMgr%2->SelectByPoint(Point_%2_1,&Result);\n",
                     number);
        break;
    case Kind::Window:
        text += Line("%1kvMathPoint_ptr Point_%2_1;\n", number);
        text += Line("%1kvMathUtility%2->CreatePoint(%3, %4, %5,&Point_%2_1);\n", number, points[0]);
        text += Line("%1kvMathPoint_ptr Point_%2_2;\n", number);
        text += Line("%1kvMathUtility%2->CreatePoint(%3, %4, %5,&Point_%2_2);\n", number, points[1]);
        text += Line("%1bool Result; \n"
                     "%1kvSelectionMgr%2->SelectByWindow(Point_%2_1, Point_%2_2, false,&Result);\n",
                     number);
        break;
    case Kind::CrossingWindow:
        text += Line("%1kvMathPoint_ptr Point_%2_1;\n", number);
        text += Line("%1kvMathUtility%2->CreatePoint(%3, %4, %5,&Point_%2_1 );\n", number, points[0]);
        text += Line("%1kvMathPoint_ptr Point_%2_2;\n", number);
        text += Line("%1kvMathUtility%2->CreatePoint(%3, %4, %5,&Point_%2_2);\n", number, points[1]);
        text += Line("%1bool Result;\n"
                     "%1kvSelectionMgr%2->SelectByWindow(Point_%2_1, Point_%2_2, true ,&Result);\n",
                     number);
        break;
    case Kind::Polygon:
        text += SelectionPoints(number, points);
        text += Line("%1bool Result; %1kvSelectionMgr%2->SelectByPolygon(doubleArray%2, true ,&Result);\n", number);
        break;
    case Kind::Fence:
        text += SelectionPoints(number, points);
        text += Line("%1bool Result; \n"
                     "%1kvSelectionMgr%2->SelectByCrossline(doubleArray%2,&Result);\n",
                     number);
        break;
    case Kind::None:
        break;
    }
    text += Line("%1long iCount%2; \n"
                 "%1kvSelectionMgr%2->GetSelectedObjectCount(kvSelectionSetType_Previous,&iCount%2);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICPP::SelectionPoints(int number, const std::vector<OdGePoint3d>& points)
{
    QString text = Line("%1kvDoubleArray doubleArray%2;\n", number);
    for (const OdGePoint3d& point : points)
    {
        for (const double coordinate : {point.x, point.y, point.z})
        {
            text += Line("%1doubleArray%2.add(%3);\n", number, General{coordinate});
        }
    }
    return text;
}

QString CZtConverterKVAPICPP::WriteSetSelectionFilter(const SelectionMethod& method, const QStringList& typeNames)
{
    // The selection below refers to the manager by its own number, which agrees with the filter's only while both
    // were used equally often; the format's.
    const int number = CppCounters::OfProcess().WriteSetSelectionFilter++;
    QString text = Line("%1kvSelectionManager_ptr kvSelectionMgr%2;\n"
                        "%1kvDoc->GetSelectionManager(&kvSelectionMgr%2);\n",
                        number);
    text += Line("%1kvSelectionFilter_c* selectionFilter%2;\n"
                 "%1kvSelectionMgr%2->GetSelectionFilter(&selectionFilter%2);\n",
                 number);
    text += Line("%1selectionFilter%2->Clear();\n", number);
    for (const QString& typeName : typeNames)
    {
        text += Line("%1selectionFilter%2->AddEntityType(%3);\n", number, typeName);
    }
    text += kv::LineEnd();
    text += Line("%1selectionFilter%2->put_Active(true);\n", number);
    text += WriteSelectByMethods(method, true);
    text += Line("%1selectionFilter%2->put_Active(false);\n", number);
    return text;
}
