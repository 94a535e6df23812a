// The circle or arc that a dimension measures.
#pragma once

#include "host/ge/point3d.h"

#include <QtCore/QString>

struct MeasuredCurve
{
    // Its variable when the macro has it, else the name of the temporary one that the insertion makes.
    QString name;
    bool isKnown = false;
    bool isArc = false;

    // Lengths are in drawing units, angles in radians; a circle has no angles.
    OdGePoint3d center;
    double radius = 0.0;
    double startAngle = 0.0;
    double endAngle = 0.0;
};
