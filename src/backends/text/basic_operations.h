// What the two Basic languages say alike on the journal side and on the object side.
#pragma once

#include "backends/text/coordinate_locals.h"
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

    // The highest index of an array with the coordinates of so many points.
    [[nodiscard]] static int HighestIndex2D(std::span<const OdGePoint2d> points)
    {
        return 2 * static_cast<int>(points.size()) - 1;
    }

    // The array Coordinates<number> of the points, and an empty line.
    [[nodiscard]] QString DeclarePoints(std::int32_t number, std::span<const OdGePoint2d> points) const
    {
        return Base::Statement("%1Dim Coordinates%3(%4) As Double%2%2"
                               "%5%2",
                               number, HighestIndex2D(points), WriteCoordinateElements2D(number, points));
    }

    [[nodiscard]] QString DeclarePoints(std::int32_t number, std::span<const OdGePoint3d> points) const
    {
        return Base::Statement("%1Dim Coordinates%3(%4) As Double%2%2"
                               "%5%2",
                               number, 3 * static_cast<int>(points.size()) - 1,
                               WriteCoordinateElements3D(number, points));
    }

    // A text of several lines inside a literal, which can't hold a line feed.
    [[nodiscard]] static QString JoinedLines(QString text)
    {
        return text.replace(QLatin1Char('\n'), QLatin1String("\" & vbLf & \""));
    }

    // The elements of the array <name><number>, from index 0 on.
    [[nodiscard]] QString CountElements(const char* name, std::int32_t number,
                                        std::span<const std::int32_t> counts) const
    {
        QString text;
        int index = 0;
        for (const std::int32_t count : counts)
        {
            text += Base::Statement("%1%3%4(%5) = %6%2", name, number, index++, count);
        }
        return text;
    }

    [[nodiscard]] QString PointElements(const char* name, std::int32_t number,
                                        std::span<const OdGePoint3d> points) const
    {
        QString text;
        int index = 0;
        for (const OdGePoint3d& point : points)
        {
            for (const double coordinate : {point.x, point.y, point.z})
            {
                text += Base::Statement("%1%3%4(%5) = %6%2", name, number, index++, typename Base::Real{coordinate});
            }
        }
        return text;
    }

    [[nodiscard]] QString PointElements(const char* name, std::int32_t number, const OdGePoint3d& point) const
    {
        return PointElements(name, number, std::span(&point, 1));
    }

    // The array <name><number> of so many entities.
    [[nodiscard]] virtual QString DeclareEntities(const char* name, std::int32_t number, int count) const = 0;

    [[nodiscard]] virtual QString EntityElements(const char* name, std::int32_t number,
                                                 const QStringList& names) const = 0;

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
        return Base::Statement("%1%3%5 = %4%2", CoordinateLocal(axis), Fixed{value}, number);
    }
};

using BasicObjectText = BasicOperations<ObjectText>;
} // namespace kv
