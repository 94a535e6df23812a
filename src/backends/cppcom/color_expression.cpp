// Colors as expressions of C++ COM.
#include "backends/cppcom/color_expression.h"

#include "backends/text/fill.h"

QString ColorExpression(const OdCmColor& color)
{
    if (color.colorMethod() != OdCmColor::Method::ByColor)
    {
        return kv::Fill("pConnection->m_KvApp->GetColorByIndex( %1 )", color.colorIndex());
    }
    return kv::Fill("pConnection->m_KvApp->GetRGBColor( %1 ,%2 ,%3 )", int{color.red()}, int{color.green()},
                    int{color.blue()});
}
