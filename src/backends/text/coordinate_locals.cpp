// The locals of a point whose one coordinate changes, in the languages that declare them as C does.
#include "backends/text/coordinate_locals.h"

namespace kv
{

QString DeclareCoordinates(Indent indent, std::int32_t number)
{
    QString text = Fill("%1double getX%3;%2", indent, LineEnd(), number);
    text += Fill("%1double getY%3;%2", indent, LineEnd(), number);
    text += Fill("%1double getZ%3;%2", indent, LineEnd(), number);
    return text;
}

QString AssignCoordinate(Indent indent, Axis axis, double value, std::int32_t number)
{
    return Fill("%1%3%5 = %4;%2", indent, LineEnd(), CoordinateLocal(axis), Fixed{value}, number);
}

} // namespace kv
