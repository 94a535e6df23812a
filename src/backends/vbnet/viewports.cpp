// VB.NET texts of zoom, viewports and view tiles; the logic stands in core/viewports.cpp.
#include "backends/text/enumerations.h"
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"
#include "backends/vbnet/object.h"

using kv::Fixed;

QString CZtConverterKVAPIVbNet::WriteZoom(const QString& range, bool isWindow, const OdGePoint3d& corner1,
                                          const OdGePoint3d& corner2)
{
    const int number = VbNetCounters::OfProcess().WriteZoom++;
    QString text = Statement("%1Dim lowerLeft_%3(2) As Double, upperRight_%3(2) As Double%2", number);
    if (!isWindow)
    {
        text += Statement("%1kvApp.Zoom(Morvane.kvZoomRange_e.%3, lowerLeft_%4, upperRight_%4 )%2", range, number);
        return text;
    }
    text += PointElements("lowerLeft_", number, corner1);
    text += PointElements("upperRight_", number, corner2);
    text += Statement("%1kvApp.Zoom(Morvane.kvZoomRange_e.%3, lowerLeft_%4, upperRight_%4)%2", range, number);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteActivateViewport(const QString& variable)
{
    return Statement("%1%3.Activate()%2", variable);
}

QString CZtConverterKVAPIVbNet::WriteInsertPolygonalViewport(const QString& variable,
                                                             const OdArray<OdGePoint2d>& points, const QString& sheet)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim %3 As Morvane.Viewport%2"
                     "%1If 1 Then%2"
                     "%1    Dim sheetItem%3 As Morvane.Sheet = kvDoc.GetSheet(\"%7\")%2"
                     "%1    If sheetItem%3 IsNot Nothing Then%2"
                     "%1        sheetItem%3.Activate()%2"
                     "%1        Dim Coordinates%5(%6) As Double%2%2"
                     "%4%2"
                     "%1        %3 = sheetItem%3.InsertPolygonalViewport( Coordinates%5 )%2"
                     "%1    End If%2"
                     "%1End If%2",
                     variable, WriteCoordinateElements2D(number, points), number, HighestIndex2D(points), sheet);
}

QString CZtConverterKVAPIVbNet::WriteInsertViewTiles(const QString& layout, bool flag, const QStringList& tiles)
{
    const QString array = kv::Fill("kvViewTileArray%1", VbNetCounters::OfProcess().WriteInsertViewTiles++);
    QString text = Statement("%1Dim %5 As Object%2"
                             "%1kvModel.InsertViewTiles( %3, %4 )%2"
                             "%1%5 = kvModel.GetViewTiles()%2%2",
                             kv::FormOfConstant(kv::EnumForm::Morvane, layout), FlagWord(flag), array);
    for (int i = 0; i < tiles.size(); ++i)
    {
        text += Statement("%1%5 = %3(%4)%2", array, i, tiles.at(i));
    }
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertViewport(const QString& variable, const OdGePoint3d& center,
                                                          double width, double height)
{
    return Statement("%1%8 = kvSheet.InsertViewport( %3, %4, %5, %6, %7 )%2", center, Fixed{width}, Fixed{height},
                     variable);
}
