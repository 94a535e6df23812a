// JavaScript texts of line styles and rich line styles; the logic stands in objects/line_styles.cpp.
#include "backends/javascript/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteLoadLineStyle(const QString& variable, const QString& name,
                                                              const QString& file)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1var LineStyleManager%3 = mDoc.GetLineStyleManager();%2%1var %6 = LineStyleManager%3.LoadLineStyle(\"%4\",\"%5\").LineStyle;%2",
        number, name, file, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteCreateRichLineStyle(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1var richLineStyleName%3 = \"%4\";%2%1var %5 = mDoc.GetRichLineStyleManager().CreateRichLineStyle(richLineStyleName%3).RichLineStyle;%2",
        number, name, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetRichLine(const QString& variable, std::int32_t index, double offset,
                                                            std::int32_t color, const QString& style)
{
    return Statement("%1%3.DeleteLine(%4);%2%1%3.AddLine(%5, mApp.GetColorByIndex(%6), \"%7\");%2", variable, index,
                     Fixed{offset}, color, style);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetRichLineOffset(const QString& variable, std::int32_t index,
                                                                  double offset)
{
    return Statement("%1%3.SetLineOffset(%4, %5);%2", variable, index, Fixed{offset});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetRichLineColor(const QString& variable, std::int32_t index,
                                                                 std::int32_t color)
{
    return Statement("%1%3.SetLineColor(%4, mApp.GetColorByIndex(%5));%2", variable, index, color);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetRichLineStyle(const QString& variable, std::int32_t index,
                                                                 const QString& style)
{
    return Statement("%1%3.SetLineStyle(%4, \"%5\");%2", variable, index, style);
}
