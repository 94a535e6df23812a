// C++ COM texts of zoom, viewports and view tiles; the logic stands in core/viewports.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/object.h"
#include "backends/cppcom/safe_array.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPICPPCOM::WriteZoom(const QString& range, bool isWindow, const OdGePoint3d& corner1,
                                           const OdGePoint3d& corner2)
{
    const int number = ComCounters::OfProcess().WriteZoom++;
    const SafeArrayText lowerLeft(SafeArrayText::Kind::Doubles, "lowerLeft_", number);
    const SafeArrayText upperRight(SafeArrayText::Kind::Doubles, "upperRight_", number);
    const int size = isWindow ? 3 : 0;
    QString text = lowerLeft.Declare(CurrentIndent(), size);
    text += upperRight.Declare(CurrentIndent(), size);
    if (!isWindow)
    {
        text += Statement("%1pConnection->m_KvApp->Zoom(%3, lowerLeft_%4, upperRight_%4 );%2", range, number);
        return text;
    }
    text += lowerLeft.Block(CurrentIndent(), CoordinateTexts(corner1, kv::GeneralText));
    text += upperRight.Block(CurrentIndent(), CoordinateTexts(corner2, kv::GeneralText));
    text += Statement("%1pConnection->m_KvApp->Zoom(%3, lowerLeft_%4, upperRight_%4);%2", range, number);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteActivateViewport(const QString& variable)
{
    return Statement("%1VARIANT_BOOL bRes%4;%2"
                     "%1bRes%4=%3->Activate();%2",
                     variable, ComCounters::OfProcess().WriteActivateViewport++);
}

QString CZtConverterKVAPICPPCOM::WriteInsertPolygonalViewport(const QString& variable,
                                                              const OdArray<OdGePoint2d>& points, const QString& sheet)
{
    const std::int32_t number = NextLocalNumber();
    const QStringList coordinates = CoordinateTexts(points, kv::GeneralText);
    const SafeArrayText array(SafeArrayText::Kind::Doubles, "variant", number);
    QString text = Statement("%1IViewportPtr %3;%2"
                             "%1{%2"
                             "%1    ISheetPtr sheetItem%3 = kvDoc->GetSheet(L\"%4\");%2"
                             "%1    if (NULL != sheetItem%3)%2"
                             "%1    {%2"
                             "%1        sheetItem%3->Activate();%2",
                             variable, sheet);
    text += array.Declare({Counters().IndentLevel + 2}, coordinates.size());
    text += kv::LineEnd();
    text += array.Elements(CurrentIndent(), coordinates);
    text += kv::LineEnd();
    text += Statement("%1        %3 = sheetItem%3->InsertPolygonalViewport( variant%4 );%2"
                      "%1    }%2"
                      "%1}%2",
                      variable, number);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteInsertViewTiles(const QString& layout, bool flag, const QStringList& tiles)
{
    const QString array = kv::Fill("kvViewTileArray%1", ComCounters::OfProcess().WriteInsertViewTiles++);
    QString text = Statement("%1_variant_t %5;%2"
                             "%1kvModel->InsertViewTiles( %3, %4 );%2"
                             "%1%5 = kvModel->GetViewTiles();%2%2"
                             "%1int count = 0;%2"
                             "%1IViewTilePtr *kvViewTileArrays = NULL;%2"
                             "%1TypeConverter::convertVariantArrayToPtrArray<IViewTilePtr, IViewTile>( %5, "
                             "kvViewTileArrays, count );%2",
                             kv::FormOfConstant(kv::EnumForm::Bare, layout), FlagWord(flag), array);
    for (int i = 0; i < tiles.size(); ++i)
    {
        text += Statement("%1%4 = kvViewTileArrays[%3];%2", i, tiles.at(i));
    }
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertViewport(const QString& variable, const OdGePoint3d& center,
                                                           double width, double height)
{
    return Statement("%1%8 = kvSheet->InsertViewport( %3, %4, %5, %6, %7 );%2", center, Fixed{width}, Fixed{height},
                     variable);
}
