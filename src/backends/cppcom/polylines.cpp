// C++ COM texts of polylines; the logic stands in objects/polylines.cpp.
#include "backends/cppcom/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteSetPairProperty(const QString& variable, const QString& setter,
                                                            std::int32_t index, double value)
{
    return Statement("%1VARIANT_BOOL bRetVal%7 = VARIANT_FALSE;%2"
                     "%1bRetVal%7=%3->%4( %5, %6 );%2",
                     variable, setter, index, Fixed{value}, NextLocalNumber());
}

QString CZtConverterKVAPIObjectCPPCOM::WriteSetSegmentAngle(const QString& variable, std::int32_t index, double angle)
{
    return Statement("%1VARIANT_BOOL bRet%3 = VARIANT_FALSE;%2"
                     "%1bRet%3=%4->SetSegmentAngle( %5, %6 );%2",
                     NextLocalNumber(), variable, index, Fixed{angle});
}
