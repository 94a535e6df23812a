// C# texts of named views; the logic stands in core/named_views.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "backends/csharp/object.h"
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPICSharp::WriteRenameNamedView(const QString& view, const QString& newName, bool byName)
{
    const int number = CSharpCounters::OfProcess().WriteRenameNamedView++;
    return byName ? Statement("%1kvCreateObjectResult_e Result%3_rename;%2"
                              "%1SheetNamedView sheetNamedView%3_rename = "
                              "kvViewManager.GetSheetNamedView( \"%4\" );%2"
                              "%1NamedView kvNamedViewClass_%3_rename = sheetNamedView%3_rename.GetNamedView();%2"
                              "%1kvNamedViewClass_%3_rename.Rename( \"%5\", out Result%3_rename );%2%2",
                              number, view, newName)
                  : Statement("%1kvCreateObjectResult_e Result%3_rename;%2"
                              "%1NamedView kvNamedViewClass_%3_rename = %4.GetNamedView();%2"
                              "%1kvNamedViewClass_%3_rename.Rename( \"%5\", out Result%3_rename );%2%2",
                              number, view, newName);
}

QString CZtConverterKVAPICSharp::WriteSetNamedViewClass(const QString& view, const QString& viewClass, bool byName)
{
    const int number = CSharpCounters::OfProcess().WriteSetNamedViewClass++;
    return byName ? Statement("%1SheetNamedView sheetNamedView%3_class = "
                              "kvViewManager.GetSheetNamedView( \"%4\" );%2"
                              "%1NamedView kvNamedViewClass_%3_class = sheetNamedView%3_class.GetNamedView();%2"
                              "%1kvNamedViewClass_%3_class.Class = \"%5\";%2%2",
                              number, view, viewClass)
                  : Statement("%1NamedView kvNamedViewClass%3_class = %4.GetNamedView();%2"
                              "%1kvNamedViewClass%3_class.Class = \"%5\";%2%2",
                              number, view, viewClass);
}

QString CZtConverterKVAPICSharp::WriteSetNamedViewWindow(const QString& view, const OdGePoint3d& corner1,
                                                         const OdGePoint3d& corner2, bool byName)
{
    const int number = CSharpCounters::OfProcess().WriteSetNamedViewWindow++;
    QString text = Statement("%1MathUtility kvMathUtility%3 = kvApp.GetMathUtility();%2"
                             "%1MathPoint FirstCorner_%3_1 = kvMathUtility%3.CreatePoint( %4, %5, %6 );%2"
                             "%1MathPoint OppositeCorner_%3_1 = kvMathUtility%3.CreatePoint( %7, %8, %9 );%2",
                             number, corner1, corner2);
    text += byName ? Statement("%1SheetNamedView sheetNamedView%3_Pt = kvViewManager.GetSheetNamedView( \"%4\" );%2"
                               "%1NamedView kvNamedViewClass_%3_Pt = sheetNamedView%3_Pt.GetNamedView();%2"
                               "%1kvNamedViewClass_%3_Pt.SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
                               number, view)
                   : Statement("%1NamedView kvNamedView%3_Pt = %4.GetNamedView();%2"
                               "%1kvNamedView%3_Pt.SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
                               number, view);
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteCreateNamedView(const QString& variable, const QString& name,
                                                            const QString& viewClass, const OdGePoint3d& corner1,
                                                            const OdGePoint3d& corner2, bool isSheet)
{
    const int number = CSharpCounters::OfProcess().WriteCreateNamedView++;
    QString text = Line("%1SheetNamedView kvSheetNamedView%2;\n", number);
    text += Line("%1double[] kvCorner_1_%2 = new double[3];\n", number);
    text += Line("%1double[] kvCorner_2_%2 = new double[3];\n", number);
    text += Line("%1kvCreateObjectResult_e Result%2;\n", number);
    text += Line("%1kvCorner_1_%2[0] = %3;\n"
                 "%1kvCorner_1_%2[1] = %4;\n"
                 "%1kvCorner_1_%2[2] = %5;\n",
                 number, corner1);
    text += Line("%1kvCorner_2_%2[0] = %3;\n"
                 "%1kvCorner_2_%2[1] = %4;\n"
                 "%1kvCorner_2_%2[2] = %5;\n\n",
                 number, corner2);
    // A view of a sheet goes into a local and never into the variable; the format's.
    text += isSheet ? Line("%1kvSheetNamedView%2 = kvViewManager.CreateSheetNamedView(\"%3\", \"%4\", "
                           "kvCorner_1_%2, kvCorner_2_%2, out Result%2);\n\n",
                           number, name, viewClass)
                    : Line("%1%5 = kvViewManager.CreateModelNamedView(\"%3\", \"%4\", "
                           "kvCorner_1_%2, kvCorner_2_%2, out Result%2);\n\n",
                           number, name, viewClass, variable);
    return text;
}

QString CZtConverterKVAPIObjectCSharp::BackgroundHead(std::int32_t number, const QString& variable) const
{
    return Statement("%1NamedView kvNamedView%3_bg = %4.GetNamedView();%2", number, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetSolidBackground(const QString& variable, const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += Statement("%1SolidBackground kvSolidBackground%3 = kvNamedView%3_bg.CreateSolidBackground( %4 );%2%2",
                      number, kv::ColorExpression(color));
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteSetGradientBackground(const QString& variable, bool flag,
                                                                  const OdCmColor& color1, const OdCmColor& color2,
                                                                  const OdCmColor& color3, double angle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += Statement("%1GradientBackground kvGradientBackground%3 = "
                      "kvNamedView%3_bg.CreateGradientBackground( %4, %5, %6, %7, %8 );%2%2",
                      number, FlagWord(flag), kv::ColorExpression(color1), kv::ColorExpression(color2),
                      kv::ColorExpression(color3), Fixed{angle});
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteSetImageBackground(const QString& variable, const QString& file,
                                                               const QString& mode, double a, double b, double c,
                                                               double d)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += Statement("%1ImageBackground kvImageBackground%3 = "
                      "kvNamedView%3_bg.CreateImageBackground( \"%4\", %5, %6, %7, %8, %9 );%2%2",
                      number, file, kv::FormOfConstant(kv::EnumForm::Qualified, mode), Fixed{a}, Fixed{b}, Fixed{c},
                      Fixed{d});
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteSetNamedProperty(const QString& word, const QString& value, bool isModel,
                                                             const QString& sheet)
{
    if (isModel)
    {
        return Statement("%1kvModel.%3 = \"%4\";%2", word, value);
    }
    const std::int32_t number = NextLocalNumber();
    const QString head = Statement("%1Sheet sheetItem%3 = kvDoc.GetSheet(\"%4\");%2", number, sheet);
    return Statement("%3%1%4.%5 = \"%6\";%2", head, kv::Fill("sheetItem%1", number), word, value);
}

QString CZtConverterKVAPIObjectCSharp::WriteRemoveNamedView(const QString& name, bool isSheet)
{
    const std::int32_t number = CSharpCounters::OfProcess().WriteRemoveNamedView++;
    QString text;
    // A view of the model is named without quotes; the format's.
    text +=
        isSheet
            ? Line(
                  "%1SheetNamedView sheetNamedViewRemove_%3 = kvViewManager.GetSheetNamedView( \"%2\" );\n%1kvViewManager.RemoveSheetNamedView( sheetNamedViewRemove_%3 );\n",
                  name, number)
            : Line("%1kvViewManager.RemoveModelNamedView( %2 );\n", name);
    return text;
}
