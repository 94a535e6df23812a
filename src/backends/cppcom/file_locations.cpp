// C++ COM texts of file locations and of colours of the window; the logic stands in core/file_locations.cpp.
#include "backends/cppcom/color_expression.h"
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "core/escape.h"

QString CZtConverterKVAPICPPCOM::WriteGetInterfaceFiles(QString& variable)
{
    variable = kv::Fill("kvInterfaceFiles_%1", ComCounters::OfProcess().WriteGetInterfaceFiles++);
    return Statement("%1IInterfaceFilesPtr %3 = pConnection->m_KvApp->GetInterfaceFiles();%2", variable);
}

QString CZtConverterKVAPICPPCOM::WriteGetSystemFiles(QString& variable)
{
    variable = kv::Fill("kvSystemFiles_%1", ComCounters::OfProcess().WriteGetSystemFiles++);
    return Statement("%1ISystemFilesPtr %3 = pConnection->m_KvApp->GetSystemFiles();%2", variable);
}

QString CZtConverterKVAPICPPCOM::WriteGetDrawingSupportFiles(QString& variable)
{
    variable = kv::Fill("kvDrawingSupportFiles_%1", ComCounters::OfProcess().WriteGetDrawingSupportFiles++);
    return Statement("%1IDrawingSupportFilesPtr %3 = pConnection->m_KvApp->GetDrawingSupportFiles();%2", variable);
}

QString CZtConverterKVAPICPPCOM::WriteStringArray(const QString& variable, const QString& property,
                                                  const QStringList& values)
{
    const int number = ComCounters::OfProcess().WriteStringArray++;
    QString lines = Statement("%1VARIANT sArray%3_%4;%2"
                              "%1sArray%3_%4.vt = ( VT_ARRAY | VT_BSTR );%2"
                              "%1sArray%3_%4.parray = SafeArrayCreateVector( VT_BSTR, 0, %5 );%2"
                              "%1long rg%3_%4 = -1;%2",
                              property, number, values.size());
    for (int i = 0; i < values.size(); ++i)
    {
        lines += Statement("%1rg%3_%4 = %5;%2"
                           "%1BSTR s%3_%5 = SysAllocString( L\"%6\");%2"
                           "%1SafeArrayPutElement( sArray%3_%4.parray, &rg%3_%4, s%3_%5 );%2",
                           property, number, i, EscapeBackslashes(values.at(i)));
    }
    return Statement("%5%1%6->put_%3( sArray%3_%4 );%2", property, number, lines, variable);
}

QString CZtConverterKVAPICPPCOM::WriteSetElementColor(const OdCmColor& color, std::int32_t element)
{
    // The pieces number their markers as parts of one text, but each is filled by itself.
    QString text = Statement("%1IApplicationOptionsPtr appOption = pConnection->m_KvApp->GetApplicationOptions();%2"
                             "%1IColorPtr kvColor1;%2"
                             "%1kvElementColor_e ElementOption;%2"
                             "%1%2");
    text += kv::Fill("%3ElementOption = (kvElementColor_e)%5;%4", CurrentIndent(), kv::LineEnd(), element);
    text += kv::Fill("%4kvColor1 = %6;%5", CurrentIndent(), kv::LineEnd(), ColorExpression(color));
    text += kv::Fill("%9appOption->SetElementColor(ElementOption, kvColor1);%10", CurrentIndent(), kv::LineEnd());
    return text;
}
