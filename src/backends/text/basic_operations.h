// What the two Basic languages say alike on the journal side and on the object side.
#pragma once

#include "backends/text/text_operations.h"
#include "objects/axis.h"

#include <span>

namespace kv
{
template <class Base>
class BasicOperations : public Base
{
public:
    using Base::Base;

protected:
    [[nodiscard]] QString FlagWord(bool flag) const override
    {
        return flag ? QStringLiteral("True") : QStringLiteral("False");
    }

    // The elements of the array Coordinates<number>, from index 0 on.
    [[nodiscard]] QString WriteCoordinateElements2D(std::int32_t number, std::span<const OdGePoint2d> points) const
    {
        QString text;
        int index = 0;
        for (const OdGePoint2d& point : points)
        {
            text += Base::Statement("%1Coordinates%3( %4 )=%6%2"
                                    "%1Coordinates%3( %5 )=%7%2",
                                    number, index, index + 1, point);
            index += 2;
        }
        return text;
    }

    [[nodiscard]] QString WriteCoordinateElements3D(std::int32_t number, std::span<const OdGePoint3d> points) const
    {
        QString text;
        int index = 0;
        for (const OdGePoint3d& point : points)
        {
            text += Base::Statement("%1Coordinates%3( %4 )=%7%2"
                                    "%1Coordinates%3( %5 )=%8%2"
                                    "%1Coordinates%3( %6 )=%9%2",
                                    number, index, index + 1, index + 2, point);
            index += 3;
        }
        return text;
    }

    // The locals of a point whose one coordinate changes.
    [[nodiscard]] QString DeclareCoordinates(std::int32_t number) const
    {
        QString text = Base::Statement("%1Dim getX%3 As Double%2", number);
        text += Base::Statement("%1Dim getY%3 As Double%2", number);
        text += Base::Statement("%1Dim getZ%3 As Double%2", number);
        return text;
    }

    [[nodiscard]] QString AssignCoordinate(Axis axis, double value, std::int32_t number) const
    {
        return Base::Statement("%1%3%5 = %4%2", QLatin1String("get") + QLatin1String(AxisName(axis)), Fixed{value},
                               number);
    }
};

using BasicConverterText = BasicOperations<ConverterText>;
using BasicObjectText = BasicOperations<ObjectText>;
} // namespace kv
