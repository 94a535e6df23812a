// C++ API texts of zoom, viewports and view tiles; the logic stands in core/viewports.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPICPP::WriteZoom(const QString& range, bool isWindow, const OdGePoint3d& corner1,
                                        const OdGePoint3d& corner2)
{
    const int number = CppCounters::OfProcess().WriteZoom++;
    QString text = Statement("%1kvDoubleArray lowerLeft_%3, upperRight_%3;%2", number);
    text += isWindow ? Statement("%1lowerLeft_%10.add( %3 );%2"
                                 "%1lowerLeft_%10.add( %4 );%2"
                                 "%1lowerLeft_%10.add( %5 );%2"
                                 "%1upperRight_%10.add( %6 );%2"
                                 "%1upperRight_%10.add( %7 );%2"
                                 "%1upperRight_%10.add( %8 );%2"
                                 "%1m_pKvApp->Zoom(%9, lowerLeft_%10, upperRight_%10);%2",
                                 corner1, corner2, range, number)
                     : Statement("%1m_pKvApp->Zoom(%3, lowerLeft_%4, upperRight_%4 );%2", range, number);
    return text;
}

QString CZtConverterKVAPICPP::WriteActivateViewport(const QString& variable)
{
    return Statement("%1bool bRes%4;%2"
                     "%1%3->Activate( &bRes%4 );%2",
                     variable, CppCounters::OfProcess().WriteActivateViewport++);
}

QString CZtConverterKVAPICPP::WriteInsertPolygonalViewport(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                           const QString& sheet)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvViewport_ptr %3;%2"
                     "%1{%2"
                     "%1    kvSheet_ptr sheetItem%3;%2"
                     "%1    kvDoc->GetSheet(L\"%6\" , &sheetItem%3);%2"
                     "%1    if (NULL != sheetItem%3)%2"
                     "%1    {%2"
                     "%1        sheetItem%3->Activate();%2"
                     "%1        kvDoubleArray Coordinates%5;%2"
                     "%1        Coordinates%5.clear();%2%2"
                     "%4%2"
                     "%1        sheetItem%3->InsertPolygonalViewport( Coordinates%5 ,  &%3);%2"
                     "%1    }%2"
                     "%1}%2",
                     variable, CoordinateLines(number, points), number, sheet);
}

QString CZtConverterKVAPICPP::WriteInsertViewTiles(const QString& layout, bool flag, const QStringList& tiles)
{
    const QString array = kv::Fill("kvViewTileArray%1", CppCounters::OfProcess().WriteInsertViewTiles++);
    QString text = Statement("%1kvObjectPtrArray %5;%2"
                             "%1kvModel->InsertViewTiles( %3, %4, &%5 );%2"
                             "%1kvModel->GetViewTiles( &%5 );%2%2",
                             kv::FormOfConstant(kv::EnumForm::Bare, layout), FlagWord(flag), array);
    for (int i = 0; i < tiles.size(); ++i)
    {
        text += Statement("%1%5 =(kvViewTile_c*)%3[%4];%2", array, i, tiles.at(i));
    }
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteInsertViewport(const QString& variable, const OdGePoint3d& center,
                                                        double width, double height)
{
    return Statement("%1kvSheet->InsertViewport( %3, %4, %5, %6, %7, &%8 );%2", center, Fixed{width}, Fixed{height},
                     variable);
}
