// C# texts of zoom, viewports and view tiles; the logic stands in core/viewports.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "backends/csharp/object.h"
#include "backends/text/coordinate_list.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPICSharp::WriteZoom(const QString& range, bool isWindow, const OdGePoint3d& corner1,
                                           const OdGePoint3d& corner2)
{
    const int number = CSharpCounters::OfProcess().WriteZoom++;
    QString text = Statement("%1double[] lowerLeft_%3 = new double[3], upperRight_%3 = new double[3];%2", number);
    text += isWindow ? Statement("%1lowerLeft_%10[0] = %3;%2"
                                 "%1lowerLeft_%10[1] = %4;%2"
                                 "%1lowerLeft_%10[2] = %5;%2"
                                 "%1upperRight_%10[0] = %6;%2"
                                 "%1upperRight_%10[1] = %7;%2"
                                 "%1upperRight_%10[2] = %8;%2"
                                 "%1kvApp.Zoom(kvZoomRange_e.%9, lowerLeft_%10, upperRight_%10);%2",
                                 corner1, corner2, range, number)
                     : Statement("%1kvApp.Zoom(kvZoomRange_e.%3, lowerLeft_%4, upperRight_%4 );%2", range, number);
    return text;
}

QString CZtConverterKVAPICSharp::WriteActivateViewport(const QString& variable)
{
    return Statement("%1%3.Activate();%2", variable);
}

QString CZtConverterKVAPICSharp::WriteInsertPolygonalViewport(const QString& variable,
                                                              const OdArray<OdGePoint2d>& points, const QString& sheet)
{
    // The array takes a number in every language, though it needs no local here.
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1Viewport %3;%2"
                     "%1{%2"
                     "%1    Sheet sheetItem%3 = kvDoc.GetSheet(\"%5\");%2"
                     "%1    if (null != sheetItem%3)%2"
                     "%1    {%2"
                     "%1        sheetItem%3.Activate();%2"
                     "%1        %3 = sheetItem%3.InsertPolygonalViewport( new double[]{%4} );%2"
                     "%1    }%2"
                     "%1}%2",
                     variable, kv::CoordinateList<kv::GeneralPoint2d>(points), sheet);
}

QString CZtConverterKVAPICSharp::WriteInsertViewTiles(const QString& layout, bool flag, const QStringList& tiles)
{
    const QString array = kv::Fill("kvViewTileArray%1", CSharpCounters::OfProcess().WriteInsertViewTiles++);
    QString text = Statement("%1kvModel.InsertViewTiles( %3, %4 );%2"
                             "%1object[] %5 = (object[])kvModel.GetViewTiles();%2%2",
                             kv::FormOfConstant(kv::EnumForm::Qualified, layout), FlagWord(flag), array);
    for (int i = 0; i < tiles.size(); ++i)
    {
        text += Statement("%1%5 =(ViewTile)%3[%4];%2", array, i, tiles.at(i));
    }
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertViewport(const QString& variable, const OdGePoint3d& center,
                                                           double width, double height)
{
    return Statement("%1%8 = kvSheet.InsertViewport( %3, %4, %5, %6, %7 );%2", center, Fixed{width}, Fixed{height},
                     variable);
}
