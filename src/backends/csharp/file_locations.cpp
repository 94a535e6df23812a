// C# texts of file locations and of colours of the window; the logic stands in core/file_locations.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "core/escape.h"

QString CZtConverterKVAPICSharp::WriteGetInterfaceFiles(QString& variable)
{
    variable = kv::Fill("kvInterfaceFiles_%1", CSharpCounters::OfProcess().WriteGetInterfaceFiles++);
    return Statement("%1InterfaceFiles %3 = kvApp.GetInterfaceFiles();%2", variable);
}

QString CZtConverterKVAPICSharp::WriteGetSystemFiles(QString& variable)
{
    variable = kv::Fill("kvSystemFiles_%1", CSharpCounters::OfProcess().WriteGetSystemFiles++);
    return Statement("%1SystemFiles %3 = kvApp.GetSystemFiles();%2", variable);
}

QString CZtConverterKVAPICSharp::WriteGetDrawingSupportFiles(QString& variable)
{
    variable = kv::Fill("kvDrawingSupportFiles_%1", CSharpCounters::OfProcess().WriteGetDrawingSupportFiles++);
    return Statement("%1DrawingSupportFiles %3 = kvApp.GetDrawingSupportFiles();%2", variable);
}

QString CZtConverterKVAPICSharp::WriteStringArray(const QString& variable, const QString& property,
                                                  const QStringList& values)
{
    const int number = CSharpCounters::OfProcess().WriteStringArray++;
    QString lines;
    QStringList names;
    for (int i = 0; i < values.size(); ++i)
    {
        lines += Statement("%1string s%3_%4 = \"%5\";%2", property, i, EscapeBackslashes(values.at(i)));
        names.append(kv::Fill("s%1_%2", property, i));
    }
    return Statement("%6%1string[] sArray%3_%4 = new string[] { %5 };%2"
                     "%1%7.%3 = sArray%3_%4;%2",
                     property, number, names.join(QLatin1Char(',')), lines, variable);
}

QString CZtConverterKVAPICSharp::WriteSetElementColor(const OdCmColor& color, std::int32_t element)
{
    // The pieces number their markers as parts of one text, but each is filled by itself.
    QString text = Statement("%1ApplicationOptions appOption = kvApp.GetApplicationOptions();%2"
                             "%1Color kvColor1;%2"
                             "%1kvElementColor_e ElementOption;%2"
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
