// JavaScript texts of file locations and of colours of the window; the logic stands in core/file_locations.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"
#include "core/escape.h"

QString CZtConverterKVAPIJavaScript::WriteGetInterfaceFiles(QString& variable)
{
    variable = kv::Fill("kvInterfaceFiles_%1", JavaScriptCounters::OfProcess().WriteGetInterfaceFiles++);
    return Statement("%1var %3 = mApp.GetInterfaceFiles();%2", variable);
}

QString CZtConverterKVAPIJavaScript::WriteGetSystemFiles(QString& variable)
{
    variable = kv::Fill("kvSystemFiles_%1", JavaScriptCounters::OfProcess().WriteGetSystemFiles++);
    return Statement("%1var %3 = mApp.GetSystemFiles();%2", variable);
}

QString CZtConverterKVAPIJavaScript::WriteGetDrawingSupportFiles(QString& variable)
{
    variable = kv::Fill("kvDrawingSupportFiles_%1", JavaScriptCounters::OfProcess().WriteGetDrawingSupportFiles++);
    return Statement("%1var %3 = mApp.GetDrawingSupportFiles();%2", variable);
}

QString CZtConverterKVAPIJavaScript::WriteStringArray(const QString& variable, const QString& property,
                                                      const QStringList& values)
{
    // An element names the array by its index, the head and the last line by the counter; the format's.
    const int number = JavaScriptCounters::OfProcess().WriteStringArray++;
    QString lines = Statement("%1var sArray%3_%4 = new Array( %5 );%2", property, number, values.size());
    for (int i = 0; i < values.size(); ++i)
    {
        lines += Statement("%1var s%3_%4 = \"%5\";%2"
                           "%1sArray%3_%4[%4] = s%3_%4;%2",
                           property, i, EscapeBackslashes(values.at(i)));
    }
    return Statement("%5%1%6.put_%3( sArray%3_%4 );%2", property, number, lines, variable);
}

QString CZtConverterKVAPIJavaScript::WriteSetElementColor(const OdCmColor& color, std::int32_t element)
{
    // The pieces number their markers as parts of one text, but each is filled by itself. The cast and "kvApp" are the
    // format's.
    QString text = Statement("%1var appOption = mApp.GetApplicationOptions();%2"
                             "%1var kvColor1;%2"
                             "%1var ElementOption;%2"
                             "%1%2");
    text += kv::Fill("%3ElementOption = (kvElementColor_e)%5;%4", CurrentIndent(), kv::LineEnd(), element);
    text += color.colorMethod() != OdCmColor::Method::ByColor
                ? kv::Fill("%4kvColor1 = kvApp.GetColorByIndex( %6 );%5", CurrentIndent(), kv::LineEnd(),
                           color.colorIndex())
                : kv::Fill("%4kvColor1 = kvApp.GetRGBColor( %6, %7, %8 );%5", CurrentIndent(), kv::LineEnd(),
                           int{color.red()}, int{color.green()}, int{color.blue()});
    text += kv::Fill("%9appOption.SetElementColor(ElementOption, kvColor1);%10", CurrentIndent(), kv::LineEnd());
    return text;
}
