// VBA texts of selections; the logic stands in core/selections.cpp.
#include "backends/text/basic_selections.h"
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"

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

QString CZtConverterKVAPIVba::WriteSelectByMethods(const SelectionMethod& method, bool filterActive)
{
    using Kind = SelectionMethod::Kind;
    const int number = VbaCounters::OfProcess().WriteSelectByMethods++;
    const auto& points = method.points;
    const int highestIndex = 3 * static_cast<int>(points.size()) - 1;
    QString text;
    if (!filterActive)
    {
        text += Line("%1Dim kvSelectionMgr%2 As Morvane.SelectionManager\n"
                     "%1Set kvSelectionMgr%2 = kvDoc.GetSelectionManager()\n",
                     number);
    }
    // The blanks ahead of some line ends and statements are the format's.
    text += Line("%1Dim kvMathUtility%2 As Morvane.MathUtility \n"
                 "%1Set kvMathUtility%2 = kvApp.GetMathUtility()\n",
                 number);
    switch (method.kind)
    {
    case Kind::Point:
        text += Line("%1Dim Point_%2_1 As Morvane.MathPoint\n"
                     "%1Set Point_%2_1 = kvMathUtility%2.CreatePoint(%3, %4, %5)\n"
                     " %1kvSelectionMgr%2.SelectByPoint Point_%2_1\n",
                     number, points[0]);
        break;
    case Kind::Window:
        text += Line("%1Dim Point_%2_1 As Morvane.MathPoint\n"
                     "%1Set Point_%2_1 = kvMathUtility%2.CreatePoint(%3, %4, %5)\n"
                     "%1Dim Point_%2_2 As Morvane.MathPoint\n"
                     "%1Set Point_%2_2 = kvMathUtility%2.CreatePoint(%6, %7, %8)\n"
                     "%1kvSelectionMgr%2.SelectByWindow Point_%2_1, Point_%2_2, False\n",
                     number, points[0], points[1]);
        break;
    case Kind::CrossingWindow:
        text += Line("%1Dim Point_%2_1 As Morvane.MathPoint\n"
                     "%1Set Point_%2_1 = kvMathUtility%2.CreatePoint(%3, %4, %5 )\n"
                     "%1Dim Point_%2_2 As Morvane.MathPoint\n"
                     "%1Set Point_%2_2 = kvMathUtility%2.CreatePoint(%6, %7, %8)\n"
                     "%1kvSelectionMgr%2.SelectByWindow Point_%2_1, Point_%2_2, True\n",
                     number, points[0], points[1]);
        break;
    case Kind::Polygon:
        text += Line("%1Dim doubleArray%2(%3) As Double\n", number, highestIndex);
        text += PointElements("doubleArray", number, points);
        text += Line("%1kvSelectionMgr%2.SelectByPolygon doubleArray%2, True\n", number);
        break;
    case Kind::Fence:
        // All elements go to the index 0 of an array that the call doesn't take; the format's.
        text += Line("%1Dim doubleArray%2_Fence(%3) As double\n", number, highestIndex);
        for (const OdGePoint3d& point : points)
        {
            for (const double coordinate : {point.x, point.y, point.z})
            {
                text += Line("%1doubleArray%2_Fence(0) = %3\n", number, kv::General{coordinate});
            }
        }
        text += Line("%1kvSelectionMgr%2.SelectByCrossline doubleArray%2\n", number);
        break;
    case Kind::None:
        break;
    }
    text += Line("%1Dim count%2 As Long \n"
                 "%1count%2 = kvSelectionMgr%2.GetSelectedObjectCount("
                 "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous)\n",
                 number);
    return text;
}

QString CZtConverterKVAPIVba::WriteSetSelectionFilter(const SelectionMethod& method, const QStringList& typeNames)
{
    // The selection below refers to the manager by its own number, which agrees with the filter's only while both
    // were used equally often; that, and the digit 2 in the name that is cleared, are the format's.
    const int number = VbaCounters::OfProcess().WriteSetSelectionFilter++;
    QString text = Line("%1Dim kvSelectionMgr%2 As Morvane.SelectionManager\n"
                        "%1Set kvSelectionMgr%2 = kvDoc.GetSelectionManager()\n"
                        "%1Dim kvSelectionFilter%2 As Morvane.SelectionFilter\n"
                        "%1Set kvSelectionFilter%2 = kvSelectionMgr%2.GetSelectionFilter()\n"
                        "%1kvSelectionFilter2%2.Clear\n",
                        number);
    for (const QString& typeName : typeNames)
    {
        text += Line("%1kvSelectionFilter%2.AddEntityType Morvane.kvObjectType_e.%3\n", number, typeName);
    }
    text += kv::LineEnd();
    text += Line("%1kvSelectionFilter%2.Active = True\n", number);
    text += WriteSelectByMethods(method, true);
    text += Line("%1kvSelectionFilter%2.Active = False\n", number);
    return text;
}
