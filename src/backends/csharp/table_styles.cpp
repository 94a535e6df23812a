// C# texts of table styles; the logic stands in objects/table_styles.cpp.
#include "backends/csharp/object.h"
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteCreateTableStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvCreateObjectResult_e result%3;%2"
                     "%1string tableStyleName%4 = \"%5\";%2"
                     "%1%6 = kvDoc.GetTableStyleManager().CreateTableStyle( tableStyleName%4, out result%3 );%2",
                     number, number, name, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetCellAlignment(const QString& variable, std::int32_t cellType,
                                                             const QString& alignment)
{
    return Line("%1 %2.SetAlignment(kvTableCellType_e.%3,%4);%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableCellAlignment, alignment), kv::LineEnd());
}

QString CZtConverterKVAPIObjectCSharp::WriteSetCellColor(const QString& variable, const QString& word,
                                                         std::int32_t cellType, const OdCmColor& color)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("backgroundColor") ? Line("%1 %2.SetBackgroundColor(kvTableCellType_e.%3,%4);%5",
                                                           variable, type, kv::ColorExpression(color), kv::LineEnd())
                                                    : Line("%1 %2.SetTextColor(kvTableCellType_e.%3,%4);%5", variable,
                                                           type, kv::ColorExpression(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectCSharp::WriteSetCellTextHeight(const QString& variable, std::int32_t cellType,
                                                              double height)
{
    return Line("%1 %2.SetTextHeight(kvTableCellType_e.%3,%4);%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), Fixed{height},
                kv::LineEnd());
}

QString CZtConverterKVAPIObjectCSharp::WriteSetCellTextStyle(const QString& variable, std::int32_t cellType,
                                                             const QString& style)
{
    return Line("%1 %2.SetTextStyle(kvTableCellType_e.%3,\"%4\");%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), style, kv::LineEnd());
}

QString CZtConverterKVAPIObjectCSharp::WriteSetCellMargin(const QString& variable, const QString& word,
                                                          std::int32_t cellType, double margin)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("horzCellMargin") ? Line("%1 %2.SetHorizontalMargin(kvTableCellType_e.%3,%4);%5",
                                                          variable, type, Fixed{margin}, kv::LineEnd())
                                                   : Line("%1 %2.SetVerticalMargin(kvTableCellType_e.%3,%4);%5",
                                                          variable, type, Fixed{margin}, kv::LineEnd());
}

QString CZtConverterKVAPIObjectCSharp::WriteSetBordersColor(const QString& variable, std::int32_t cellType,
                                                            std::int32_t lineType, const OdCmColor& color)
{
    return Line("%1 %2.SetBordersColor(%3,%4,%5);%6", variable,
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableBordersLineType, lineType),
                kv::ColorExpression(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectCSharp::WriteSetBordersLineWeight(const QString& variable, std::int32_t cellType,
                                                                 std::int32_t lineType, std::int32_t weight)
{
    return Line("%1 %2.SetBordersLineWeight(%3,%4,%5);%6", variable,
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableBordersLineType, lineType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::LineWeight, weight), kv::LineEnd());
}
