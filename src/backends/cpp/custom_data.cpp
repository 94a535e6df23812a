// C++ API texts of extended data; the logic stands in objects/blocks.cpp.
#include "backends/cpp/object.h"

QString CZtConverterKVAPIObjectCPP::WriteCustomData(const QString& variable, const CustomData& data)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement(
        "%1kvCustomData_ptr customData%3;%2%1long count%3 = 0;%2%1%4->GetCustomData( L\"%5\", &customData%3 );%2%1customData%3->GetDataCount( &count%3 );%2",
        number, variable, data.application);
    int index = 0;
    for (const auto& [code, value] : data.items)
    {
        if (const auto* point = std::get_if<OdGePoint3d>(&value))
        {
            text += Statement("%1customData%3->InsertPointData( count%3 + %4, %5, %6, %7, %8 );%2", number, index, code,
                              kv::GeneralPoint{*point});
        }
        else if (const auto* real = std::get_if<double>(&value))
        {
            text += Statement("%1customData%3->InsertDoubleData( count%3 + %4, %5, %6 );%2", number, index, code,
                              kv::General{*real});
        }
        else if (const auto* integer = std::get_if<std::int32_t>(&value))
        {
            text += Statement("%1customData%3->InsertIntegerData( count%3 + %4, %5, %6 );%2", number, index, code,
                              *integer);
        }
        else
        {
            text += Statement("%1customData%3->InsertStringData( count%3 + %4, %5, L\"%6\" );%2", number, index, code,
                              std::get<QString>(value));
        }
        ++index;
    }
    return text;
}
