// What the two Basic languages say alike on the journal side.
#include "backends/text/basic_converter_text.h"

namespace kv
{

QString BasicConverterText::EdgeEntities(std::int32_t number, NamedEntities edges, NamedEntities edited,
                                         const OdArray<OdGePoint3d>& points)
{
    QString text = DeclareEntities(edges.array, number, edges.names.size());
    text += DeclareEntities(edited.array, number, edited.names.size());
    text += Statement("%1Dim PointOnEntityDblArray%3(%4) As Double%2", number, 3 * static_cast<int>(points.size()) - 1);
    text += EntityElements(edges.array, number, edges.names);
    text += LineEnd();
    text += EntityElements(edited.array, number, edited.names);
    text += LineEnd();
    text += PointElements("PointOnEntityDblArray", number, points);
    text += LineEnd();
    text += SetEdgeMode();
    return text;
}

QString BasicConverterText::CornerEntities(std::int32_t number, const QStringList& firstNames,
                                           const OdGePoint3d& firstPoint, const QStringList& secondNames,
                                           const OdGePoint3d& secondPoint) const
{
    QString text = DeclareEntities("firstEntityArray", number, firstNames.size());
    text += DeclareEntities("secondEntityArray", number, secondNames.size());
    text += Statement("%1Dim firstPointOnEntityDblArray%3(2) As Double%2"
                      "%1Dim secondPointOnEntityDblArray%3(2) As Double%2%2",
                      number);
    text += EntityElements("firstEntityArray", number, firstNames);
    text += EntityElements("secondEntityArray", number, secondNames);
    text += LineEnd();
    text += PointElements("firstPointOnEntityDblArray", number, firstPoint);
    text += LineEnd();
    text += PointElements("secondPointOnEntityDblArray", number, secondPoint);
    text += LineEnd();
    return text;
}

QString BasicConverterText::SearchedElements(const TrimSearch& search) const
{
    QString text;
    int index = 0;
    for (const OdGePoint3d& point : search.selectionPoints)
    {
        for (const double coordinate : {point.x, point.y, point.z})
        {
            text += Statement("%1selPts(%3) = %4%2", index++, General{coordinate});
        }
    }
    index = 0;
    for (const auto& properties : search.properties)
    {
        for (const double property : properties)
        {
            text += Statement("%1prop(%3) = %4%2", index++, General{property});
        }
    }
    return text;
}

} // namespace kv
