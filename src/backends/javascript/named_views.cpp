// JavaScript texts of named views; the logic stands in core/named_views.cpp.
#include "backends/javascript/color_expression.h"
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIJavaScript::WriteRenameNamedView(const QString& view, const QString& newName, bool byName)
{
    const int number = JavaScriptCounters::OfProcess().WriteRenameNamedView++;
    return byName ? Statement("%1var sheetNamedView%3_rename = mViewManager.GetSheetNamedView(\"%4\");%2"
                              "%1var kvNamedViewClass_%3_rename = sheetNamedView%3_rename.GetNamedView();%2"
                              "%1kvNamedViewClass_%3_rename.Rename(\"%5\");%2%2",
                              number, view, newName)
                  : Statement("%1var kvNamedViewClass_%3_rename = %4.GetNamedView();%2"
                              "%1kvNamedViewClass_%3_rename.Rename(\"%5\");%2%2",
                              number, view, newName);
}

QString CZtConverterKVAPIJavaScript::WriteSetNamedViewClass(const QString& view, const QString& viewClass, bool byName)
{
    const int number = JavaScriptCounters::OfProcess().WriteSetNamedViewClass++;
    return byName ? Statement("%1var sheetNamedView%3_class = mViewManager.GetSheetNamedView(\"%4\");%2"
                              "%1var kvNamedViewClass_%3_class = sheetNamedView%3_class.GetNamedView();%2"
                              "%1kvNamedViewClass_%3_class.put_Class(\"%5\");%2%2",
                              number, view, viewClass)
                  : Statement("%1var kvNamedViewClass%3_class = %4.GetNamedView();%2"
                              "%1kvNamedViewClass%3_class.put_Class(\"%5\");%2%2",
                              number, view, viewClass);
}

QString CZtConverterKVAPIJavaScript::WriteSetNamedViewWindow(const QString& view, const OdGePoint3d& corner1,
                                                             const OdGePoint3d& corner2, bool byName)
{
    const int number = JavaScriptCounters::OfProcess().WriteSetNamedViewWindow++;
    QString text = Statement("%1var kvMathUtility%3 = mApp.GetMathUtility();%2"
                             "%1var FirstCorner_%3_1 = kvMathUtility%3.CreatePoint(%4, %5, %6);%2"
                             "%1var OppositeCorner_%3_1 = kvMathUtility%3.CreatePoint(%7, %8, %9);%2",
                             number, corner1, corner2);
    text += byName ? Statement("%1var sheetNamedView%3_Pt = mViewManager.GetSheetNamedView(\"%4\");%2"
                               "%1var kvNamedViewClass_%3_Pt = sheetNamedView%3_Pt.GetNamedView();%2"
                               "%1kvNamedViewClass_%3_Pt.SetWindow(FirstCorner_%3_1, OppositeCorner_%3_1);%2%2",
                               number, view)
                   : Statement("%1var kvNamedView%3_Pt = %4.GetNamedView();%2"
                               "%1kvNamedView%3_Pt.SetWindow(FirstCorner_%3_1, OppositeCorner_%3_1);%2%2",
                               number, view);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteCreateNamedView(const QString& variable, const QString& name,
                                                                const QString& viewClass, const OdGePoint3d& corner1,
                                                                const OdGePoint3d& corner2, bool isSheet)
{
    const int number = JavaScriptCounters::OfProcess().WriteCreateNamedView++;
    QString text = Line("%1var kvCorner_1_%2 = new Array(%3,%4,%5);\n", number, corner1);
    text += Line("%1var kvCorner_2_%2 = new Array(%3,%4,%5);\n", number, corner2);
    text += kv::LineEnd();
    // A view of a sheet goes into a local and never into the variable; the format's.
    text += isSheet ? Line("%1var kvSheetNamedView%2 = mViewManager.CreateSheetNamedView(\"%3\", \"%4\", "
                           "kvCorner_1_%2, kvCorner_2_%2).SheetNamedView;\n\n",
                           number, name, viewClass)
                    : Line("%1var %5 = mViewManager.CreateModelNamedView(\"%3\", \"%4\", kvCorner_1_%2, "
                           "kvCorner_2_%2).ModelNamedView;\n\n",
                           number, name, viewClass, variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::BackgroundHead(std::int32_t number, const QString& variable)
{
    return Statement("%1var kvNamedView%3_bg = %4.GetNamedView();%2", number, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetSolidBackground(const QString& variable, const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += Statement("%1var kvSolidBackground%3 = kvNamedView%3_bg.CreateSolidBackground(%4);%2%2", number,
                      kv::ScriptColor(color));
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetGradientBackground(const QString& variable, bool flag,
                                                                      const OdCmColor& color1, const OdCmColor& color2,
                                                                      const OdCmColor& color3, double angle)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text += Statement("%1var kvGradientBackground%3 = kvNamedView%3_bg.CreateGradientBackground(%4, %5, %6, %7, "
                      "%8);%2%2",
                      number, FlagWord(flag), kv::ScriptColor(color1), kv::ScriptColor(color2), kv::ScriptColor(color3),
                      Fixed{angle});
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetImageBackground(const QString& variable, const QString& file,
                                                                   const QString& mode, double a, double b, double c,
                                                                   double d)
{
    const std::int32_t number = NextLocalNumber();
    QString text = BackgroundHead(number, variable);
    text +=
        Statement("%1var kvImageBackground%3 = kvNamedView%3_bg.CreateImageBackground(\"%4\", \"%5\", %6, %7, %8, "
                  "%9);%2%2",
                  number, file, kv::FormOfConstant(kv::EnumForm::Bare, mode), Fixed{a}, Fixed{b}, Fixed{c}, Fixed{d});
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetNamedProperty(const QString& word, const QString& value,
                                                                 bool isModel, const QString& sheet)
{
    if (isModel)
    {
        // The percent sign, which is no marker and stands in place of the indent, is the format's.
        return kv::FillChain(QStringLiteral("%mModel.put_%3( \"%4\" );%2"), kv::LineEnd(), word, value);
    }
    const std::int32_t number = NextLocalNumber();
    const QString head = Statement("%1var sheetItem%3 = mDoc.GetSheet(\"%4\");%2", number, sheet);
    return Statement("%3%1%4.put_%5(\"%6\");%2", head, kv::Fill("sheetItem%1", number), word, value);
}

QString CZtConverterKVAPIObjectJavaScript::WriteRemoveNamedView(const QString& name, bool isSheet)
{
    const std::int32_t number = JavaScriptCounters::OfProcess().WriteRemoveNamedView++;
    QString text;
    // A view of the model is named without quotes; the format's.
    text +=
        isSheet
            ? Line(
                  "%1var sheetNamedViewRemove_%3 = mViewManager.GetSheetNamedView(\"%2\");\n%1mViewManager.RemoveSheetNamedView(sheetNamedViewRemove_%3);\n",
                  name, number)
            : Line("%1mViewManager.RemoveModelNamedView(%2);\n", name);
    return text;
}
