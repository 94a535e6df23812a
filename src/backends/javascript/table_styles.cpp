// JavaScript texts of table styles; the logic stands in objects/table_styles.cpp.
#include "backends/javascript/color_expression.h"
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteCreateTableStyle(const QString& variable, const QString& name)
{
    ++Counters().LocalNameSequence;
    QString text = Statement("%1var tablestylemgr = kvDoc.GetTableStyleManager();%2");
    text += Statement("%1var %4 = tablestylemgr.CreateTableStyle(\"%3\").TableStyle;%2", name, variable);
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetCellAlignment(const QString& variable, std::int32_t cellType,
                                                                 const QString& alignment)
{
    return Line("%1 %2.SetAlignment(%3,\"%4\");%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellAlignment, alignment), kv::LineEnd());
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetCellColor(const QString& variable, const QString& word,
                                                             std::int32_t cellType, const OdCmColor& color)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("backgroundColor")
               ? Line("%1 %2.SetBackgroundColor(%3,%4);%5", variable, type, kv::ScriptColor(color), kv::LineEnd())
               : Line("%1 %2.SetTextColor(%3,%4);%5", variable, type, kv::ScriptColor(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetCellTextHeight(const QString& variable, std::int32_t cellType,
                                                                  double height)
{
    return Line("%1 %2.SetTextHeight(%3,%4);%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), Fixed{height},
                kv::LineEnd());
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetCellMargin(const QString& variable, const QString& word,
                                                              std::int32_t cellType, double margin)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("horzCellMargin")
               ? Line("%1 %2.SetHorizontalMargin(%3,%4);%5", variable, type, Fixed{margin}, kv::LineEnd())
               : Line("%1 %2.SetVerticalMargin(%3,%4);%5", variable, type, Fixed{margin}, kv::LineEnd());
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetBordersColor(const QString& variable, std::int32_t cellType,
                                                                std::int32_t lineType, const OdCmColor& color)
{
    return Line("%1 %2.SetBordersColor(%3,%4,%5);%6", variable,
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableBordersLineType, lineType),
                kv::ScriptColor(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetBordersLineWeight(const QString& variable, std::int32_t cellType,
                                                                     std::int32_t lineType, std::int32_t weight)
{
    return Line("%1 %2.SetBordersLineWeight(%3,%4,\"%5\");%6", variable,
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableBordersLineType, lineType),
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::LineWeight, weight), kv::LineEnd());
}
