// C# texts of dimensions; the logic stands in objects/dimensions.cpp.
#include "backends/csharp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteInsertTemporaryLine(const QString& name, const OdGePoint3d& start,
                                                                const OdGePoint3d& end)
{
    return Statement("%1Line %3 = kvSketchManager.InsertLine(%4, %5, %6, %7, %8, %9);%2", name, start, end);
}

QString CZtConverterKVAPIObjectCSharp::WriteEraseTemporary(const QString& name)
{
    return Statement("%1%3.Erased = true;%2", name);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertAlignedDimension(const QString& variable, const OdGePoint3d& first,
                                                                   const OdGePoint3d& second,
                                                                   const OdGePoint3d& linePoint, const QString& text)
{
    return Statement("%1%13 = kvSketchManager.InsertAlignedDimension(%2"
                     "%1 new double[]{%3,%4,%5},%2"
                     "%1 new double[]{%6,%7,%8},%2"
                     "%1 new double[]{%9,%10,%11}, \"%12\" );%2",
                     first, second, linePoint, text, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertAngularDimension2Line(const QString& variable,
                                                                        const QString& firstLine,
                                                                        const QString& secondLine,
                                                                        const OdGePoint3d& arcPoint,
                                                                        const QString& text)
{
    return Statement("%1{%2"
                     "%1    %9 = kvSketchManager.InsertAngularDimension2Line(%3, %4, new double[]{%5,%6,%7}, \"%8\");%2"
                     "%1}%2",
                     firstLine, secondLine, arcPoint, text, variable);
}

QString
CZtConverterKVAPIObjectCSharp::WriteInsertAngularDimension3Point(const QString& variable, const OdGePoint3d& center,
                                                                 const OdGePoint3d& first, const OdGePoint3d& second,
                                                                 const OdGePoint3d& arcPoint, const QString& text)
{
    return Statement("%1%16 = kvSketchManager.InsertAngularDimension3Point(%2"
                     "%1new double[]{%3,%4,%5},%2"
                     "%1 new double[]{%6,%7,%8},%2"
                     "%1 new double[]{%9,%10,%11},%2"
                     "%1 new double[]{%12,%13,%14}, \"%15\" );%2",
                     center, first, second, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertAngularDimensionArc(const QString& variable,
                                                                      const MeasuredCurve& curve,
                                                                      const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    %8 = kvSketchManager.InsertAngularDimensionArc( %3, new double[]{%4,%5,%6}, \"%7\" );%2"
                         "%1}%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement(
        "%1CircleArc %3 = kvSketchManager.InsertArc(%4, %5, %6, %7, %8, %9);%2"
        "%1{%2"
        "%1    %14 = kvSketchManager.InsertAngularDimensionArc( %3, new double[]{%10,%11,%12}, \"%13\" );%2"
        "%1    %3.Erased = true;%2"
        "%1}%2",
        curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, arcPoint, text,
        variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertArcLengthDimension(const QString& variable,
                                                                     const MeasuredCurve& curve, bool isPartial,
                                                                     const OdGePoint3d& first,
                                                                     const OdGePoint3d& second,
                                                                     const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown && isPartial)
    {
        return Statement(
            "%1{%2"
            "%1    %14 = kvSketchManager.InsertArcLengthDimensionPartial(%3, new double[]{%4,%5,%6}, new double[]{%7,%8,%9}, new double[]{%10,%11,%12}, \"%13\");%2"
            "%1}%2",
            curve.name, first, second, arcPoint, text, variable);
    }
    if (isPartial)
    {
        return Statement(
            "%1CircleArc %3 = kvSketchManager.InsertArc(%4, %5, %6, %7, %8, %9);%2"
            "%1{%2"
            "%1    %20 = kvSketchManager.InsertArcLengthDimensionPartial(%3, new double[]{%10,%11,%12}, new double[]{%13,%14,%15}, new double[]{%16,%17,%18}, \"%19\");%2"
            "%1    %3.Erased = true;%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, first,
            second, arcPoint, text, variable);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    %8 = kvSketchManager.InsertArcLengthDimension(%3, new double[]{%4,%5,%6}, \"%7\");%2"
                         "%1}%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1CircleArc %3 = kvSketchManager.InsertArc(%4, %5, %6, %7, %8, %9);%2"
                     "%1{%2"
                     "%1    %14 = kvSketchManager.InsertArcLengthDimension(%3, new double[]{%10,%11,%12}, \"%13\");%2"
                     "%1    %3.Erased = true;%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertOrdinateDimension(const QString& variable,
                                                                    const OdGePoint3d& definingPoint,
                                                                    const OdGePoint3d& leaderEnd, const QString& text,
                                                                    bool usesXAxis)
{
    return Statement("%1%11 = kvSketchManager.InsertOrdinateDimension(%2"
                     "%1 new double[]{%3,%4,%5},%2"
                     "%1 new double[]{%6,%7,%8},%2"
                     "%1 \"%9\", %10);%2",
                     definingPoint, leaderEnd, text, FlagWord(usesXAxis), variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertDiameterDimension(const QString& variable, const MeasuredCurve& curve,
                                                                    const OdGePoint3d& chordPoint, const QString& text)
{
    return OnCurve("Diameter", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertRadialDimension(const QString& variable, const MeasuredCurve& curve,
                                                                  const OdGePoint3d& chordPoint, const QString& text)
{
    return OnCurve("Radial", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertJoggedDimension(const QString& variable, const MeasuredCurve& curve,
                                                                  const OdGePoint3d& overrideCenter,
                                                                  const OdGePoint3d& jogPoint,
                                                                  const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement(
            "%1{%2"
            "%1    %4 = kvSketchManager.InsertJoggedDimensionCircle( %3, new double[]{%5,%6,%7}, new double[]{%8,%9,%10},new double[]{%11,%12,%13}, \"%14\" );%2"
            "%1}%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement(
            "%1{%2"
            "%1    Circle %3 = kvSketchManager.InsertCircle( %4, %5, %6, %7);%2"
            "%1    %8 = kvSketchManager.InsertJoggedDimensionCircle( %3, new double[]{%9,%10,%11}, new double[]{%12,%13,%14},new double[]{%15,%16,%17}, \"%18\" );%2"
            "%1    %3.Erased = true;%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement(
            "%1{%2"
            "%1    %4 = kvSketchManager.InsertJoggedDimensionArc( %3, new double[]{%5,%6,%7}, new double[]{%8,%9,%10}, new double[]{%11,%12,%13}, \"%14\");%2"
            "%1}%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    return Statement(
        "%1{%2"
        "%1    CircleArc %3 = kvSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 );%2"
        "%1    %10 = kvSketchManager.InsertJoggedDimensionArc( %3, new double[]{%11,%12,%13}, new double[]{%14,%15,%16}, new double[]{%17,%18,%19}, \"%20\");%2"
        "%1    %3.Erased = true;%2"
        "%1}%2",
        curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, variable,
        overrideCenter, jogPoint, chordPoint, text);
}

QString CZtConverterKVAPIObjectCSharp::WriteInsertRotatedDimension(const QString& variable, const OdGePoint3d& first,
                                                                   const OdGePoint3d& second,
                                                                   const OdGePoint3d& linePoint, const QString& text,
                                                                   double rotation)
{
    return Statement("%1%14 = kvSketchManager.InsertRotatedDimension(%2"
                     "%1 new double[]{%3,%4,%5} ,%2"
                     "%1 new double[]{%6,%7,%8},%2"
                     "%1 new double[]{%9,%10,%11},%2"
                     "%1\"%12\", %13);%2",
                     first, second, linePoint, text, Fixed{rotation}, variable);
}

// Diameters and radii differ in one word.
QString CZtConverterKVAPIObjectCSharp::OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                               const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    %5 = kvSketchManager.Insert%3DimensionCircle( %4, new double[]{%6,%7,%8}, \"%9\" );%2"
                         "%1}%2",
                         kind, curve.name, variable, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement(
            "%1{%2"
            "%1    Circle %4 = kvSketchManager.InsertCircle( %5, %6, %7, %8 );%2"
            "%1    %9 = kvSketchManager.Insert%3DimensionCircle( %4, new double[]{%10,%11,%12}, \"%13\" );%2"
            "%1    %4.Erased = true;%2"
            "%1}%2",
            kind, curve.name, curve.center, Fixed{curve.radius}, variable, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    %5 = kvSketchManager.Insert%3DimensionArc( %4, new double[]{%6,%7,%8}, \"%9\" );%2"
                         "%1}%2",
                         kind, curve.name, variable, chordPoint, text);
    }
    return Statement("%1{%2"
                     "%1    CircleArc %4 = kvSketchManager.InsertArc( %5, %6, %7, %8, %9, %10 );%2"
                     "%1    %11 = kvSketchManager.Insert%3DimensionArc( %4, new double[]{%12,%13,%14}, \"%15\" );%2"
                     "%1    %4.Erased = true;%2"
                     "%1}%2",
                     kind, curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle},
                     Fixed{curve.endAngle}, variable, chordPoint, text);
}
