// Curves and points. The conversion takes their geometry from the journal, so that only their classes matter here.
#pragma once

#include "host/db/object.h"
#include "host/ge/point3d.h"

class KVHOST_API OdDbCurve : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbCurve)
};

class KVHOST_API OdDbLine : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbLine)
};

class KVHOST_API OdDbCircle : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbCircle)
};

class KVHOST_API OdDbArc : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbArc)
};

class KVHOST_API OdDbEllipse : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbEllipse)
};

class KVHOST_API OdDbPoint : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbPoint)
};

class KVHOST_API OdDbRay : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbRay)
};

class KVHOST_API OdDbXline : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbXline)
};
