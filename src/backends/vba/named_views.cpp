// VBA texts of named views; the logic stands in core/named_views.cpp.
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIVba::WriteRenameNamedView(const QString& view, const QString& newName, bool byName)
{
    const int number = VbaCounters::OfProcess().WriteRenameNamedView++;
    return byName ? Statement("%1Dim Result%3_rename As Morvane.kvCreateObjectResult_e%2"
                              "%1Dim sheetNamedView%3_rename As Morvane.SheetNamedView%2"
                              "%1Set sheetNamedView%3_rename = kvViewManager.GetSheetNamedView( \"%4\" )%2"
                              "%1Dim kvNamedViewClass_%3_rename As Morvane.NamedView%2"
                              "%1Set kvNamedViewClass_%3_rename = sheetNamedView%3_rename.GetNamedView()%2"
                              "%1kvNamedViewClass_%3_rename.Rename \"%5\", Result%3_rename%2%2",
                              number, view, newName)
                  : Statement("%1Dim Result%3_rename As Morvane.kvCreateObjectResult_e%2"
                              "%1Dim kvNamedViewClass_%3_rename As Morvane.NamedView%2"
                              "%1Set kvNamedViewClass_%3_rename = %4.GetNamedView()%2"
                              "%1kvNamedViewClass_%3_rename.Rename \"%5\", Result%3_rename%2%2",
                              number, view, newName);
}

QString CZtConverterKVAPIVba::WriteSetNamedViewClass(const QString& view, const QString& viewClass, bool byName)
{
    const int number = VbaCounters::OfProcess().WriteSetNamedViewClass++;
    return byName ? Statement("%1Dim sheetNamedView%3_class As Morvane.SheetNamedView%2"
                              "%1Set sheetNamedView%3_class = kvViewManager.GetSheetNamedView( \"%4\" )%2"
                              "%1Dim kvNamedViewClass_%3_class As Morvane.NamedView%2"
                              "%1Set kvNamedViewClass_%3_class = sheetNamedView%3_class.GetNamedView()%2"
                              "%1kvNamedViewClass_%3_class.Class = \"%5\"%2%2",
                              number, view, viewClass)
                  : Statement("%1Dim kvNamedViewClass%3_class As Morvane.NamedView%2"
                              "%1Set kvNamedViewClass%3_class = %4.GetNamedView()%2"
                              "%1kvNamedViewClass%3_class.Class = \"%5\"%2%2",
                              number, view, viewClass);
}

QString CZtConverterKVAPIVba::WriteSetNamedViewWindow(const QString& view, const OdGePoint3d& corner1,
                                                      const OdGePoint3d& corner2, bool byName)
{
    const int number = VbaCounters::OfProcess().WriteSetNamedViewWindow++;
    QString text = Statement("%1Dim kvMathUtility%3 As Morvane.MathUtility%2"
                             "%1Set kvMathUtility%3 = kvApp.GetMathUtility()%2"
                             "%1Dim FirstCorner_%3_1 As Morvane.MathPoint%2"
                             "%1Set FirstCorner_%3_1 = kvMathUtility%3.CreatePoint( %4, %5, %6 )%2"
                             "%1Dim OppositeCorner_%3_1 As Morvane.MathPoint%2"
                             "%1Set OppositeCorner_%3_1 = kvMathUtility%3.CreatePoint( %7, %8, %9 )%2",
                             number, corner1, corner2);
    text += byName ? Statement("%1Dim sheetNamedView%3_Pt As Morvane.SheetNamedView%2"
                               "%1Set sheetNamedView%3_Pt = kvViewManager.GetSheetNamedView( \"%4\" )%2"
                               "%1Dim kvNamedViewClass_%3_Pt As Morvane.NamedView%2"
                               "%1Set kvNamedViewClass_%3_Pt = sheetNamedView%3_Pt.GetNamedView()%2"
                               "%1kvNamedViewClass_%3_Pt.SetWindow FirstCorner_%3_1, OppositeCorner_%3_1%2%2",
                               number, view)
                   : Statement("%1Dim kvNamedView%3_Pt As Morvane.NamedView%2"
                               "%1Set kvNamedView%3_Pt = %4.GetNamedView()%2"
                               "%1kvNamedView%3_Pt.SetWindow FirstCorner_%3_1, OppositeCorner_%3_1%2%2",
                               number, view);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteCreateNamedView(const QString& variable, const QString& name,
                                                         const QString& viewClass, const OdGePoint3d& corner1,
                                                         const OdGePoint3d& corner2, bool isSheet)
{
    const int number = VbaCounters::OfProcess().WriteCreateNamedView++;
    QString text = Line("%1Dim kvSheetNamedView%2 As Morvane.SheetNamedView\n"
                        "%1Dim kvCorner_1_%2(2) As Double\n"
                        "%1Dim kvCorner_2_%2(2) As Double\n"
                        "%1Dim Result%2 As Morvane.kvCreateObjectResult_e\n",
                        number);
    text += PointElements("kvCorner_1_", number, corner1);
    text += PointElements("kvCorner_2_", number, corner2);
    text += kv::LineEnd();
    // A view of a sheet goes into a local and never into the variable; the format's.
    text += isSheet
                ? Line("%1Set kvSheetNamedView%2 = kvViewManager.CreateSheetNamedView(\"%3\", \"%4\", kvCorner_1_%2, "
                       "kvCorner_2_%2, Result%2)\n\n",
                       number, name, viewClass)
                : Line("%1Set %5 = kvViewManager.CreateModelNamedView(\"%3\", \"%4\", kvCorner_1_%2, "
                       "kvCorner_2_%2, Result%2)\n\n",
                       number, name, viewClass, variable);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetSolidBackground(const QString& variable, const OdCmColor& color)
{
    return Statement("%1Dim kvNamedView%3_bg As Morvane.NamedView%2"
                     "%1Set kvNamedView%3_bg = %4.GetNamedView()%2"
                     "%1Dim kvSolidBackground%3 As Morvane.SolidBackground%2"
                     "%1Set kvSolidBackground%3 = kvNamedView%3_bg.CreateSolidBackground( %5 )%2%2",
                     NextLocalNumber(), variable, kv::ColorExpression(color));
}

QString CZtConverterKVAPIObjectVba::WriteSetGradientBackground(const QString& variable, bool flag,
                                                               const OdCmColor& color1, const OdCmColor& color2,
                                                               const OdCmColor& color3, double angle)
{
    return Statement(
        "%1Dim kvNamedView%3_bg As Morvane.NamedView%2"
        "%1Set kvNamedView%3_bg = %4.GetNamedView()%2"
        "%1Dim kvGradientBackground%3 As Morvane.GradientBackground%2"
        "%1Set kvGradientBackground%3 = kvNamedView%3_bg.CreateGradientBackground( %5, %6, %7, %8, %9 )%2%2",
        NextLocalNumber(), variable, FlagWord(flag), kv::ColorExpression(color1), kv::ColorExpression(color2),
        kv::ColorExpression(color3), Fixed{angle});
}

QString CZtConverterKVAPIObjectVba::WriteSetImageBackground(const QString& variable, const QString& file,
                                                            const QString& mode, double a, double b, double c, double d)
{
    return Statement(
        "%1Dim kvNamedView%3_bg As Morvane.NamedView%2"
        "%1Set kvNamedView%3_bg = %4.GetNamedView()%2"
        "%1Dim kvImageBackground%3 As Morvane.ImageBackground%2"
        "%1Set kvImageBackground%3 = kvNamedView%3_bg.CreateImageBackground( \"%5\", %6, %7, %8, %9, %10 )%2%2",
        NextLocalNumber(), variable, file, kv::FormOfConstant(kv::EnumForm::Morvane, mode), Fixed{a}, Fixed{b},
        Fixed{c}, Fixed{d});
}

QString CZtConverterKVAPIObjectVba::WriteSetNamedProperty(const QString& word, const QString& value, bool isModel,
                                                          const QString& sheet)
{
    if (isModel)
    {
        return Statement("%1kvModel.%3 = \"%4\"%2", word, value);
    }
    const std::int32_t number = NextLocalNumber();
    const QString head = Statement("%1Dim sheetItem%3 As Morvane.Sheet%2"
                                   "%1Set sheetItem%3 = kvDoc.GetSheet(\"%4\")%2",
                                   number, sheet);
    return Statement("%3%1%4.%5 = \"%6\"%2", head, kv::Fill("sheetItem%1", number), word, value);
}

QString CZtConverterKVAPIObjectVba::WriteRemoveNamedView(const QString& name, bool isSheet)
{
    const std::int32_t number = VbaCounters::OfProcess().WriteRemoveNamedView++;
    QString text;
    // A view of the model is named without quotes; the format's.
    text +=
        isSheet
            ? Line(
                  "%1Dim sheetNamedViewRemove_%3 As Morvane.SheetNamedView\n%1Set sheetNamedViewRemove_%3 = kvViewManager.GetSheetNamedView( \"%2\" )\n%1kvViewManager.RemoveSheetNamedView sheetNamedViewRemove_%3\n",
                  name, number)
            : Line("%1kvViewManager.RemoveModelNamedView %2\n", name);
    return text;
}
