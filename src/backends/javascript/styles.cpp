// JavaScript texts of text styles and shape files; the logic stands in objects/text_styles.cpp.
#include "backends/javascript/object.h"

QString CZtConverterKVAPIObjectJavaScript::WriteCreateTextStyle(const QString& variable, const QString& name,
                                                                const QString& searchName)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1var textStyleName%3 = \"%4\";%2%1var dumyStyleName%3 = \"%6\";%2%1var %5 = mDoc.GetTextStyleManager().GetTextStyle(dumyStyleName%3);%2%1if (null == %5)%2%1{%2%1    %5 = mDoc.GetTextStyleManager().CreateTextStyle(textStyleName%3).TextStyle;%2%1}%2",
        number, name, variable, searchName);
}

QString CZtConverterKVAPIObjectJavaScript::WriteRenameStyle(const QString& variable, const QString& name, bool activate)
{
    const std::int32_t number = NextLocalNumber();
    QString text = Statement("%1var styleName%3 = \"%4\";%2%1%5.Rename(styleName%3);%2", number, name, variable);
    if (activate)
    {
        text += Line("%1%2.Activate();%3", variable, kv::LineEnd());
    }
    return text;
}

QString CZtConverterKVAPIObjectJavaScript::WriteLoadShape(const QString& path)
{
    return Statement("%1var kvShapeManager = mDoc.GetShapeManager();%2%1kvShapeManager.Load(\"%3\");%2", path);
}
