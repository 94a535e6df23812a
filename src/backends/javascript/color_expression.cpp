// Colors as expressions of the script library.
#include "backends/javascript/color_expression.h"

#include "backends/text/fill.h"

namespace kv
{

QString ScriptColor(const OdCmColor& color)
{
    if (color.colorMethod() != OdCmColor::Method::ByColor)
    {
        return Fill("mApp.GetColorByIndex(%1)", color.colorIndex());
    }
    return Fill("mApp.GetRGBColor(%1 ,%2 ,%3)", int{color.red()}, int{color.green()}, int{color.blue()});
}

} // namespace kv
