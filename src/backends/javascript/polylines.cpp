// JavaScript texts of polylines; the logic stands in objects/polylines.cpp. The success of a setter isn't asked for,
// but takes its number as in every language.
#include "backends/javascript/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                                std::int32_t index, double value)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.%4(%5, %6);%2", variable, setter, index, Fixed{value});
}

QString CZtConverterKVAPIObjectJavaScript::WriteSetSegmentAngle(const QString& variable, std::int32_t index,
                                                                double angle)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.SetSegmentAngle(%4, %5);%2", variable, index, Fixed{angle});
}
