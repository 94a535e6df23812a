// C++ API texts of tables; the logic stands in objects/tables.cpp.
#include "backends/cpp/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertTable(const QString& variable, const OdGePoint3d& position,
                                                     std::int32_t rows, std::int32_t columns, double rowHeight,
                                                     std::int32_t cellType, double columnWidth, bool hasTitle)
{
    return Statement(
        "%1kvSketchManager->InsertTable( %3, %4, %5, %6, %7, %8, (kvTableCellType_e)%9, %10, %11, &%12 );%2", position,
        rows, columns, Fixed{rowHeight}, cellType, Fixed{columnWidth}, FlagWord(hasTitle), variable);
}

QString CZtConverterKVAPIObjectCPP::WriteSetTableText(const QString& variable, std::int32_t row, std::int32_t column,
                                                      const QString& text)
{
    return Statement("%1%6->SetText( %3, %4, L\"%5\" );%2", row, column, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteSetRowHeight(const QString& variable, std::int32_t row, double height)
{
    return Statement("%1%5->SetRowHeightAt( %3, %4 );%2", row, Fixed{height}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertRow(const QString& variable, std::int32_t row, double height)
{
    return Statement("%1bool bRetVal;%2%1%5->InsertRow( %3, %4, &bRetVal );%2", row, Fixed{height}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteDeleteRow(const QString& variable, std::int32_t row)
{
    return Statement("%1bool bRetVal;%2%1%4->DeleteRow( %3, &bRetVal );%2", row, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteSetColumnWidth(const QString& variable, std::int32_t column, double width)
{
    return Statement("%1%5->SetColumnWidthAt( %3, %4 );%2", column, Fixed{width}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertColumn(const QString& variable, std::int32_t column, double width)
{
    return Statement("%1bool bRetVal;%2%1%5->InsertColumn( %3, %4, &bRetVal );%2", column, Fixed{width}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteDeleteColumn(const QString& variable, std::int32_t column)
{
    return Statement("%1bool bRetVal;%2%1%4->DeleteColumn( %3, &bRetVal );%2", column, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteScaleRowsOrColumns(const QString& variable, bool areRows, double factor)
{
    const std::int32_t number = NextLocalNumber();
    const kv::Indent outer = CurrentIndent();
    const kv::Indent inner{Counters().IndentLevel + 1};
    QString text = Line("%1double coef%4 = %2;%3", Fixed{factor}, kv::LineEnd(), number);
    if (areRows)
    {
        text +=
            Line("%1long lRowCount%4 = 0;%3%1%2->TotalRowCount( &lRowCount%4 );%3", variable, kv::LineEnd(), number);
        text += Line("%1for (long i = 0; i < lRowCount%3; ++i)%2%1{%2", kv::LineEnd(), number);
        text += kv::Fill("%1double height = 0.0;%3%1%2->GetRowHeight(i, &height);%3%1height *= coef%4;%3", inner,
                         variable, kv::LineEnd(), number);
        text += kv::Fill("%1%2->SetRowHeightAt(i, height);%3%4}%3", inner, variable, kv::LineEnd(), outer);
    }
    else
    {
        text += Line("%1long lColumnCount%4 = 0;%3%1%2->TotalColumnCount( &lColumnCount%4 );%3", variable,
                     kv::LineEnd(), number);
        text += Line("%1for (long i = 0; i < lColumnCount%3; ++i)%2%1{%2", kv::LineEnd(), number);
        text += kv::Fill("%1double width = 0.0;%3%1%2->GetColumnWidth(i, &width);%3%1width *= coef%4;%3", inner,
                         variable, kv::LineEnd(), number);
        text += kv::Fill("%1%2->SetColumnWidthAt(i, width);%3%4}%3", inner, variable, kv::LineEnd(), outer);
    }
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetTableStyle(const QString& variable, const QString& word,
                                                       const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1kvTableStyleManager_ptr kvTableStyleManager%3;%2"
                             "%1kvDoc->GetTableStyleManager( &kvTableStyleManager%3 );%2%2",
                             number);
    text += Statement("%1kvTableStyle_ptr tableStyle%4;%2"
                      "%1kvTableStyleManager%4->GetTableStyle( L\"%3\", &tableStyle%4 );%2%2",
                      name, number);
    text += Statement("%1%3->put_%4( tableStyle%5 );%2", variable, word, number);
    return text;
}

QString CZtConverterKVAPIObjectCPP::WriteSetTableDirection(const QString& variable, bool ofStyle,
                                                           const QString& constant)
{
    const QString value = kv::FormOfConstant(kv::EnumForm::Bare, constant);
    return ofStyle ? Statement("%1%3->put_HeaderOrientation( %4 );%2", variable, value)
                   : Statement("%1%3->put_Direction( %4 );%2", variable, value);
}
