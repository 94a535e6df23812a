// C# texts of tables; the logic stands in objects/tables.cpp.
#include "backends/csharp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteInsertTable(const QString& variable, const OdGePoint3d& position,
                                                        std::int32_t rows, std::int32_t columns, double rowHeight,
                                                        std::int32_t cellType, double columnWidth, bool hasTitle)
{
    return Statement(
        "%1%12 = kvSketchManager.InsertTable( %3, %4, %5, %6, %7, %8, (kvTableCellType_e)%9, %10, %11 );%2", position,
        rows, columns, Fixed{rowHeight}, cellType, Fixed{columnWidth}, FlagWord(hasTitle), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetTableText(const QString& variable, std::int32_t row, std::int32_t column,
                                                         const QString& text)
{
    return Statement("%1%6.SetText( %3, %4, \"%5\" );%2", row, column, text, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetRowHeight(const QString& variable, std::int32_t row, double height)
{
    return Statement("%1%5.SetRowHeightAt( %3, %4 );%2", row, Fixed{height}, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertRow(const QString& variable, std::int32_t row, double height)
{
    return Statement("%1%5.InsertRow( %3, %4 );%2", row, Fixed{height}, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteDeleteRow(const QString& variable, std::int32_t row)
{
    return Statement("%1%4.DeleteRow( %3 );%2", row, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetColumnWidth(const QString& variable, std::int32_t column, double width)
{
    return Statement("%1%5.SetColumnWidthAt( %3, %4 );%2", column, Fixed{width}, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertColumn(const QString& variable, std::int32_t column, double width)
{
    return Statement("%1%5.InsertColumn( %3, %4 );%2", column, Fixed{width}, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteDeleteColumn(const QString& variable, std::int32_t column)
{
    return Statement("%1%4.DeleteColumn( %3 );%2", column, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteScaleRowsOrColumns(const QString& variable, bool areRows, double factor)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent outer = CurrentIndent();
    const kv::Indent inner{Counters().IndentLevel + 1};
    QString text = Line("%1double coef%4 = %2;%3", Fixed{factor}, kv::LineEnd(), number);
    if (areRows)
    {
        text += Line("%1int lRowCount%4 = %2.TotalRowCount();%3", variable, kv::LineEnd(), number);
        text += Line("%1for (int i = 0; i < lRowCount%3; ++i)%2%1{%2", kv::LineEnd(), number);
        text += kv::Fill("%1double height = 0.0;%3%1%2.GetRowHeight(i, out height);%3%1height *= coef%4;%3", inner,
                         variable, kv::LineEnd(), number);
        text += kv::Fill("%1%2.SetRowHeightAt(i, height);%3%4}%3", inner, variable, kv::LineEnd(), outer);
    }
    else
    {
        text += Line("%1int lColumnCount%4 = %2.TotalColumnCount();%3", variable, kv::LineEnd(), number);
        text += Line("%1for (int i = 0; i < lColumnCount%3; ++i)%2%1{%2", kv::LineEnd(), number);
        text += kv::Fill("%1double width = 0.0;%3%1%2.GetColumnWidth(i, out width);%3%1width *= coef%4;%3", inner,
                         variable, kv::LineEnd(), number);
        text += kv::Fill("%1%2.SetColumnWidthAt(i, width);%3%4}%3", inner, variable, kv::LineEnd(), outer);
    }
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteSetTableStyle(const QString& variable, const QString& word,
                                                          const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1TableStyleManager kvTableStyleManager%3 = kvDoc.GetTableStyleManager();%2%2", number);
    text += Statement("%1TableStyle tableStyle%4 = kvTableStyleManager%4.GetTableStyle( \"%3\" );%2%2", name, number);
    text += Statement("%1%3.%4 = tableStyle%5;%2", variable, word, number);
    return text;
}

QString CZtConverterKVAPIObjectCSharp::WriteSetTableDirection(const QString& variable, bool ofStyle,
                                                              const QString& constant)
{
    const QString value = kv::FormOfConstant(kv::EnumForm::Qualified, constant);
    return ofStyle ? Statement("%1%3.HeaderOrientation = %4;%2", variable, value)
                   : Statement("%1%3.Direction = %4;%2", variable, value);
}
