// JavaScript texts of zoom, viewports and view tiles; the logic stands in core/viewports.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIJavaScript::WriteZoom(const QString& range, bool isWindow, const OdGePoint3d& corner1,
                                               const OdGePoint3d& corner2)
{
    const int number = JavaScriptCounters::OfProcess().WriteZoom++;
    QString text = isWindow ? Statement("%1var lowerLeft_%9 = new Array(%3,%4,%5), "
                                        "upperRight_%9 = new Array(%6,%7,%8);%2",
                                        corner1, corner2, number)
                            : Statement("%1var lowerLeft_%3 = new Array(), upperRight_%3 = new Array();%2", number);
    text += Statement("%1mApp.Zoom(\"%3\", lowerLeft_%4, upperRight_%4);%2", range, number);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteActivateViewport(const QString& variable)
{
    return Statement("%1%3.Activate();%2", variable);
}

QString CZtConverterKVAPIJavaScript::WriteInsertPolygonalViewport(const QString& variable,
                                                                  const OdArray<OdGePoint2d>& points,
                                                                  const QString& sheet)
{
    const QString array = kv::Fill("polyPoints%1", NextLocalNumber());
    return Statement("%1{%2"
                     "%1    var sheetItem%3 = mDoc.GetSheet(\"%6\");%2"
                     "%1    if (null != sheetItem%3)%2"
                     "%1    {%2"
                     "%1        sheetItem%3.Activate();%2"
                     "%4%2"
                     "%1        var %3 = sheetItem%3.InsertPolygonalViewport(%5);%2"
                     "%1    }%2"
                     "%1}%2",
                     variable, CoordinateArray(array, points), array, sheet);
}

QString CZtConverterKVAPIJavaScript::WriteInsertViewTiles(const QString& layout, bool flag, const QStringList& tiles)
{
    const QString array = kv::Fill("kvViewTileArray%1", JavaScriptCounters::OfProcess().WriteInsertViewTiles++);
    QString text = Statement("%1mModel.InsertViewTiles(\"%3\", %4);%2"
                             "%1var %5 = mModel.GetViewTiles();%2%2",
                             kv::FormOfConstant(kv::EnumForm::Bare, layout), FlagWord(flag), array);
    for (int i = 0; i < tiles.size(); ++i)
    {
        text += Statement("%1var %5 = %3[%4];%2", array, i, tiles.at(i));
    }
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertViewport(const QString& variable, const OdGePoint3d& center,
                                                               double width, double height)
{
    return Statement("%1var %8 = mSheet.InsertViewport(%3, %4, %5, %6, %7);%2", center, Fixed{width}, Fixed{height},
                     variable);
}
