// VB.NET texts of file locations and of colours of the window; the logic stands in core/file_locations.cpp.
#include "backends/text/color_expression.h"
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

QString CZtConverterKVAPIVbNet::WriteGetInterfaceFiles(QString& variable)
{
    variable = kv::Fill("kvInterfaceFiles_%1", VbNetCounters::OfProcess().WriteGetInterfaceFiles++);
    return Statement("%1Dim %3 As Morvane.InterfaceFiles = kvApp.GetInterfaceFiles()%2", variable);
}

QString CZtConverterKVAPIVbNet::WriteGetSystemFiles(QString& variable)
{
    variable = kv::Fill("kvSystemFiles_%1", VbNetCounters::OfProcess().WriteGetSystemFiles++);
    return Statement("%1Dim %3 As Morvane.SystemFiles = kvApp.GetSystemFiles()%2", variable);
}

QString CZtConverterKVAPIVbNet::WriteGetDrawingSupportFiles(QString& variable)
{
    variable = kv::Fill("kvDrawingSupportFiles_%1", VbNetCounters::OfProcess().WriteGetDrawingSupportFiles++);
    return Statement("%1Dim %3 As Morvane.DrawingSupportFiles = kvApp.GetDrawingSupportFiles()%2", variable);
}

QString CZtConverterKVAPIVbNet::WriteStringArray(const QString& variable, const QString& property,
                                                 const QStringList& values)
{
    const int number = VbNetCounters::OfProcess().WriteStringArray++;
    QStringList names;
    QString lines;
    for (int i = 0; i < values.size(); ++i)
    {
        names += kv::Fill("s%1_%2", property, i);
        lines += Statement("%1Dim s%3_%4 As String = \"%5\"%2", property, i, values.at(i));
    }
    return Statement("%6%1Dim sArray%3_%4 As String() = New String() { %5 }%2"
                     "%1%7.%3 = sArray%3_%4%2",
                     property, number, names.join(QLatin1Char(',')), lines, variable);
}

QString CZtConverterKVAPIVbNet::WriteSetElementColor(const OdCmColor& color, std::int32_t element)
{
    // The pieces number their markers as parts of one text, but each is filled by itself.
    QString text = Statement("%1Dim appOption As Morvane.ApplicationOptions = kvApp.GetApplicationOptions()%2"
                             "%1Dim kvColor1 As Morvane.Color%2"
                             "%1Dim ElementOption As Morvane.kvElementColor_e%2"
                             "%1%2");
    text += kv::Fill("%3ElementOption = %5%4", CurrentIndent(), kv::LineEnd(), element);
    text += kv::Fill("%4kvColor1 = %6%5", CurrentIndent(), kv::LineEnd(), kv::ColorExpression(color));
    text += kv::Fill("%9appOption.SetElementColor(ElementOption, kvColor1)%10", CurrentIndent(), kv::LineEnd());
    return text;
}
