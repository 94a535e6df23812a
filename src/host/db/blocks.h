// Block definitions and references, images, shapes, tables, viewports and what else stands as one entity.
#pragma once

#include "host/db/symbols.h"

class KVHOST_API OdDbBlockTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbBlockTableRecord)

    // True for the block that holds the entities of a layout.
    [[nodiscard]] virtual bool isLayout() const = 0;

    // True for the contents of another drawing file.
    [[nodiscard]] virtual bool isFromExternalReference() const = 0;

    // The file of an external reference, and the base point.
    [[nodiscard]] virtual OdString pathName() const = 0;
    [[nodiscard]] virtual OdGePoint3d origin() const = 0;

    // The entities of the block in their order, those that are erased left out.
    [[nodiscard]] virtual OdArray<OdDbObjectId> entityIds() const = 0;

    // The description.
    [[nodiscard]] virtual OdString comments() const = 0;

    // 1 when instances are scaled alike in all directions.
    [[nodiscard]] virtual int blockScaling() const = 0;

    // True when instances may be exploded.
    [[nodiscard]] virtual bool explodable() const = 0;

    // The number of the units in which the block was drawn.
    [[nodiscard]] virtual int blockInsertUnits() const = 0;
};

class KVHOST_API OdDbBlockReference : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbBlockReference)

    // The definition; where, how scaled in each direction and at which angle in radians it stands; its attributes.
    [[nodiscard]] virtual OdDbObjectId blockTableRecord() const = 0;
    [[nodiscard]] virtual OdGePoint3d position() const = 0;
    [[nodiscard]] virtual OdGePoint3d scaleFactors() const = 0;
    [[nodiscard]] virtual double rotation() const = 0;
    [[nodiscard]] virtual OdArray<OdDbObjectId> attributeIds() const = 0;
};

class KVHOST_API OdDbRasterImage : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbRasterImage)
};

class KVHOST_API OdDbShape : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbShape)

    // The name in its shape file; where it stands, its size in drawing units and its angle in radians.
    [[nodiscard]] virtual OdString name() const = 0;
    [[nodiscard]] virtual OdGePoint3d position() const = 0;
    [[nodiscard]] virtual double size() const = 0;
    [[nodiscard]] virtual double rotation() const = 0;
};

class KVHOST_API OdDbTable : public OdDbBlockReference
{
    ODRX_DECLARE_MEMBERS(OdDbTable)

    [[nodiscard]] virtual int numRows() const = 0;
    [[nodiscard]] virtual int numColumns() const = 0;

    // The text of a cell; row and column count from 0.
    [[nodiscard]] virtual OdString textString(int row, int column) const = 0;

    // Sizes in drawing units.
    [[nodiscard]] virtual double rowHeight(int row) const = 0;
    [[nodiscard]] virtual double columnWidth(int column) const = 0;
};

class KVHOST_API OdDbViewport : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbViewport)

    // True for a viewport whose edge is an entity of its own.
    [[nodiscard]] virtual bool isNonRectClipOn() const = 0;
};

class KVHOST_API OdDbHatch : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbHatch)
};

class KVHOST_API OdDbRegion : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbRegion)
};

class KVHOST_API OdDbOle2Frame : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbOle2Frame)
};
