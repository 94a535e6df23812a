// Reading a result buffer in another form than its own.
#include "host/odrx/res_buf.h"

#include "host/odrx/number_cut.h"

ODRX_DEFINE_MEMBERS(OdResBuf, OdRxObject, "AcResBuf")

double OdResBuf::getDouble() const
{
    if (const auto* real = std::get_if<double>(&value_))
    {
        return *real;
    }
    if (const auto* integer = std::get_if<std::int32_t>(&value_))
    {
        return *integer;
    }
    const auto* flag = std::get_if<bool>(&value_);
    return flag != nullptr && *flag ? 1.0 : 0.0;
}

std::int32_t OdResBuf::getInt32() const
{
    return CutToInt32(getDouble());
}

std::int16_t OdResBuf::getInt16() const
{
    return static_cast<std::int16_t>(getInt32());
}

std::int8_t OdResBuf::getInt8() const
{
    return static_cast<std::int8_t>(getInt32());
}

bool OdResBuf::getBool() const
{
    return getDouble() != 0.0;
}

OdString OdResBuf::getString() const
{
    const auto* text = std::get_if<OdString>(&value_);
    return text != nullptr ? *text : OdString();
}

OdGePoint3d OdResBuf::getPoint3d() const
{
    if (const auto* point = std::get_if<OdGePoint3d>(&value_))
    {
        return *point;
    }
    const auto* flat = std::get_if<OdGePoint2d>(&value_);
    return flat != nullptr ? OdGePoint3d{flat->x, flat->y, 0.0} : OdGePoint3d();
}

OdGePoint2d OdResBuf::getPoint2d() const
{
    const OdGePoint3d point = getPoint3d();
    return {point.x, point.y};
}
