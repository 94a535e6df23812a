// C++ COM texts of the properties that all entities share; the logic stands in objects/entity_properties.cpp.
#include "backends/cppcom/counters.h"
#include "backends/cppcom/object.h"
#include "backends/text/enumerations.h"
#include "backends/text/pointer_setters.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::FlagWord(bool flag) const
{
    return flag ? QStringLiteral("VARIANT_TRUE") : QStringLiteral("VARIANT_FALSE");
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetBoolProperty(const QString& variable, const QString& word, bool value)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, FlagWord(value));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetDoubleProperty(const QString& variable, const QString& word,
                                                              double value)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, Fixed{value});
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetStringProperty(const QString& variable, const QString& word,
                                                              const QString& text, bool quoted)
{
    return quoted ? Statement("%1%3->put_%4( L\"%5\" );%2", variable, word, text)
                  : Statement("%1%3->put_%4( %5 );%2", variable, word, text);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetColorProperty(const QString& variable, const QString& word,
                                                             const OdCmColor& color)
{
    const std::int32_t number = NextLocalNumber();
    if (color.colorMethod() != OdCmColor::Method::ByColor)
    {
        return Statement("%1IColorPtr iColor%3;%2"
                         "%1iColor%3=pConnection->m_KvApp->GetColorByIndex( %4 );%2"
                         "%1%5->put_%6( iColor%3 );%2",
                         number, color.colorIndex(), variable, word);
    }
    return Statement("%1IColorPtr iColor%3;%2"
                     "%1iColor%3=pConnection->m_KvApp->GetRGBColor( %4 ,%5 ,%6 );%2"
                     "%1%7->put_%8( iColor%3 );%2",
                     number, int{color.red()}, int{color.green()}, int{color.blue()}, variable, word);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetLayerProperty(const QString& variable, const QString& layer)
{
    return Statement("%1%3->put_Layer( L\"%4\" );%2", variable, layer);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetLineStyleProperty(const QString& variable, const QString& word,
                                                                 const QString& lineStyle)
{
    return Statement("%1%3->put_%4( L\"%5\" );%2", variable, word, lineStyle);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetLineWeightProperty(const QString& variable, const QString& word,
                                                                  std::int32_t weight)
{
    return Statement("%1%3->put_%4( %5 );%2", variable, word, kv::EntityLineWeight(kv::EnumForm::Bare, weight));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetTransparency(const QString& variable, OdCmTransparency::Method method,
                                                            std::int32_t percent)
{
    const int number = ComCounters::OfProcess().WriteSetTransparency++;
    return Statement("%1ITransparencyPtr kvTransparency%3;%2"
                     "%1%4->get_Transparency( &kvTransparency%3 );%2"
                     "%1%5%2"
                     "%1%4->put_Transparency( kvTransparency%3 );%2",
                     number, variable, kv::SetTransparencyLocal(number, method, percent));
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetHyperLink(const QString& variable, const HyperLink& link)
{
    const int number = ComCounters::OfProcess().WriteSetHyperLink++;
    QString text = Line("%1IHyperLinkPtr hyperLink%3 = %2->GetHyperLink();\n", variable, number);
    text += kv::SetHyperLinkLocal(CurrentIndent(), number, link, variable);
    return text;
}
