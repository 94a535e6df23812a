// VBA texts of file locations and of colours of the window; the logic stands in core/file_locations.cpp.
#include "backends/text/color_expression.h"
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"

QString CZtConverterKVAPIVba::WriteGetInterfaceFiles(QString& variable)
{
    variable = kv::Fill("kvInterfaceFiles_%1", VbaCounters::OfProcess().WriteGetInterfaceFiles++);
    return Statement("%1Dim %3 As Morvane.InterfaceFiles%2"
                     "%1Set %3 = kvApp.GetInterfaceFiles()%2",
                     variable);
}

QString CZtConverterKVAPIVba::WriteGetSystemFiles(QString& variable)
{
    variable = kv::Fill("kvSystemFiles_%1", VbaCounters::OfProcess().WriteGetSystemFiles++);
    return Statement("%1Dim %3 As Morvane.SystemFiles%2"
                     "%1Set %3 = kvApp.GetSystemFiles()%2",
                     variable);
}

QString CZtConverterKVAPIVba::WriteGetDrawingSupportFiles(QString& variable)
{
    variable = kv::Fill("kvDrawingSupportFiles_%1", VbaCounters::OfProcess().WriteGetDrawingSupportFiles++);
    return Statement("%1Dim %3 As Morvane.DrawingSupportFiles%2"
                     "%1Set %3 = kvApp.GetDrawingSupportFiles()%2",
                     variable);
}

QString CZtConverterKVAPIVba::WriteStringArray(const QString& variable, const QString& property,
                                               const QStringList& values)
{
    const int number = VbaCounters::OfProcess().WriteStringArray++;
    QString lines = Statement("%1Dim sArray%3_%4(%5) As String%2", property, number, values.size() - 1);
    for (int i = 0; i < values.size(); ++i)
    {
        lines += Statement("%1sArray%3_%4(%5) = \"%6\"%2", property, number, i, values.at(i));
    }
    return Statement("%5%1%6.%3 = sArray%3_%4%2", property, number, lines, variable);
}

QString CZtConverterKVAPIVba::WriteSetElementColor(const OdCmColor& color, std::int32_t element)
{
    // The pieces number their markers as parts of one text, but each is filled by itself.
    QString text = Statement("%1Dim appOption As Morvane.ApplicationOptions%2"
                             "%1Set appOption = kvApp.GetApplicationOptions()%2"
                             "%1Dim kvColor1 As Morvane.Color%2"
                             "%1Dim ElementOption As Morvane.kvElementColor_e%2"
                             "%1%2");
    text += kv::Fill("%3ElementOption = %5%4", CurrentIndent(), kv::LineEnd(), element);
    text += kv::Fill("%4Set kvColor1 = %6%5", CurrentIndent(), kv::LineEnd(), kv::ColorExpression(color));
    text += kv::Fill("%9appOption.SetElementColor ElementOption, kvColor1%10", CurrentIndent(), kv::LineEnd());
    return text;
}
