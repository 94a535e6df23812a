// Named records of a drawing: layers, styles, views, groups, layouts.
#pragma once

#include "host/db/object.h"

// A record of one of the drawing's tables.
class KVHOST_API OdDbSymbolTableRecord : public OdDbObject
{
    ODRX_DECLARE_MEMBERS(OdDbSymbolTableRecord)

    [[nodiscard]] virtual OdString getName() const = 0;
};

class KVHOST_API OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbLayerTableRecord)
};

class KVHOST_API OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbLinetypeTableRecord)
};

class KVHOST_API OdDbDimStyleTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbDimStyleTableRecord)
};

class KVHOST_API OdDbViewTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbViewTableRecord)

    // True for a view of a sheet, false for one of the model.
    [[nodiscard]] virtual bool isPaperspaceView() const = 0;
};

// A tile of the model's window.
class KVHOST_API OdDbViewportTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbViewportTableRecord)
};

class KVHOST_API OdDbMlineStyle : public OdDbObject
{
    ODRX_DECLARE_MEMBERS(OdDbMlineStyle)

    [[nodiscard]] virtual OdString name() const = 0;
};

class KVHOST_API OdDbTableStyle : public OdDbObject
{
    ODRX_DECLARE_MEMBERS(OdDbTableStyle)

    [[nodiscard]] virtual OdString getName() const = 0;
};

class KVHOST_API OdDbGroup : public OdDbObject
{
    ODRX_DECLARE_MEMBERS(OdDbGroup)

    // The name in the dictionary of groups, and whether the application made it up.
    [[nodiscard]] virtual OdString getName() const = 0;
    [[nodiscard]] virtual bool isAnonymous() const = 0;
};

class KVHOST_API OdDbLayout : public OdDbObject
{
    ODRX_DECLARE_MEMBERS(OdDbLayout)

    [[nodiscard]] virtual OdString getLayoutName() const = 0;

    // True for the model's layout, false for a sheet.
    [[nodiscard]] virtual bool modelType() const = 0;

    // The print style sheet; empty when there is none.
    [[nodiscard]] virtual OdString getCurrentStyleSheet() const = 0;
};
