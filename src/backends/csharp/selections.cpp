// C# texts of selections; the logic stands in core/selections.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"

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

QString CZtConverterKVAPICSharp::WriteSelectByMethods(const SelectionMethod& method, bool filterActive)
{
    using Kind = SelectionMethod::Kind;
    const int number = CSharpCounters::OfProcess().WriteSelectByMethods++;
    const auto& points = method.points;
    QString text;
    if (!filterActive)
    {
        text += Line("%1SelectionManager kvSelectionMgr%2 = kvDoc.GetSelectionManager();\n", number);
    }
    text += Line("%1MathUtility kvMathUtility%2 = kvApp.GetMathUtility();;\n", number);
    switch (method.kind)
    {
    case Kind::Point:
        text += Line("%1MathPoint Point_%2_1 = kvMathUtility%2.CreatePoint(%3, %4, %5 );\n", number, points[0]);
        text += Line(" %1kvSelectionMgr%2.SelectByPoint(Point_%2_1);\n", number);
        break;
    case Kind::Window:
        text += Line("%1MathPoint Point_%2_1 = kvMathUtility%2.CreatePoint(%3, %4, %5);\n", number, points[0]);
        text += Line("%1MathPoint Point_%2_2 = kvMathUtility%2.CreatePoint(%3, %4, %5);\n", number, points[1]);
        text += Line("%1kvSelectionMgr%2.SelectByWindow(Point_%2_1, Point_%2_2, false);\n", number);
        break;
    case Kind::CrossingWindow:
        text += Line("%1MathPoint Point_%2_1 = kvMathUtility%2.CreatePoint(%3, %4, %5 );\n", number, points[0]);
        text += Line("%1MathPoint Point_%2_2 = kvMathUtility%2.CreatePoint(%3, %4, %5);\n", number, points[1]);
        text += Line("%1kvSelectionMgr%2.SelectByWindow(Point_%2_1, Point_%2_2, true );\n", number);
        break;
    case Kind::Polygon:
        text += SelectionPoints(number, points);
        text += Line("%1kvSelectionMgr%2.SelectByPolygon(doubleArray%2, true );\n", number);
        break;
    case Kind::Fence:
        text += SelectionPoints(number, points);
        text += Line("%1kvSelectionMgr%2.SelectByCrossline(doubleArray%2);\n", number);
        break;
    case Kind::None:
        break;
    }
    text += Line("%1int iCount%2 = "
                 "kvSelectionMgr%2.GetSelectedObjectCount(kvSelectionSetType_e.kvSelectionSetType_Previous);\n",
                 number);
    return text;
}

QString CZtConverterKVAPICSharp::SelectionPoints(int number, const std::vector<OdGePoint3d>& points) const
{
    QString text = Line("%1double[] doubleArray%2 = new double[%3];\n", number, 3 * points.size());
    text += RealElements("%1doubleArray%2[%4] = %3;\n", number, points);
    return text;
}

QString CZtConverterKVAPICSharp::WriteSetSelectionFilter(const SelectionMethod& method, const QStringList& typeNames)
{
    // The selection below refers to the manager by its own number, which agrees with the filter's only while both
    // were used equally often; the format's.
    const int number = CSharpCounters::OfProcess().WriteSetSelectionFilter++;
    QString text = Line("%1SelectionManager kvSelectionMgr%2 = kvDoc.GetSelectionManager();\n", number);
    text += Line("%1SelectionFilter selectionFilter%2 = kvSelectionMgr%2.GetSelectionFilter();\n", number);
    text += Line("%1selectionFilter%2.Clear();\n", number);
    for (const QString& typeName : typeNames)
    {
        text += Line("%1selectionFilter%2.AddEntityType(kvObjectType_e.%3);\n", number, typeName);
    }
    text += kv::LineEnd();
    text += Line("%1selectionFilter%2.Active = true;\n", number);
    text += WriteSelectByMethods(method, true);
    text += Line("%1selectionFilter%2.Active = false;\n", number);
    return text;
}
