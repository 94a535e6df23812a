// C++ COM texts of named views; the logic stands in core/named_views.cpp.
#include "backends/cppcom/color_expression.h"
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/object.h"
#include "backends/cppcom/safe_array.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPICPPCOM::WriteRenameNamedView(const QString& view, const QString& newName, bool byName)
{
    const int number = ComCounters::OfProcess().WriteRenameNamedView++;
    return byName
               ? Statement("%1kvCreateObjectResult_e Result%3_rename;%2"
                           "%1ISheetNamedViewPtr sheetNamedView%3_rename = kvViewManager->GetSheetNamedView( L\"%4\" "
                           ");%2"
                           "%1INamedViewPtr kvNamedViewClass_%3_rename = sheetNamedView%3_rename->GetNamedView();%2"
                           "%1kvNamedViewClass_%3_rename->Rename( L\"%5\", &Result%3_rename );%2%2",
                           number, view, newName)
               : Statement("%1kvCreateObjectResult_e Result%3_rename;%2"
                           "%1INamedViewPtr kvNamedViewClass_%3_rename = %4->GetNamedView();%2"
                           "%1kvNamedViewClass_%3_rename->Rename( L\"%5\", &Result%3_rename );%2%2",
                           number, view, newName);
}

QString CZtConverterKVAPICPPCOM::WriteSetNamedViewClass(const QString& view, const QString& viewClass, bool byName)
{
    const int number = ComCounters::OfProcess().WriteSetNamedViewClass++;
    return byName ? Statement("%1ISheetNamedViewPtr sheetNamedView%3_class = kvViewManager->GetSheetNamedView( L\"%4\" "
                              ");%2"
                              "%1INamedViewPtr kvNamedViewClass_%3_class = sheetNamedView%3_class->GetNamedView();%2"
                              "%1kvNamedViewClass_%3_class->put_Class( L\"%5\" );%2%2",
                              number, view, viewClass)
                  : Statement("%1INamedViewPtr kvNamedViewClass%3_class = %4->GetNamedView();%2"
                              "%1kvNamedViewClass%3_class->put_Class( L\"%5\" );%2%2",
                              number, view, viewClass);
}

QString CZtConverterKVAPICPPCOM::WriteSetNamedViewWindow(const QString& view, const OdGePoint3d& corner1,
                                                         const OdGePoint3d& corner2, bool byName)
{
    const int number = ComCounters::OfProcess().WriteSetNamedViewWindow++;
    QString text = Statement("%1IMathUtilityPtr kvMathUtility%3 = pConnection->m_KvApp->GetMathUtility();%2"
                             "%1IMathPointPtr FirstCorner_%3_1 = kvMathUtility%3->CreatePoint( %4, %5, %6 );%2"
                             "%1IMathPointPtr OppositeCorner_%3_1 = kvMathUtility%3->CreatePoint( %7, %8, %9 );%2",
                             number, corner1, corner2);
    text += byName
                ? Statement("%1ISheetNamedViewPtr sheetNamedView%3_Pt = kvViewManager->GetSheetNamedView( L\"%4\" );%2"
                            "%1INamedViewPtr kvNamedViewClass_%3_Pt = sheetNamedView%3_Pt->GetNamedView();%2"
                            "%1kvNamedViewClass_%3_Pt->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
                            number, view)
                : Statement("%1INamedViewPtr kvNamedView%3_Pt = %4->GetNamedView();%2"
                            "%1kvNamedView%3_Pt->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
                            number, view);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateNamedView(const QString& variable, const QString& name,
                                                            const QString& viewClass, const OdGePoint3d& corner1,
                                                            const OdGePoint3d& corner2, bool isSheet)
{
    const int number = ComCounters::OfProcess().WriteCreateNamedView++;
    const SafeArrayText firstCorner(SafeArrayText::Kind::Doubles, "kvCorner_1_", number);
    const SafeArrayText secondCorner(SafeArrayText::Kind::Doubles, "kvCorner_2_", number);
    QString text = Line("%1ISheetNamedViewPtr kvSheetNamedView%2;\n", number);
    text += firstCorner.Declare(CurrentIndent(), 3);
    text += secondCorner.Declare(CurrentIndent(), 3);
    text += Line("%1kvCreateObjectResult_e Result%2;\n", number);
    text += firstCorner.Block(CurrentIndent(), CoordinateTexts(corner1, kv::FixedText));
    text += secondCorner.Block(CurrentIndent(), CoordinateTexts(corner2, kv::FixedText));
    text += kv::LineEnd();
    // A view of a sheet goes into a local and never into the variable; the format's.
    text += isSheet ? Line("%1kvSheetNamedView%2 = kvViewManager->CreateSheetNamedView(L\"%3\", L\"%4\", "
                           "kvCorner_1_%2, kvCorner_2_%2, &Result%2);\n\n",
                           number, name, viewClass)
                    : Line("%1%5 = kvViewManager->CreateModelNamedView(L\"%3\", L\"%4\", kvCorner_1_%2, "
                           "kvCorner_2_%2, &Result%2);\n\n",
                           number, name, viewClass, variable);
    return text;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetSolidBackground(const QString& variable, const OdCmColor& color)
{
    return Statement("%1INamedViewPtr kvNamedView%3_bg = %4->GetNamedView();%2"
                     "%1ISolidBackgroundPtr kvSolidBackground%3 = kvNamedView%3_bg->CreateSolidBackground( %5 );%2%2",
                     NextLocalNumber(), variable, ColorExpression(color));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetGradientBackground(const QString& variable, bool flag,
                                                                  const OdCmColor& color1, const OdCmColor& color2,
                                                                  const OdCmColor& color3, double angle)
{
    return Statement("%1INamedViewPtr kvNamedView%3_bg = %4->GetNamedView();%2"
                     "%1IGradientBackgroundPtr kvGradientBackground%3 = kvNamedView%3_bg->CreateGradientBackground( "
                     "%5, %6, %7, %8, %9 );%2%2",
                     NextLocalNumber(), variable, FlagWord(flag), ColorExpression(color1), ColorExpression(color2),
                     ColorExpression(color3), Fixed{angle});
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetImageBackground(const QString& variable, const QString& file,
                                                               const QString& mode, double a, double b, double c,
                                                               double d)
{
    return Statement("%1INamedViewPtr kvNamedView%3_bg = %4->GetNamedView();%2"
                     "%1IImageBackgroundPtr kvImageBackground%3 = kvNamedView%3_bg->CreateImageBackground( L\"%5\", "
                     "%6, %7, %8, %9, %10 );%2%2",
                     NextLocalNumber(), variable, file, kv::FormOfConstant(kv::EnumForm::Bare, mode), Fixed{a},
                     Fixed{b}, Fixed{c}, Fixed{d});
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetNamedProperty(const QString& word, const QString& value, bool isModel,
                                                             const QString& sheet)
{
    if (isModel)
    {
        return Statement("%1kvModel->put_%3( L\"%4\" );%2", word, value);
    }
    const std::int32_t number = NextLocalNumber();
    const QString head = Statement("%1ISheetPtr sheetItem%3 = kvDoc->GetSheet( L\"%4\" );%2", number, sheet);
    // The value of a sheet lacks the prefix of wide texts; the format's.
    return Statement("%3%1%4->put_%5( \"%6\" );%2", head, kv::Fill("sheetItem%1", number), word, value);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteRemoveNamedView(const QString& name, bool isSheet)
{
    const std::int32_t number = ComCounters::OfProcess().WriteRemoveNamedView++;
    QString text = Line("%1VARIANT_BOOL valRemove_%2 = VARIANT_FALSE;\n", number);
    // A view of the model is named without quotes; the format's.
    text +=
        isSheet
            ? Line(
                  "%1ISheetNamedViewPtr sheetNamedViewRemove_%3 = kvViewManager->GetSheetNamedView( L\"%2\" );\n%1valRemove_%3=kvViewManager->RemoveSheetNamedView( sheetNamedViewRemove_%3 );\n",
                  name, number)
            : Line("%1valRemove_%3=kvViewManager->RemoveModelNamedView( %2 );\n", name, number);
    return text;
}
