// VBA texts of polylines; the logic stands in objects/polylines.cpp.
#include "backends/vba/object.h"

using kv::Fixed;

// A number is taken in every language, though nothing is declared here.

QString CZtConverterKVAPIObjectVba::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                         std::int32_t index, double value)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.%4 %5, %6%2", variable, setter, index, Fixed{value});
}

QString CZtConverterKVAPIObjectVba::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.SetSegmentAngle %4, %5%2", variable, index, Fixed{angle});
}
