// JavaScript texts of dimensions; the logic stands in objects/dimensions.cpp.
#include "backends/javascript/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertTemporaryLine(const QString& name, const OdGePoint3d& start,
                                                                    const OdGePoint3d& end)
{
    return Statement("%1var %3 = mSkMgr.InsertLine(%4, %5, %6, %7, %8, %9);%2", name, start, end);
}

QString CZtConverterKVAPIObjectJavaScript::WriteEraseTemporary(const QString& name)
{
    return Statement("%1%3.put_Erased(true);%2", name);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertAlignedDimension(const QString& variable,
                                                                       const OdGePoint3d& first,
                                                                       const OdGePoint3d& second,
                                                                       const OdGePoint3d& linePoint,
                                                                       const QString& text)
{
    return Statement("%1var Coordinates1 = new Array(%3,%4,%5);%2"
                     "%1var Coordinates2 = new Array(%6,%7,%8);%2"
                     "%1var Coordinates3 = new Array(%9,%10,%11);%2"
                     "%1var %13 = mSkMgr.InsertAlignedDimension(Coordinates1, Coordinates2, Coordinates3, \"%12\");%2",
                     first, second, linePoint, text, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertAngularDimension2Line(const QString& variable,
                                                                            const QString& firstLine,
                                                                            const QString& secondLine,
                                                                            const OdGePoint3d& arcPoint,
                                                                            const QString& text)
{
    return Statement("%1{%2"
                     "%1    var dimPositionPoint = new Array(%5,%6,%7);%2"
                     "%1    var %9 = mSkMgr.InsertAngularDimension2Line(%3, %4, dimPositionPoint, \"%8\");%2"
                     "%1}%2",
                     firstLine, secondLine, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertAngularDimension3Point(
    const QString& variable, const OdGePoint3d& center, const OdGePoint3d& first, const OdGePoint3d& second,
    const OdGePoint3d& arcPoint, const QString& text)
{
    return Statement("%1var Coordinates1 = new Array(%3,%4,%5);%2"
                     "%1var Coordinates2 = new Array(%6,%7,%8);%2"
                     "%1var Coordinates3 = new Array(%9,%10,%11);%2"
                     "%1var Coordinates4 = new Array(%12,%13,%14);%2%2"
                     "%1var %16 = mSkMgr.InsertAngularDimension3Point(%2"
                     "%1Coordinates1,%2"
                     "%1 Coordinates2,%2"
                     "%1 Coordinates3,%2"
                     "%1 Coordinates4, \"%15\");%2",
                     center, first, second, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertAngularDimensionArc(const QString& variable,
                                                                          const MeasuredCurve& curve,
                                                                          const OdGePoint3d& arcPoint,
                                                                          const QString& text)
{
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    var dimPositionPoint = new Array(%4,%5,%6);%2"
                         "%1    var %8 = mSkMgr.InsertAngularDimensionArc(%3, dimPositionPoint, \"%7\");%2"
                         "%1}%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
                     "%1{%2"
                     "%1    var dimPositionPoint = new Array(%10,%11,%12);%2"
                     "%1    var %14 = mSkMgr.InsertAngularDimensionArc(%3, dimPositionPoint, \"%13\");%2"
                     "%1    %3.put_Erased(true);%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertArcLengthDimension(
    const QString& variable, const MeasuredCurve& curve, bool isPartial, const OdGePoint3d& first,
    const OdGePoint3d& second, const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown && isPartial)
    {
        return Statement(
            "%1{%2"
            "%1    var firstPoint = new Array(%4,%5,%6);%2"
            "%1    var secondPoint = new Array(%7,%8,%9);%2"
            "%1    var dimensionPosition = new Array(%10,%11,%12);%2"
            "%1    var %14 = mSkMgr.InsertArcLengthDimensionPartial(%3, firstPoint, secondPoint, dimensionPosition, \"%13\");%2"
            "%1}%2",
            curve.name, first, second, arcPoint, text, variable);
    }
    if (isPartial)
    {
        return Statement(
            "%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
            "%1{%2"
            "%1    var firstPoint = new Array(%10,%11,%12);%2"
            "%1    var secondPoint = new Array(%13,%14,%15);%2"
            "%1    var dimensionPosition = new Array(%16,%17,%18);%2"
            "%1    var %20 = mSkMgr.InsertArcLengthDimensionPartial(%3, firstPoint, secondPoint, dimensionPosition, \"%19\");%2"
            "%1    %3.put_Erased(true);%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, first,
            second, arcPoint, text, variable);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    var dimensionPosition = new Array(%4,%5,%6);%2"
                         "%1    var %8 = mSkMgr.InsertArcLengthDimension(%3, dimensionPosition, \"%7\");%2"
                         "%1}%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
                     "%1{%2"
                     "%1    var dimensionPosition = new Array(%10,%11,%12);%2"
                     "%1    var %14 = mSkMgr.InsertArcLengthDimension(%3, dimensionPosition, \"%13\");%2"
                     "%1    %3.put_Erased(true);%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertOrdinateDimension(const QString& variable,
                                                                        const OdGePoint3d& definingPoint,
                                                                        const OdGePoint3d& leaderEnd,
                                                                        const QString& text, bool usesXAxis)
{
    return Statement("%1var Coordinates1 = new Array(%3,%4,%5);%2"
                     "%1var Coordinates2 = new Array(%6,%7,%8);%2%2"
                     "%1var %11 = mSkMgr.InsertOrdinateDimension(%2"
                     "%1 Coordinates1,%2"
                     "%1 Coordinates2,%2"
                     "%1 \"%9\", %10);%2",
                     definingPoint, leaderEnd, text, FlagWord(usesXAxis), variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertDiameterDimension(const QString& variable,
                                                                        const MeasuredCurve& curve,
                                                                        const OdGePoint3d& chordPoint,
                                                                        const QString& text)
{
    return OnCurve("Diameter", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertRadialDimension(const QString& variable,
                                                                      const MeasuredCurve& curve,
                                                                      const OdGePoint3d& chordPoint,
                                                                      const QString& text)
{
    return OnCurve("Radial", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertJoggedDimension(
    const QString& variable, const MeasuredCurve& curve, const OdGePoint3d& overrideCenter, const OdGePoint3d& jogPoint,
    const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement(
            "%1{%2"
            "%1    var Coordinates1 = new Array(%5,%6,%7);%2"
            "%1    var Coordinates2 = new Array(%8,%9,%10);%2"
            "%1    var Coordinates3 = new Array(%11,%12,%13);%2%2"
            "%1    var %4 = mSkMgr.InsertJoggedDimensionCircle(%3, Coordinates1, Coordinates2,Coordinates3, \"%14\");%2"
            "%1}%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement(
            "%1{%2"
            "%1    var Coordinates1 = new Array(%9,%10,%11);%2"
            "%1    var Coordinates2 = new Array(%12,%13,%14);%2"
            "%1    var Coordinates3 = new Array(%15,%16,%17);%2%2"
            "%1    var %3 = mSkMgr.InsertCircle(%4, %5, %6, %7);%2"
            "%1    var %8 = mSkMgr.InsertJoggedDimensionCircle(%3, Coordinates1, Coordinates2,Coordinates3, \"%18\");%2"
            "%1    %3.put_Erased(true);%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement(
            "%1{%2"
            "%1    var Coordinates1 = new Array(%5,%6,%7);%2"
            "%1    var Coordinates2 = new Array(%8,%9,%10);%2"
            "%1    var Coordinates3 = new Array(%11,%12,%13);%2%2"
            "%1    var %4 = mSkMgr.InsertJoggedDimensionArc(%3, Coordinates1, Coordinates2, Coordinates3, \"%14\");%2"
            "%1}%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    return Statement(
        "%1{%2"
        "%1    var Coordinates1 = new Array(%11,%12,%13);%2"
        "%1    var Coordinates2 = new Array(%14,%15,%16);%2"
        "%1    var Coordinates3 = new Array(%17,%18,%19);%2%2"
        "%1    var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
        "%1    var %10 = mSkMgr.InsertJoggedDimensionArc(%3, Coordinates1, Coordinates2, Coordinates3, \"%20\");%2"
        "%1    %3.put_Erased(true);%2"
        "%1}%2",
        curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, variable,
        overrideCenter, jogPoint, chordPoint, text);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertRotatedDimension(const QString& variable,
                                                                       const OdGePoint3d& first,
                                                                       const OdGePoint3d& second,
                                                                       const OdGePoint3d& linePoint,
                                                                       const QString& text, double rotation)
{
    return Statement("%1var Coordinates1 = new Array(%3,%4,%5);%2"
                     "%1var Coordinates2 = new Array(%6,%7,%8);%2"
                     "%1var Coordinates3 = new Array(%9,%10,%11);%2%2"
                     "%1var %14 = mSkMgr.InsertRotatedDimension(%2"
                     "%1 Coordinates1,%2"
                     "%1 Coordinates2,%2"
                     "%1 Coordinates3,%2"
                     "%1\"%12\", %13);%2",
                     first, second, linePoint, text, Fixed{rotation}, variable);
}

// Diameters and radii differ in one word.
QString CZtConverterKVAPIObjectJavaScript::OnCurve(const char* kind, const QString& variable,
                                                   const MeasuredCurve& curve, const OdGePoint3d& chordPoint,
                                                   const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    var Coordinates1 = new Array(%6,%7,%8);%2%2"
                         "%1    var %5 = mSkMgr.Insert%3DimensionCircle(%4, Coordinates1, \"%9\");%2"
                         "%1}%2",
                         kind, curve.name, variable, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement("%1{%2"
                         "%1    var Coordinates1 = new Array(%10,%11,%12);%2%2"
                         "%1    var %4 = mSkMgr.InsertCircle(%5, %6, %7, %8);%2"
                         "%1    var %9 = mSkMgr.Insert%3DimensionCircle(%4, Coordinates1, \"%13\");%2"
                         "%1    %4.put_Erased(true);%2"
                         "%1}%2",
                         kind, curve.name, curve.center, Fixed{curve.radius}, variable, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    var Coordinates1 = new Array(%6,%7,%8);%2%2"
                         "%1    var %5 = mSkMgr.Insert%3DimensionArc(%4, Coordinates1, \"%9\");%2"
                         "%1}%2",
                         kind, curve.name, variable, chordPoint, text);
    }
    return Statement("%1{%2"
                     "%1    var Coordinates1 = new Array(%12,%13,%14);%2%2"
                     "%1    var %4 = mSkMgr.InsertArc(%5, %6, %7, %8, %9, %10);%2"
                     "%1    var %11 = mSkMgr.Insert%3DimensionArc(%4, Coordinates1, \"%15\");%2"
                     "%1    %4.put_Erased(true);%2"
                     "%1}%2",
                     kind, curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle},
                     Fixed{curve.endAngle}, variable, chordPoint, text);
}
