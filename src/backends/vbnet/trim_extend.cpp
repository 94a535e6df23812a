// VB.NET texts of trim and extend; the logic stands in core/trim_extend.cpp.
#include "backends/text/basic_trim_search.h"
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

namespace
{

const kv::BasicSearchForms searchForms = {
    "%1    Dim kv%3 As Morvane.%4 = obj%2",
    "%1    kv%3.%4(%5)%2",
    "%1If iNewEnt = %3 Then%2"
    "%1    %4%5 = kv%4%2"
    "%1End If%2",
    QLatin1String("Math.Abs"),
};

} // namespace

QString CZtConverterKVAPIVbNet::WriteTrimEntities(const QStringList& cutting, const QStringList& removed,
                                                  const OdArray<OdGePoint3d>& points, const TrimSearch& search)
{
    const int number = VbNetCounters::OfProcess().WriteTrimEntities++;
    QString text = EdgeEntities(number, {"CuttingEntitiesArray", cutting}, {"EntitiesToRemoveArray", removed}, points);
    text += Line("%1kvSketchManager.TrimEntities(CuttingEntitiesArray%2, EntitiesToRemoveArray%2, "
                 "PointOnEntityDblArray%2)\n",
                 number);
    if (!search.IsEmpty())
    {
        text += SearchTrimmed(search);
    }
    return text;
}

QString CZtConverterKVAPIVbNet::SearchTrimmed(const TrimSearch& search) const
{
    QString text =
        Statement("%2"
                  "%1Dim selectionManager As Morvane.SelectionManager = kvDoc.GetSelectionManager()%2%2"
                  "%1Dim selectionFilter As Morvane.SelectionFilter = selectionManager.GetSelectionFilter()%2"
                  "%1selectionFilter.Active = false%2%2"
                  "%1selectionManager.ClearSelections("
                  "Morvane.kvSelectionSetType_e.kvSelectionSetType_Current)%2"
                  "%1selectionManager.ClearSelections("
                  "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous)%2%2"
                  "%1Dim epsi As Double = 0.1%2"
                  "%1Dim mathUtility As Morvane.MathUtility = kvApp.GetMathUtility()%2%2"
                  "%1Dim selPts(%3) As Double, prop(%4) As Double                "
                  "'selection points and properties%2",
                  3 * search.Count() - 1, 6 * search.Count() - 1);
    text += SearchedElements(search);
    text += Statement("%1For iNewEnt As Integer = 0 To %3 - 1%2"
                      "%1    Dim firstPoint As Morvane.MathPoint, secondPoint As Morvane.MathPoint%2"
                      "%1    firstPoint = mathUtility.CreatePoint(selPts(iNewEnt*3) + epsi, "
                      "selPts(iNewEnt*3 + 1) + epsi, selPts(iNewEnt*3 + 2))%2"
                      "%1    secondPoint = mathUtility.CreatePoint(selPts(iNewEnt*3) - epsi, "
                      "selPts(iNewEnt*3 + 1) - epsi, selPts(iNewEnt*3 + 2))%2%2"
                      "%1    selectionManager.SelectByWindow(firstPoint, secondPoint, true)%2%2"
                      "%1    Dim count As Integer = selectionManager.GetSelectedObjectCount("
                      "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous)%2%2"
                      "%1    For i As Integer = 0 To count - 1%2"
                      "%1        Dim retObjType As Morvane.kvObjectType_e%2"
                      "%1        Dim obj As Object = selectionManager.GetSelectedObject("
                      "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous, i, retObjType)%2"
                      "%1        %4%2"
                      "%1    Next%2"
                      "%1    selectionManager.ClearSelections("
                      "Morvane.kvSelectionSetType_e.kvSelectionSetType_Previous)%2"
                      "%1Next%2%2",
                      search.Count(), kv::BasicTrimBlocks(searchForms, search, CurrentIndent()));
    return text;
}

QString CZtConverterKVAPIVbNet::WriteExtendEntities(const QStringList& boundaries, const QStringList& extended,
                                                    const OdArray<OdGePoint3d>& points)
{
    const int number = VbNetCounters::OfProcess().WriteExtendEntities++;
    QString text =
        EdgeEntities(number, {"BoundaryEntitiesArray", boundaries}, {"EntitiesToExtendArray", extended}, points);
    text += Line("%1kvSketchManager.ExtendEntities(BoundaryEntitiesArray%2, EntitiesToExtendArray%2, "
                 "PointOnEntityDblArray%2)\n",
                 number);
    return text;
}
