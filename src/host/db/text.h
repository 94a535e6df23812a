// Texts, notes, leaders, tolerances and text styles.
#pragma once

#include "host/db/color.h"
#include "host/db/curves.h"
#include "host/db/symbols.h"
#include "host/ge/point3d.h"

// A text of one line.
class KVHOST_API OdDbText : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbText)

    // The text; where it begins and where it is aligned; its height in drawing units and its angle in radians.
    [[nodiscard]] virtual OdString textString() const = 0;
    [[nodiscard]] virtual OdGePoint3d position() const = 0;
    [[nodiscard]] virtual OdGePoint3d alignmentPoint() const = 0;
    [[nodiscard]] virtual double height() const = 0;
    [[nodiscard]] virtual double rotation() const = 0;
};

class KVHOST_API OdDbAttributeDefinition : public OdDbText
{
    ODRX_DECLARE_MEMBERS(OdDbAttributeDefinition)

    [[nodiscard]] virtual OdString tag() const = 0;
    [[nodiscard]] virtual OdString prompt() const = 0;
    [[nodiscard]] virtual OdString textStyleName() const = 0;

    // The justification as the properties display it.
    [[nodiscard]] virtual OdString justification() const = 0;
    [[nodiscard]] virtual bool isConstant() const = 0;
    [[nodiscard]] virtual bool isInvisible() const = 0;
    [[nodiscard]] virtual bool isPreset() const = 0;
    [[nodiscard]] virtual bool isVerifiable() const = 0;
    [[nodiscard]] virtual bool lockPositionInBlock() const = 0;
};

// A note of several lines.
class KVHOST_API OdDbMText : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbMText)

    // The text with its format codes.
    [[nodiscard]] virtual OdString contents() const = 0;

    // Where the note hangs, by the attachment 1 top left to 9 bottom right, row by row; sizes in drawing units and the
    // angle in radians.
    [[nodiscard]] virtual OdGePoint3d location() const = 0;
    [[nodiscard]] virtual int attachment() const = 0;
    [[nodiscard]] virtual double width() const = 0;
    [[nodiscard]] virtual double textHeight() const = 0;
    [[nodiscard]] virtual double rotation() const = 0;
    [[nodiscard]] virtual double lineSpacingFactor() const = 0;
    [[nodiscard]] virtual OdDbObjectId textStyle() const = 0;

    // The height of the text as laid out, in drawing units.
    [[nodiscard]] virtual double actualHeight() const = 0;

    // The background: whether there is one, whether it takes the drawing's colour, its own colour, its border offset
    // factor.
    [[nodiscard]] virtual bool backgroundFillOn() const = 0;
    [[nodiscard]] virtual bool useBackgroundColorOn() const = 0;
    [[nodiscard]] virtual OdCmColor getBackgroundFillColor() const = 0;
    [[nodiscard]] virtual double getBackgroundScaleFactor() const = 0;
};

class KVHOST_API OdDbLeader : public OdDbCurve
{
    ODRX_DECLARE_MEMBERS(OdDbLeader)

    enum AnnoType : int
    {
        kMText = 0,
        kFcf = 1,
        kBlockRef = 2,
        kNoAnno = 3,
    };

    // What the leader points from, its object, and the width of its text in drawing units.
    [[nodiscard]] virtual AnnoType annoType() const = 0;
    [[nodiscard]] virtual OdDbObjectId annotationObjId() const = 0;
    [[nodiscard]] virtual double annoWidth() const = 0;
};

// A frame of tolerances.
class KVHOST_API OdDbFcf : public OdDbEntity
{
    ODRX_DECLARE_MEMBERS(OdDbFcf)

    // Where the frame stands.
    [[nodiscard]] virtual OdGePoint3d location() const = 0;

    // The text of one line, or of all lines for line -1.
    [[nodiscard]] virtual OdString getText(int line) const = 0;
};

class KVHOST_API OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
    ODRX_DECLARE_MEMBERS(OdDbTextStyleTableRecord)

    // True when the record stands for a file of shapes and not for a font.
    [[nodiscard]] virtual bool isShapeFile() const = 0;

    // The font or shape file.
    [[nodiscard]] virtual OdString fileName() const = 0;
};
