// Dimensions: their insertions, and the entities that they measure.
#include "host/db/dimensions.h"
#include "host/db/curves.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

OdGePoint3d CZtConverterKVAPIObject::TakePoint(const Creation& creation, const char* name)
{
    return creation.properties.TakeProperty(name, &creation.consumed).GetPoint3d();
}

QString CZtConverterKVAPIObject::TakeTextOverride(const Creation& creation)
{
    return TextOf(creation.properties.TakeProperty("Text override", &creation.consumed));
}

std::optional<MeasuredCurve> CZtConverterKVAPIObject::MeasuredBy(const Creation& creation) const
{
    const auto dimension = Opened<OdDbDimension>(creation.handle);
    const OdDbObjectId id = dimension ? dimension->associatedObject(0) : OdDbObjectId();
    const OdDbObjectPtr entity = id.openObject();
    if (!entity)
    {
        return std::nullopt;
    }
    MeasuredCurve curve;
    const char* stem = nullptr;
    if (entity->isKindOf(OdDbCircle::desc()))
    {
        const auto circle = OdSmartPtr<OdDbCircle>::cast(entity);
        curve.center = circle->center();
        curve.radius = circle->radius();
        stem = "%1_associated_circle";
    }
    else if (entity->isKindOf(OdDbArc::desc()))
    {
        const auto arc = OdSmartPtr<OdDbArc>::cast(entity);
        curve.isArc = true;
        curve.center = arc->center();
        curve.radius = arc->radius();
        curve.startAngle = arc->startAngle();
        curve.endAngle = arc->endAngle();
        stem = "%1_associated_arc";
    }
    else
    {
        return std::nullopt;
    }
    const std::optional<QString> known = createdObjects_.FindName(id);
    curve.isKnown = known.has_value();
    curve.name = curve.isKnown ? *known : QString::fromLatin1(stem).arg(creation.variable);
    return curve;
}

QString CZtConverterKVAPIObject::MeasuredLine(const OdDbObjectId& line, const QString& temporary,
                                              const OdGePoint3d& start, const OdGePoint3d& end, QString& head,
                                              QString& tail)
{
    if (const std::optional<QString> known = createdObjects_.FindName(line); known && line.openObject())
    {
        return *known;
    }
    head += WriteInsertTemporaryLine(temporary, start, end);
    tail += WriteEraseTemporary(temporary);
    return temporary;
}

QString CZtConverterKVAPIObject::CreateAlignedDimension(const Creation& creation)
{
    const OdGePoint3d first = TakePoint(creation, "xLine1Point");
    const OdGePoint3d second = TakePoint(creation, "xLine2Point");
    const OdGePoint3d linePoint = TakePoint(creation, "dimLinePoint");
    return WriteInsertAlignedDimension(creation.variable, first, second, linePoint, TakeTextOverride(creation));
}

QString CZtConverterKVAPIObject::CreateRotatedDimension(const Creation& creation)
{
    const OdGePoint3d first = TakePoint(creation, "xLine1Point");
    const OdGePoint3d second = TakePoint(creation, "xLine2Point");
    const OdGePoint3d linePoint = TakePoint(creation, "dimLinePoint");
    const double rotation = creation.properties.TakeDouble("rotation", 0.0, &creation.consumed);
    return WriteInsertRotatedDimension(creation.variable, first, second, linePoint, TakeTextOverride(creation),
                                       rotation);
}

QString CZtConverterKVAPIObject::CreateTwoLineDimension(const Creation& creation)
{
    const OdGePoint3d start1 = TakePoint(creation, "xLine1Start");
    const OdGePoint3d end1 = TakePoint(creation, "xLine1End");
    const OdGePoint3d start2 = TakePoint(creation, "xLine2Start");
    const OdGePoint3d end2 = TakePoint(creation, "xLine2End");
    const OdGePoint3d arcPoint = TakePoint(creation, "arcPoint");
    const auto dimension = Opened<OdDbDimension>(creation.handle);
    const auto associated = [&](int reference)
    { return dimension ? dimension->associatedObject(reference) : OdDbObjectId(); };

    // What is erased behind the insertion keeps the dimension, but leaves the drawing.
    QString head;
    QString tail;
    const QString first = MeasuredLine(associated(0), QStringLiteral("%1_associated_line1").arg(creation.variable),
                                       start1, end1, head, tail);
    const QString second = MeasuredLine(associated(2), QStringLiteral("%1_associated_line2").arg(creation.variable),
                                        start2, end2, head, tail);
    return head +
           WriteInsertAngularDimension2Line(creation.variable, first, second, arcPoint, TakeTextOverride(creation)) +
           tail;
}

QString CZtConverterKVAPIObject::CreateThreePointDimension(const Creation& creation)
{
    const OdGePoint3d center = TakePoint(creation, "centerPoint");
    const OdGePoint3d first = TakePoint(creation, "xLine1Point");
    const OdGePoint3d second = TakePoint(creation, "xLine2Point");
    const OdGePoint3d arcPoint = TakePoint(creation, "arcPoint");
    const QString text = TakeTextOverride(creation);
    if (const auto curve = MeasuredBy(creation); curve && curve->isArc)
    {
        return WriteInsertAngularDimensionArc(creation.variable, *curve, arcPoint, text);
    }
    return WriteInsertAngularDimension3Point(creation.variable, center, first, second, arcPoint, text);
}

QString CZtConverterKVAPIObject::CreateArcDimension(const Creation& creation)
{
    const OdGePoint3d first = TakePoint(creation, "xLine1Point");
    const OdGePoint3d second = TakePoint(creation, "xLine2Point");
    static_cast<void>(TakePoint(creation, "centerPoint"));
    const bool isPartial = creation.properties.TakeProperty("isPartial", &creation.consumed).GetInt32() != 0;
    const OdGePoint3d arcPoint = TakePoint(creation, "arcPoint");
    const QString text = TakeTextOverride(creation);
    const auto curve = MeasuredBy(creation);
    return curve && curve->isArc
               ? WriteInsertArcLengthDimension(creation.variable, *curve, isPartial, first, second, arcPoint, text)
               : QString();
}

QString CZtConverterKVAPIObject::CreateOrdinateDimension(const Creation& creation)
{
    const OdGePoint3d definingPoint = TakePoint(creation, "definingPoint");
    const OdGePoint3d leaderEnd = TakePoint(creation, "leaderEndPoint");
    const bool usesXAxis = creation.properties.TakeProperty("isUsingXAxis", &creation.consumed).GetInt32() != 0;
    static_cast<void>(TakePoint(creation, "setZero"));
    return WriteInsertOrdinateDimension(creation.variable, definingPoint, leaderEnd, TakeTextOverride(creation),
                                        usesXAxis);
}

QString CZtConverterKVAPIObject::CreateDiametricDimension(const Creation& creation)
{
    const OdGePoint3d chordPoint = TakePoint(creation, "chordPoint");
    const QString text = TakeTextOverride(creation);
    const auto curve = MeasuredBy(creation);
    return curve ? WriteInsertDiameterDimension(creation.variable, *curve, chordPoint, text) : QString();
}

QString CZtConverterKVAPIObject::CreateRadialDimension(const Creation& creation)
{
    const OdGePoint3d chordPoint = TakePoint(creation, "chordPoint");
    const QString text = TakeTextOverride(creation);
    const auto curve = MeasuredBy(creation);
    return curve ? WriteInsertRadialDimension(creation.variable, *curve, chordPoint, text) : QString();
}

QString CZtConverterKVAPIObject::CreateJoggedDimension(const Creation& creation)
{
    const QString text = TakeTextOverride(creation);
    const auto dimension = Opened<OdDbRadialDimensionLarge>(creation.handle);
    const auto curve = MeasuredBy(creation);
    return dimension && curve ? WriteInsertJoggedDimension(creation.variable, *curve, dimension->overrideCenter(),
                                                           dimension->jogPoint(), dimension->chordPoint(), text)
                              : QString();
}
