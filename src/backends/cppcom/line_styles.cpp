// C++ COM texts of line styles and rich line styles; the logic stands in objects/line_styles.cpp.
#include "backends/cppcom/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteLoadLineStyle(const QString& variable, const QString& name,
                                                          const QString& file)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1ILineStyleManagerPtr LineStyleManager%3 = kvDoc->GetLineStyleManager();%2%1%6 = LineStyleManager%3->LoadLineStyle( L\"%4\",L\"%5\" , &result%3);%2",
        number, name, file, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateRichLineStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1BSTR richLineStyleName%4 = L\"%5\";%2%1%6 = kvDoc->GetRichLineStyleManager()->CreateRichLineStyle( richLineStyleName%4, &result%3 );%2",
        number, number, name, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetRichLine(const QString& variable, std::int32_t index, double offset,
                                                        std::int32_t color, const QString& style)
{
    return Statement(
        "%1%3->DeleteLine(%4);%2%1%3->AddLine(%5, pConnection->m_KvApp->GetColorByIndex( %6 ), L\"%7\");%2", variable,
        index, Fixed{offset}, color, style);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetRichLineOffset(const QString& variable, std::int32_t index,
                                                              double offset)
{
    return Statement("%1%3->SetLineOffset(%4, %5);%2", variable, index, Fixed{offset});
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetRichLineColor(const QString& variable, std::int32_t index,
                                                             std::int32_t color)
{
    return Statement("%1%3->SetLineColor(%4, pConnection->m_KvApp->GetColorByIndex( %5 ) );%2", variable, index, color);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetRichLineStyle(const QString& variable, std::int32_t index,
                                                             const QString& style)
{
    return Statement("%1%3->SetLineStyle(%4, L\"%5\");%2", variable, index, style);
}
