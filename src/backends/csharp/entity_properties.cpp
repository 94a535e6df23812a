// C# texts of the properties that all entities share; the logic stands in objects/entity_properties.cpp.
#include "backends/csharp/counters.h"
#include "backends/csharp/object.h"
#include "backends/text/color_expression.h"
#include "backends/text/enumerations.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteSetBoolProperty(const QString& variable, const QString& word, bool value)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, FlagWord(value));
}

QString CZtConverterKVAPIObjectCSharp::WriteSetDoubleProperty(const QString& variable, const QString& word,
                                                              double value)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, Fixed{value});
}

QString CZtConverterKVAPIObjectCSharp::WriteSetStringProperty(const QString& variable, const QString& word,
                                                              const QString& text, bool quoted)
{
    return quoted ? Statement("%1%3.%4 = \"%5\";%2", variable, word, text)
                  : Statement("%1%3.%4 = %5;%2", variable, word, text);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetColorProperty(const QString& variable, const QString& word,
                                                             const OdCmColor& color)
{
    // The color takes a number in every language, though it needs no local here.
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.%4 = %5;%2", variable, word, kv::ColorExpression(color));
}

QString CZtConverterKVAPIObjectCSharp::WriteSetLayerProperty(const QString& variable, const QString& layer)
{
    return Statement("%1%3.Layer = \"%4\";%2", variable, layer);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetLineStyleProperty(const QString& variable, const QString& word,
                                                                 const QString& lineStyle)
{
    return Statement("%1%3.%4 = \"%5\";%2", variable, word, lineStyle);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetLineWeightProperty(const QString& variable, const QString& word,
                                                                  std::int32_t weight)
{
    return Statement("%1%3.%4 = %5;%2", variable, word, kv::EntityLineWeight(kv::EnumForm::Qualified, weight));
}

QString CZtConverterKVAPIObjectCSharp::WriteSetTransparency(const QString& variable, OdCmTransparency::Method method,
                                                            std::int32_t percent)
{
    const int number = CSharpCounters::OfProcess().WriteSetTransparency++;
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
        setting = kv::Fill("kvTransparency%1.SetByAlpha( %2 );", number, percent);
        break;
    }
    return Statement("%1Transparency kvTransparency%3 = %4.Transparency;%2"
                     "%1%5%2"
                     "%1%4.Transparency = kvTransparency%3;%2",
                     number, variable, setting);
}

QString CZtConverterKVAPIObjectCSharp::WriteSetHyperLink(const QString& variable, const HyperLink& link)
{
    const int number = CSharpCounters::OfProcess().WriteSetHyperLink++;
    QString text = Line("%1HyperLink hyperLink%3 = %2.GetHyperLink();\n", variable, number);
    text += Line("%1hyperLink%2.Description = \"%3\";\n", number, link.description);
    switch (link.kind)
    {
    case HyperLink::Kind::PlaceInThisDrawing:
        text += Line("%1hyperLink%2.SetPlaceInThisDrawing( \"%3\");", number, link.target);
        break;
    case HyperLink::Kind::FileOrWebPage:
        text += Line("%1hyperLink%2.SetFileOrWebPage( \"%3\", \"%3\");", number, link.target);
        break;
    case HyperLink::Kind::EmailAddress:
        text += Line("%1hyperLink%2.SetEmailAddress( \"%3\", \"%4\");", number, link.target, link.subject);
        break;
    }
    text += kv::LineEnd();
    text += Line("%1%2.SetHyperLink(hyperLink%3);\n", variable, number);
    return text;
}
