// Colors as expressions of the languages that reach the application through the variable kvApp.
#include "backends/text/color_expression.h"

#include "backends/text/fill.h"

namespace kv
{

QString ColorExpression(const OdCmColor& color)
{
    if (color.colorMethod() != OdCmColor::Method::ByColor)
    {
        return Fill("kvApp.GetColorByIndex( %1 )", color.colorIndex());
    }
    return Fill("kvApp.GetRGBColor( %1 ,%2 ,%3 )", int{color.red()}, int{color.green()}, int{color.blue()});
}

} // namespace kv
