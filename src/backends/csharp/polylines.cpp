// C# texts of polylines; the logic stands in objects/polylines.cpp. The success of a setter is its result, which
// nothing reads; it takes a number in every language all the same.
#include "backends/csharp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                            std::int32_t index, double value)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.%4( %5, %6 );%2", variable, setter, index, Fixed{value});
}

QString CZtConverterKVAPIObjectCSharp::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.SetSegmentAngle( %4, %5 );%2", variable, index, Fixed{angle});
}
