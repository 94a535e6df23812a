// VBA texts of table styles; the logic stands in objects/table_styles.cpp.
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVba::WriteCreateTableStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim result%3 As Morvane.kvCreateObjectResult_e%2"
                     "%1Dim tableStyleName%4 As String%2"
                     "%1tableStyleName%4 = \"%5\"%2"
                     "%1Set %6 = kvDoc.GetTableStyleManager().CreateTableStyle( tableStyleName%4, result%3 )%2",
                     number, number, name, variable);
}

QString CZtConverterKVAPIObjectVba::WriteSetCellAlignment(const QString& variable, std::int32_t cellType,
                                                          const QString& alignment)
{
    return Line("%1 %2.SetAlignment Morvane.kvTableCellType_e.%3, Morvane.%4%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Qualified, kv::EnumKind::TableCellAlignment, alignment), kv::LineEnd());
}

QString CZtConverterKVAPIObjectVba::WriteSetCellColor(const QString& variable, const QString& word,
                                                      std::int32_t cellType, const OdCmColor& color)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("backgroundColor")
               ? Line("%1 %2.SetBackgroundColor Morvane.kvTableCellType_e.%3, %4%5", variable, type,
                      kv::ColorExpression(color), kv::LineEnd())
               : Line("%1 %2.SetTextColor Morvane.kvTableCellType_e.%3, %4%5", variable, type,
                      kv::ColorExpression(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectVba::WriteSetCellTextHeight(const QString& variable, std::int32_t cellType,
                                                           double height)
{
    return Line("%1 %2.SetTextHeight Morvane.kvTableCellType_e.%3, %4%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), Fixed{height},
                kv::LineEnd());
}

QString CZtConverterKVAPIObjectVba::WriteSetCellTextStyle(const QString& variable, std::int32_t cellType,
                                                          const QString& style)
{
    return Line("%1 %2.SetTextStyle Morvane.kvTableCellType_e.%3, \"%4\"%5", variable,
                kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType), style, kv::LineEnd());
}

QString CZtConverterKVAPIObjectVba::WriteSetCellMargin(const QString& variable, const QString& word,
                                                       std::int32_t cellType, double margin)
{
    const QString type = kv::EnumConstant(kv::EnumForm::Bare, kv::EnumKind::TableCellType, cellType);
    return word == QLatin1String("horzCellMargin")
               ? Line("%1 %2.SetHorizontalMargin Morvane.kvTableCellType_e.%3, %4%5", variable, type, Fixed{margin},
                      kv::LineEnd())
               : Line("%1 %2.SetVerticalMargin Morvane.kvTableCellType_e.%3, %4%5", variable, type, Fixed{margin},
                      kv::LineEnd());
}

QString CZtConverterKVAPIObjectVba::WriteSetBordersColor(const QString& variable, std::int32_t cellType,
                                                         std::int32_t lineType, const OdCmColor& color)
{
    return Line("%1 %2.SetBordersColor %3, %4, %5%6", variable,
                kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::TableBordersLineType, lineType),
                kv::ColorExpression(color), kv::LineEnd());
}

QString CZtConverterKVAPIObjectVba::WriteSetBordersLineWeight(const QString& variable, std::int32_t cellType,
                                                              std::int32_t lineType, std::int32_t weight)
{
    return Line("%1 %2.SetBordersLineWeight %3, %4, %5%6", variable,
                kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::TableCellType, cellType),
                kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::TableBordersLineType, lineType),
                kv::EnumConstant(kv::EnumForm::Morvane, kv::EnumKind::LineWeight, weight), kv::LineEnd());
}
