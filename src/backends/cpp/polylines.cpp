// C++ API texts of polylines; the logic stands in objects/polylines.cpp.
#include "backends/cpp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                         std::int32_t index, double value)
{
    return Statement("%1bool bRetVal%7 = false;%2%1%3->%4( %5, %6, &bRetVal%7 );%2", variable, setter, index,
                     Fixed{value}, NextLocalNumber());
}

QString CZtConverterKVAPIObjectCPP::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    return Statement("%1bool bRet%3 = false;%2"
                     "%1%4->SetSegmentAngle( %5, %6, &bRet%3 );%2",
                     NextLocalNumber(), variable, index, Fixed{angle});
}
