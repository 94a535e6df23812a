// C++ API texts of named views; the logic stands in core/named_views.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPICPP::WriteRenameNamedView(const QString& view, const QString& newName, bool byName)
{
    const int number = CppCounters::OfProcess().WriteRenameNamedView++;
    return byName ? Statement("%1kvCreateObjectResult_e Result%3_rename;%2"
                              "%1kvSheetNamedView_ptr sheetNamedView%3_rename;%2"
                              "%1kvViewManager->GetSheetNamedView( L\"%4\", &sheetNamedView%3_rename );%2"
                              "%1kvNamedView_ptr kvNamedViewClass_%3_rename;%2"
                              "%1sheetNamedView%3_rename->GetNamedView( &kvNamedViewClass_%3_rename );%2"
                              "%1kvNamedViewClass_%3_rename->Rename( L\"%5\", &Result%3_rename );%2%2",
                              number, view, newName)
                  : Statement("%1kvNamedView_ptr kvNamedViewClass_%3_rename;%2"
                              "%1kvCreateObjectResult_e Result%3_rename;%2"
                              "%1%4->GetNamedView( &kvNamedViewClass_%3_rename );%2"
                              "%1kvNamedViewClass_%3_rename->Rename( L\"%5\", &Result%3_rename );%2%2",
                              number, view, newName);
}

QString CZtConverterKVAPICPP::WriteSetNamedViewClass(const QString& view, const QString& viewClass, bool byName)
{
    const int number = CppCounters::OfProcess().WriteSetNamedViewClass++;
    return byName ? Statement("%1kvSheetNamedView_ptr sheetNamedView%3_class;%2"
                              "%1kvViewManager->GetSheetNamedView( L\"%4\", &sheetNamedView%3_class );%2"
                              "%1kvNamedView_ptr kvNamedViewClass_%3_class;%2"
                              "%1sheetNamedView%3_class->GetNamedView( &kvNamedViewClass_%3_class );%2"
                              "%1kvNamedViewClass_%3_class->put_Class( L\"%5\" );%2%2",
                              number, view, viewClass)
                  : Statement("%1kvNamedView_ptr kvNamedViewClass%3_class;%2"
                              "%1%4->GetNamedView( &kvNamedViewClass%3_class );%2"
                              "%1kvNamedViewClass%3_class->put_Class( L\"%5\" );%2%2",
                              number, view, viewClass);
}

QString CZtConverterKVAPICPP::WriteSetNamedViewWindow(const QString& view, const OdGePoint3d& corner1,
                                                      const OdGePoint3d& corner2, bool byName)
{
    const int number = CppCounters::OfProcess().WriteSetNamedViewWindow++;
    QString text = Statement("%1kvMathUtility_ptr kvMathUtility%3;%2"
                             "%1m_pKvApp->GetMathUtility( &kvMathUtility%3 );%2"
                             "%1kvMathPoint_ptr FirstCorner_%3_1;%2"
                             "%1kvMathPoint_ptr OppositeCorner_%3_1;%2"
                             "%1kvMathUtility%3->CreatePoint( %4, %5, %6, &FirstCorner_%3_1 );%2"
                             "%1kvMathUtility%3->CreatePoint( %7, %8, %9, &OppositeCorner_%3_1 );%2",
                             number, corner1, corner2);
    text += byName ? Statement("%1kvSheetNamedView_ptr sheetNamedView%3_Pt;%2"
                               "%1kvViewManager->GetSheetNamedView( L\"%4\", &sheetNamedView%3_Pt );%2"
                               "%1kvNamedView_ptr kvNamedViewClass_%3_Pt;%2"
                               "%1sheetNamedView%3_Pt->GetNamedView( &kvNamedViewClass_%3_Pt );%2"
                               "%1kvNamedViewClass_%3_Pt->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
                               number, view)
                   : Statement("%1kvNamedView_ptr kvNamedView%3_Pt;%2"
                               "%1%4->GetNamedView( &kvNamedView%3_Pt );%2"
                               "%1kvNamedView%3_Pt->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
                               number, view);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteCreateNamedView(const QString& variable, const QString& name,
                                                         const QString& viewClass, const OdGePoint3d& corner1,
                                                         const OdGePoint3d& corner2, bool isSheet)
{
    const int number = CppCounters::OfProcess().WriteCreateNamedView++;
    QString text = Line("%1kvSheetNamedView_ptr kvSheetNamedView%2;\n", number);
    text += Line("%1kvDoubleArray kvCorner_1_%2;\n", number);
    text += Line("%1kvDoubleArray kvCorner_2_%2;\n", number);
    text += Line("%1kvCreateObjectResult_e Result%2;\n", number);
    for (const double coordinate : {corner1.x, corner1.y, corner1.z})
    {
        text += Line("%1kvCorner_1_%2.add(%3);\n", number, Fixed{coordinate});
    }
    for (const double coordinate : {corner2.x, corner2.y, corner2.z})
    {
        text += Line("%1kvCorner_2_%2.add(%3);\n", number, Fixed{coordinate});
    }
    text += kv::LineEnd();
    // A view of a sheet goes into a local and never into the variable; the format's.
    text += isSheet ? Line("%1kvViewManager->CreateSheetNamedView(L\"%3\", L\"%4\", kvCorner_1_%2, kvCorner_2_%2"
                           ", &kvSheetNamedView%2, &Result%2);\n\n",
                           number, name, viewClass)
                    : Line("%1kvViewManager->CreateModelNamedView(L\"%3\", L\"%4\", kvCorner_1_%2, kvCorner_2_%2"
                           ", &%5, &Result%2);\n\n",
                           number, name, viewClass, variable);
    return text;
}

// A local of the number and the index of the colour, which background setters take.
QString CZtConverterKVAPIObjectCPP::BackgroundColor(std::int32_t number, int index, const OdCmColor& color)
{
    if (color.colorMethod() != OdCmColor::Method::ByColor)
    {
        return Statement("%1kvColor_ptr kvColor%3_%4;%2"
                         "%1m_pKvApp->GetColorByIndex( %5, &kvColor%3_%4 );%2",
                         number, index, color.colorIndex());
    }
    return Statement("%1kvColor_ptr kvColor%3_%4;%2"
                     "%1m_pKvApp->GetRGBColor( %5, %6, %7, &kvColor%3_%4 );%2",
                     number, index, int{color.red()}, int{color.green()}, int{color.blue()});
}

QString CZtConverterKVAPIObjectCPP::BackgroundHead(std::int32_t number, const QString& variable)
{
    return Statement("%1kvNamedView_ptr kvNamedView%3_bg;%2"
                     "%1%4->GetNamedView( &kvNamedView%3_bg );%2",
                     number, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteSetSolidBackground(const QString& variable, const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += BackgroundColor(number, 1, color);
    text += Statement("%1kvSolidBackground_ptr kvSolidBackground%3;%2"
                      "%1kvNamedView%3_bg->CreateSolidBackground( kvColor%3_1, &kvSolidBackground%3 );%2%2",
                      number);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetGradientBackground(const QString& variable, bool flag,
                                                               const OdCmColor& color1, const OdCmColor& color2,
                                                               const OdCmColor& color3, double angle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += BackgroundColor(number, 1, color1);
    text += BackgroundColor(number, 2, color2);
    text += BackgroundColor(number, 3, color3);
    text += Statement("%1kvGradientBackground_ptr kvGradientBackground%3;%2"
                      "%1kvNamedView%3_bg->CreateGradientBackground( %4, kvColor%3_1, kvColor%3_2, kvColor%3_3, %5, "
                      "&kvGradientBackground%3 );%2%2",
                      number, FlagWord(flag), Fixed{angle});
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetImageBackground(const QString& variable, const QString& file,
                                                            const QString& mode, double a, double b, double c, double d)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text +=
        Statement("%1kvImageBackground_ptr kvImageBackground%3;%2"
                  "%1kvNamedView%3_bg->CreateImageBackground( L\"%4\", %5, %6, %7, %8, %9, "
                  "&kvImageBackground%3 );%2%2",
                  number, file, kv::FormOfConstant(kv::EnumForm::Bare, mode), Fixed{a}, Fixed{b}, Fixed{c}, Fixed{d});
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetNamedProperty(const QString& word, const QString& value, bool isModel,
                                                          const QString& sheet)
{
    if (isModel)
    {
        return Statement("%1kvModel->put_%3( L\"%4\" );%2", word, value);
    }
    const std::int32_t number = NextLocalNumber();
    const QString head =
        Statement("%1kvSheet_ptr sheetItem%3;%2%1kvDoc->GetSheet( L\"%4\", &sheetItem%3 );%2", number, sheet);
    // The value of a sheet lacks the prefix of wide texts; the format's.
    return Statement("%3%1%4->put_%5( \"%6\" );%2", head, kv::Fill("sheetItem%1", number), word, value);
}

QString CZtConverterKVAPIObjectCPP::WriteRemoveNamedView(const QString& name, bool isSheet)
{
    const std::int32_t number = CppCounters::OfProcess().WriteRemoveNamedView++;
    QString text = Line("%1bool valRemove_%2 = false;\n", number);
    // A view of the model is named without quotes; the format's.
    text +=
        isSheet
            ? Line(
                  "%1kvSheetNamedView_ptr sheetNamedViewRemove_%3;\n%1kvViewManager->GetSheetNamedView( L\"%2\", &sheetNamedViewRemove_%3 );\n%1kvViewManager->RemoveSheetNamedView( sheetNamedViewRemove_%3, &valRemove_%3 );\n",
                  name, number)
            : Line("%1kvViewManager->RemoveModelNamedView( %2, &valRemove_%3 );\n", name, number);
    return text;
}
