// C++ API texts of file locations and of colours of the window; the logic stands in core/file_locations.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "core/escape.h"

QString CZtConverterKVAPICPP::WriteGetInterfaceFiles(QString& variable)
{
    variable = kv::Fill("kvInterfaceFiles_%1", CppCounters::OfProcess().WriteGetInterfaceFiles++);
    return Statement("%1kvInterfaceFiles_ptr %3;%2"
                     "%1m_pKvApp->GetInterfaceFiles( &%3 );%2",
                     variable);
}

QString CZtConverterKVAPICPP::WriteGetSystemFiles(QString& variable)
{
    variable = kv::Fill("kvSystemFiles_%1", CppCounters::OfProcess().WriteGetSystemFiles++);
    return Statement("%1kvSystemFiles_ptr %3;%2"
                     "%1m_pKvApp->GetSystemFiles( &%3 );%2",
                     variable);
}

QString CZtConverterKVAPICPP::WriteGetDrawingSupportFiles(QString& variable)
{
    variable = kv::Fill("kvDrawingSupportFiles_%1", CppCounters::OfProcess().WriteGetDrawingSupportFiles++);
    return Statement("%1kvDrawingSupportFiles_ptr %3;%2"
                     "%1m_pKvApp->GetDrawingSupportFiles( &%3 );%2",
                     variable);
}

QString CZtConverterKVAPICPP::WriteStringArray(const QString& variable, const QString& property,
                                               const QStringList& values)
{
    const int number = CppCounters::OfProcess().WriteStringArray++;
    QString lines = Statement("%1kvStringArray sArray%3_%4;%2", property, number);
    for (const QString& value : values)
    {
        lines += Statement("%1sArray%3_%4.add( L\"%5\" );%2", property, number, EscapeBackslashes(value));
    }
    return Statement("%5%1%6->put_%3( sArray%3_%4 );%2", property, number, lines, variable);
}

QString CZtConverterKVAPICPP::WriteSetElementColor(const OdCmColor& color, std::int32_t element)
{
    // The pieces number their markers as parts of one text, but each is filled by itself.
    QString text = Statement("%1kvApplicationOptions_c* appOption;%2"
                             "%1m_pKvApp->GetApplicationOptions(&appOption);%2"
                             "%1kvColor_ptr kvColor1;%2"
                             "%1kvElementColor_e ElementOption;%2"
                             "%1%2");
    text += kv::Fill("%3ElementOption = (kvElementColor_e)%5;%4", CurrentIndent(), kv::LineEnd(), element);
    text += color.colorMethod() != OdCmColor::Method::ByColor
                ? kv::Fill("%4m_pKvApp->GetColorByIndex( %6, &kvColor1 );%5", CurrentIndent(), kv::LineEnd(),
                           color.colorIndex())
                : kv::Fill("%4m_pKvApp->GetRGBColor( %6, %7, %8, &kvColor1 );%5", CurrentIndent(), kv::LineEnd(),
                           int{color.red()}, int{color.green()}, int{color.blue()});
    text += kv::Fill("%9appOption->SetElementColor(ElementOption, kvColor1);%10", CurrentIndent(), kv::LineEnd());
    return text;
}
