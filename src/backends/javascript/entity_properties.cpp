// JavaScript texts of the properties that all entities share; the logic stands in objects/entity_properties.cpp.
#include "backends/javascript/counters.h"
#include "backends/javascript/object.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteSetBoolProperty(const QString& variable, const QString& word,
                                                                bool value)
{
    return Statement("%1%3.put_%4(%5);%2", variable, word, FlagWord(value));
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetDoubleProperty(const QString& variable, const QString& word,
                                                                  double value)
{
    return Statement("%1%3.put_%4(%5);%2", variable, word, Fixed{value});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetStringProperty(const QString& variable, const QString& word,
                                                                  const QString& text, bool quoted)
{
    return quoted ? Statement("%1%3.put_%4(\"%5\");%2", variable, word, text)
                  : Statement("%1%3.put_%4(%5);%2", variable, word, text);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetColorProperty(const QString& variable, const QString& word,
                                                                 const OdCmColor& color)
{
    // A colour needs no local here, but takes its number as in every language.
    ++Counters().LocalNameSequence;
    if (color.colorMethod() != OdCmColor::Method::ByColor)
    {
        return Statement("%1%3.put_%4( mApp.GetColorByIndex( %5 ) );%2", variable, word, color.colorIndex());
    }
    return Statement("%1%3.put_%4( mApp.GetRGBColor(%5 ,%6 ,%7) );%2", variable, word, int{color.red()},
                     int{color.green()}, int{color.blue()});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetLayerProperty(const QString& variable, const QString& layer)
{
    return Statement("%1%3.put_Layer(\"%4\");%2", variable, layer);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetLineStyleProperty(const QString& variable, const QString& word,
                                                                     const QString& lineStyle)
{
    return Statement("%1%3.put_%4(\"%5\");%2", variable, word, lineStyle);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetLineWeightProperty(const QString& variable, const QString& word,
                                                                      std::int32_t weight)
{
    return Statement("%1%3.put_%4(\"%5\");%2", variable, word, kv::EntityLineWeight(kv::EnumForm::Bare, weight));
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetTransparency(const QString& variable,
                                                                OdCmTransparency::Method method, std::int32_t percent)
{
    const int number = JavaScriptCounters::OfProcess().WriteSetTransparency++;
    QString setting;
    switch (method)
    {
    case OdCmTransparency::Method::ByLayer:
        setting = kv::Fill("kvTransparency%1.SetByLayer();", number);
        break;
    case OdCmTransparency::Method::ByBlock:
        setting = kv::Fill("kvTransparency%1.SetByBlock();", number);
        break;
    case OdCmTransparency::Method::ByAlpha:
        setting = kv::Fill("kvTransparency%1.SetByAlpha(%2);", number, percent);
        break;
    }
    return Statement("%1var kvTransparency%3 = %4.get_Transparency();%2"
                     "%1%5%2"
                     "%1%4.put_Transparency(kvTransparency%3);%2",
                     number, variable, setting);
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetHyperLink(const QString& variable, const HyperLink& link)
{
    const int number = JavaScriptCounters::OfProcess().WriteSetHyperLink++;
    QString text = Line("%1var hyperLink%3 = %2.GetHyperLink();\n", variable, number);
    text += Line("%1hyperLink%2.put_Description(\"%3\");\n", number, link.description);
    switch (link.kind)
    {
    case HyperLink::Kind::PlaceInThisDrawing:
        text += Line("%1hyperLink%2.SetPlaceInThisDrawing(\"%3\");", number, link.target);
        break;
    case HyperLink::Kind::FileOrWebPage:
        text += Line("%1hyperLink%2.SetFileOrWebPage(\"%3\", \"%3\");", number, link.target);
        break;
    case HyperLink::Kind::EmailAddress:
        text += Line("%1hyperLink%2.SetEmailAddress(\"%3\", \"%4\");", number, link.target, link.subject);
        break;
    }
    text += kv::LineEnd();
    text += Line("%1%2.SetHyperLink(hyperLink%3);\n", variable, number);
    return text;
}
