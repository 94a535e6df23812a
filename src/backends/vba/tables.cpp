// VBA texts of tables; the logic stands in objects/tables.cpp.
#include "backends/text/enumerations.h"
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVba::WriteInsertTable(const QString& variable, const OdGePoint3d& position,
                                                     std::int32_t rows, std::int32_t columns, double rowHeight,
                                                     std::int32_t cellType, double columnWidth, bool hasTitle)
{
    return Statement("%1Set %12 = kvSketchManager.InsertTable(%3, %4, %5, %6, %7, %8, %9, %10, %11 )%2", position, rows,
                     columns, Fixed{rowHeight}, cellType, Fixed{columnWidth}, FlagWord(hasTitle), variable);
}

QString CZtConverterKVAPIObjectVba::WriteSetTableText(const QString& variable, std::int32_t row, std::int32_t column,
                                                      const QString& text)
{
    return Statement("%1%6.SetText %3, %4, \"%5\"%2", row, column, text, variable);
}

QString CZtConverterKVAPIObjectVba::WriteSetRowHeight(const QString& variable, std::int32_t row, double height)
{
    return Statement("%1%5.SetRowHeightAt %3, %4%2", row, Fixed{height}, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertRow(const QString& variable, std::int32_t row, double height)
{
    return Statement("%1%5.InsertRow %3, %4%2", row, Fixed{height}, variable);
}

QString CZtConverterKVAPIObjectVba::WriteDeleteRow(const QString& variable, std::int32_t row)
{
    return Statement("%1%4.DeleteRow %3%2", row, variable);
}

QString CZtConverterKVAPIObjectVba::WriteSetColumnWidth(const QString& variable, std::int32_t column, double width)
{
    return Statement("%1%5.SetColumnWidthAt %3, %4%2", column, Fixed{width}, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertColumn(const QString& variable, std::int32_t column, double width)
{
    return Statement("%1%5.InsertColumn %3, %4%2", column, Fixed{width}, variable);
}

QString CZtConverterKVAPIObjectVba::WriteDeleteColumn(const QString& variable, std::int32_t column)
{
    return Statement("%1%4.DeleteColumn %3%2", column, variable);
}

QString CZtConverterKVAPIObjectVba::WriteScaleRowsOrColumns(const QString& variable, bool areRows, double factor)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent outer = CurrentIndent();
    const kv::Indent inner{Counters().IndentLevel + 1};
    QString text = Line("%1Dim coef%4 As Double%3%1coef%4 = %2%3", Fixed{factor}, kv::LineEnd(), number);
    if (areRows)
    {
        text +=
            Line("%1Dim lRowCount%4 As Long%3%1lRowCount%4 = %2.TotalRowCount()%3", variable, kv::LineEnd(), number);
        text += Line("%1Dim i%3 As Long%2%1For i%3 = 0 To lRowCount%3 - 1%2", kv::LineEnd(), number);
        text += kv::Fill(
            "%1Dim height%4 As Double%3%1height%4 = 0.0%3%1%2.GetRowHeight i%4, height%4%3%1height%4 = height%4 * coef%4%3",
            inner, variable, kv::LineEnd(), number);
        text += kv::Fill("%1%2.SetRowHeightAt i%5, height%5%3%4Next%3", inner, variable, kv::LineEnd(), outer, number);
    }
    else
    {
        text += Line("%1Dim lColumnCount%4 As Long%3%1lColumnCount%4 = %2.TotalColumnCount()%3", variable,
                     kv::LineEnd(), number);
        text += Line("%1Dim i%3 As Long%2%1For i%3 = 0 To lColumnCount%3 - 1%2", kv::LineEnd(), number);
        text += kv::Fill(
            "%1Dim width%4 As Double%3%1width%4 = 0.0%3%1%2.GetColumnWidth i%4, width%4%3%1width%4 = width%4 * coef%4%3",
            inner, variable, kv::LineEnd(), number);
        text += kv::Fill("%1%2.SetColumnWidthAt i%5, width%5%3%4Next%3", inner, variable, kv::LineEnd(), outer, number);
    }
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetTableStyle(const QString& variable, const QString& word,
                                                       const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1Dim kvTableStyleManager%3 As Morvane.TableStyleManager%2"
                             "%1Set kvTableStyleManager%3 = kvDoc.GetTableStyleManager()%2%2",
                             number);
    text += Statement("%1Dim tableStyle%4 As Morvane.TableStyle%2"
                      "%1Set tableStyle%4 = kvTableStyleManager%4.GetTableStyle( \"%3\" )%2%2",
                      name, number);
    text += Statement("%1%3.%4 = tableStyle%5%2", variable, word, number);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetTableDirection(const QString& variable, bool ofStyle,
                                                           const QString& constant)
{
    const QString value = kv::FormOfConstant(kv::EnumForm::Morvane, constant);
    return ofStyle ? Statement("%1%3.HeaderOrientation = %4%2", variable, value)
                   : Statement("%1%3.Direction = %4%2", variable, value);
}
