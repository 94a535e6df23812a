// Changes to what a hatch is filled with; what isn't given stays as it is.
#pragma once

#include "host/db/color.h"

#include <QtCore/QString>

#include <optional>

// A pattern: lengths in drawing units, the angle in radians, the type as a qualified constant, empty when it stays.
struct HatchData
{
    std::optional<QString> name;
    std::optional<double> angle;
    std::optional<double> scale;
    std::optional<double> spacing;
    QString type;
};

// A gradient; the angle in radians.
struct GradientData
{
    std::optional<OdCmColor> color1;
    std::optional<OdCmColor> color2;
    std::optional<bool> centered;
    std::optional<double> angle;
};
