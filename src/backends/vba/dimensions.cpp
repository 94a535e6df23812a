// VBA texts of dimensions; the logic stands in objects/dimensions.cpp.
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVba::WriteInsertTemporaryLine(const QString& name, const OdGePoint3d& start,
                                                             const OdGePoint3d& end)
{
    return Statement("%1Dim %3 As Morvane.Line%2"
                     "%1Set %3 = kvSketchManager.InsertLine(%4, %5, %6, %7, %8, %9)%2",
                     name, start, end);
}

QString CZtConverterKVAPIObjectVba::WriteEraseTemporary(const QString& name)
{
    return Statement("%1%3.Erased = True%2", name);
}

QString CZtConverterKVAPIObjectVba::WriteInsertAlignedDimension(const QString& variable, const OdGePoint3d& first,
                                                                const OdGePoint3d& second, const OdGePoint3d& linePoint,
                                                                const QString& text)
{
    return Statement(
        "%1Dim Coordinates1(2) As Double%2"
        "%1Dim Coordinates2(2) As Double%2"
        "%1Dim Coordinates3(2) As Double%2"
        "%1Coordinates1( 0 )=%3%2"
        "%1Coordinates1( 1 )=%4%2"
        "%1Coordinates1( 2 )=%5%2"
        "%1Coordinates2( 0 )=%6%2"
        "%1Coordinates2( 1 )=%7%2"
        "%1Coordinates2( 2 )=%8%2"
        "%1Coordinates3( 0 )=%9%2"
        "%1Coordinates3( 1 )=%10%2"
        "%1Coordinates3( 2 )=%11%2"
        "%1Set %13 = kvSketchManager.InsertAlignedDimension( Coordinates1, Coordinates2, Coordinates3, \"%12\" )%2",
        first, second, linePoint, text, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertAngularDimension2Line(const QString& variable, const QString& firstLine,
                                                                     const QString& secondLine,
                                                                     const OdGePoint3d& arcPoint, const QString& text)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim dimPositionPoint(2) As Double%2"
                     "%1    dimPositionPoint( 0 )=%5%2"
                     "%1    dimPositionPoint( 1 )=%6%2"
                     "%1    dimPositionPoint( 2 )=%7%2"
                     "%1    Set %9 = kvSketchManager.InsertAngularDimension2Line(%3, %4, dimPositionPoint, \"%8\")%2"
                     "%1End If%2",
                     firstLine, secondLine, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertAngularDimension3Point(const QString& variable,
                                                                      const OdGePoint3d& center,
                                                                      const OdGePoint3d& first,
                                                                      const OdGePoint3d& second,
                                                                      const OdGePoint3d& arcPoint, const QString& text)
{
    return Statement("%1Dim Coordinates1(2) As Double%2"
                     "%1Dim Coordinates2(2) As Double%2"
                     "%1Dim Coordinates3(2) As Double%2"
                     "%1Dim Coordinates4(2) As Double%2%2"
                     "%1Coordinates1( 0 )=%3%2"
                     "%1Coordinates1( 1 )=%4%2"
                     "%1Coordinates1( 2 )=%5%2"
                     "%1Coordinates2( 0 )=%6%2"
                     "%1Coordinates2( 1 )=%7%2"
                     "%1Coordinates2( 2 )=%8%2"
                     "%1Coordinates3( 0 )=%9%2"
                     "%1Coordinates3( 1 )=%10%2"
                     "%1Coordinates3( 2 )=%11%2"
                     "%1Coordinates4( 0 )=%12%2"
                     "%1Coordinates4( 1 )=%13%2"
                     "%1Coordinates4( 2 )=%14%2"
                     "%1Set %16 = kvSketchManager.InsertAngularDimension3Point( _%2"
                     "%1Coordinates1, _%2"
                     "%1 Coordinates2, _%2"
                     "%1 Coordinates3, _%2"
                     "%1 Coordinates4, \"%15\" )%2",
                     center, first, second, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertAngularDimensionArc(const QString& variable, const MeasuredCurve& curve,
                                                                   const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown)
    {
        return Statement("%1If 1 Then%2"
                         "%1    Dim dimPositionPoint(2) As Double%2"
                         "%1    dimPositionPoint( 0 )=%4%2"
                         "%1    dimPositionPoint( 1 )=%5%2"
                         "%1    dimPositionPoint( 2 )=%6%2"
                         "%1    Set %8 = kvSketchManager.InsertAngularDimensionArc( %3, dimPositionPoint, \"%7\" )%2"
                         "%1End If%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1Dim %3 As Morvane.CircleArc%2"
                     "%1Set %3 = kvSketchManager.InsertArc(%4, %5, %6, %7, %8, %9)%2"
                     "%1If 1 Then%2"
                     "%1    Dim dimPositionPoint(2) As Double%2"
                     "%1    dimPositionPoint( 0 )=%10%2"
                     "%1    dimPositionPoint( 1 )=%11%2"
                     "%1    dimPositionPoint( 2 )=%12%2"
                     "%1    Set %14 = kvSketchManager.InsertAngularDimensionArc( %3, dimPositionPoint, \"%13\" )%2"
                     "%1    %3.Erased = True%2"
                     "%1End If%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertArcLengthDimension(const QString& variable, const MeasuredCurve& curve,
                                                                  bool isPartial, const OdGePoint3d& first,
                                                                  const OdGePoint3d& second,
                                                                  const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown && isPartial)
    {
        return Statement(
            "%1If 1 Then%2"
            "%1    Dim firstPoint(2) As Double%2"
            "%1    Dim secondPoint(2) As Double%2"
            "%1    Dim dimensionPosition(2) As Double%2"
            "%1    firstPoint( 0 )=%4%2"
            "%1    firstPoint( 1 )=%5%2"
            "%1    firstPoint( 2 )=%6%2"
            "%1    secondPoint( 0 )=%7%2"
            "%1    secondPoint( 1 )=%8%2"
            "%1    secondPoint( 2 )=%9%2"
            "%1    dimensionPosition( 0 )=%10%2"
            "%1    dimensionPosition( 1 )=%11%2"
            "%1    dimensionPosition( 2 )=%12%2"
            "%1    Set %14 = kvSketchManager.InsertArcLengthDimensionPartial(%3, firstPoint, secondPoint, dimensionPosition, \"%13\")%2"
            "%1End If%2",
            curve.name, first, second, arcPoint, text, variable);
    }
    if (isPartial)
    {
        return Statement(
            "%1Dim %3 As Morvane.CircleArc%2"
            "%1Set %3 = kvSketchManager.InsertArc(%4, %5, %6, %7, %8, %9)%2"
            "%1If 1 Then%2"
            "%1    Dim firstPoint(2) As Double%2"
            "%1    Dim secondPoint(2) As Double%2"
            "%1    Dim dimensionPosition(2) As Double%2"
            "%1    firstPoint( 0 )=%10%2"
            "%1    firstPoint( 1 )=%11%2"
            "%1    firstPoint( 2 )=%12%2"
            "%1    secondPoint( 0 )=%13%2"
            "%1    secondPoint( 1 )=%14%2"
            "%1    secondPoint( 2 )=%15%2"
            "%1    dimensionPosition( 0 )=%16%2"
            "%1    dimensionPosition( 1 )=%17%2"
            "%1    dimensionPosition( 2 )=%18%2"
            "%1    Set %20 = kvSketchManager.InsertArcLengthDimensionPartial(%3, firstPoint, secondPoint, dimensionPosition, \"%19\")%2"
            "%1    %3.Erased = True%2"
            "%1End If%2",
            curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, first,
            second, arcPoint, text, variable);
    }
    if (curve.isKnown)
    {
        return Statement("%1If 1 Then%2"
                         "%1    Dim dimensionPosition(2) As Double%2"
                         "%1    dimensionPosition( 0 )=%4%2"
                         "%1    dimensionPosition( 1 )=%5%2"
                         "%1    dimensionPosition( 2 )=%6%2"
                         "%1    Set %8 = kvSketchManager.InsertArcLengthDimension(%3, dimensionPosition, \"%7\")%2"
                         "%1End If%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1Dim %3 As Morvane.CircleArc%2"
                     "%1Set %3 = kvSketchManager.InsertArc(%4, %5, %6, %7, %8, %9)%2"
                     "%1If 1 Then%2"
                     "%1    Dim dimensionPosition(2) As Double%2"
                     "%1    dimensionPosition( 0 )=%10%2"
                     "%1    dimensionPosition( 1 )=%11%2"
                     "%1    dimensionPosition( 2 )=%12%2"
                     "%1    Set %14 = kvSketchManager.InsertArcLengthDimension(%3, dimensionPosition, \"%13\")%2"
                     "%1    %3.Erased = True%2"
                     "%1End If%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertOrdinateDimension(const QString& variable,
                                                                 const OdGePoint3d& definingPoint,
                                                                 const OdGePoint3d& leaderEnd, const QString& text,
                                                                 bool usesXAxis)
{
    return Statement("%1Dim Coordinates1(2) As Double%2"
                     "%1Dim Coordinates2(2) As Double%2%2"
                     "%1Coordinates1( 0 )=%3%2"
                     "%1Coordinates1( 1 )=%4%2"
                     "%1Coordinates1( 2 )=%5%2"
                     "%1Coordinates2( 0 )=%6%2"
                     "%1Coordinates2( 1 )=%7%2"
                     "%1Coordinates2( 2 )=%8%2"
                     "%1Set %11 = kvSketchManager.InsertOrdinateDimension( _%2"
                     "%1 Coordinates1, _%2"
                     "%1 Coordinates2, _%2"
                     "%1 \"%9\", %10)%2",
                     definingPoint, leaderEnd, text, FlagWord(usesXAxis), variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertDiameterDimension(const QString& variable, const MeasuredCurve& curve,
                                                                 const OdGePoint3d& chordPoint, const QString& text)
{
    return OnCurve("Diameter", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectVba::WriteInsertRadialDimension(const QString& variable, const MeasuredCurve& curve,
                                                               const OdGePoint3d& chordPoint, const QString& text)
{
    return OnCurve("Radial", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectVba::WriteInsertJoggedDimension(const QString& variable, const MeasuredCurve& curve,
                                                               const OdGePoint3d& overrideCenter,
                                                               const OdGePoint3d& jogPoint,
                                                               const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement(
            "%1If 1 Then%2"
            "%1    Dim Coordinates1(2) As Double%2"
            "%1    Dim Coordinates2(2) As Double%2"
            "%1    Dim Coordinates3(2) As Double%2%2"
            "%1    Coordinates1( 0 )=%5%2"
            "%1    Coordinates1( 1 )=%6%2"
            "%1    Coordinates1( 2 )=%7%2"
            "%1    Coordinates2( 0 )=%8%2"
            "%1    Coordinates2( 1 )=%9%2"
            "%1    Coordinates2( 2 )=%10%2"
            "%1    Coordinates3( 0 )=%11%2"
            "%1    Coordinates3( 1 )=%12%2"
            "%1    Coordinates3( 2 )=%13%2"
            "%1    Set %4 = kvSketchManager.InsertJoggedDimensionCircle( %3, Coordinates1, Coordinates2,Coordinates3, \"%14\" )%2"
            "%1End If%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement(
            "%1If 1 Then%2"
            "%1    Dim Coordinates1(2) As Double%2"
            "%1    Dim Coordinates2(2) As Double%2"
            "%1    Dim Coordinates3(2) As Double%2%2"
            "%1    Coordinates1( 0 )=%9%2"
            "%1    Coordinates1( 1 )=%10%2"
            "%1    Coordinates1( 2 )=%11%2"
            "%1    Coordinates2( 0 )=%12%2"
            "%1    Coordinates2( 1 )=%13%2"
            "%1    Coordinates2( 2 )=%14%2"
            "%1    Coordinates3( 0 )=%15%2"
            "%1    Coordinates3( 1 )=%16%2"
            "%1    Coordinates3( 2 )=%17%2"
            "%1    Dim %3 As Morvane.Circle%2"
            "%1    Set %3 = kvSketchManager.InsertCircle( %4, %5, %6, %7)%2"
            "%1    Set %8 = kvSketchManager.InsertJoggedDimensionCircle( %3, Coordinates1, Coordinates2,Coordinates3, \"%18\" )%2"
            "%1    %3.Erased = True%2"
            "%1End If%2",
            curve.name, curve.center, Fixed{curve.radius}, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement(
            "%1If 1 Then%2"
            "%1    Dim Coordinates1(2) As Double%2"
            "%1    Dim Coordinates2(2) As Double%2"
            "%1    Dim Coordinates3(2) As Double%2%2"
            "%1    Coordinates1( 0 )=%5%2"
            "%1    Coordinates1( 1 )=%6%2"
            "%1    Coordinates1( 2 )=%7%2"
            "%1    Coordinates2( 0 )=%8%2"
            "%1    Coordinates2( 1 )=%9%2"
            "%1    Coordinates2( 2 )=%10%2"
            "%1    Coordinates3( 0 )=%11%2"
            "%1    Coordinates3( 1 )=%12%2"
            "%1    Coordinates3( 2 )=%13%2"
            "%1    Set %4 = kvSketchManager.InsertJoggedDimensionArc( %3, Coordinates1, Coordinates2, Coordinates3, \"%14\")%2"
            "%1End If%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    return Statement(
        "%1If 1 Then%2"
        "%1    Dim Coordinates1(2) As Double%2"
        "%1    Dim Coordinates2(2) As Double%2"
        "%1    Dim Coordinates3(2) As Double%2%2"
        "%1    Coordinates1( 0 )=%11%2"
        "%1    Coordinates1( 1 )=%12%2"
        "%1    Coordinates1( 2 )=%13%2"
        "%1    Coordinates2( 0 )=%14%2"
        "%1    Coordinates2( 1 )=%15%2"
        "%1    Coordinates2( 2 )=%16%2"
        "%1    Coordinates3( 0 )=%17%2"
        "%1    Coordinates3( 1 )=%18%2"
        "%1    Coordinates3( 2 )=%19%2"
        "%1    Dim %3 As Morvane.CircleArc%2"
        "%1    Set %3 = kvSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
        "%1    Set %10 = kvSketchManager.InsertJoggedDimensionArc( %3, Coordinates1, Coordinates2, Coordinates3, \"%20\")%2"
        "%1    %3.Erased = True%2"
        "%1End If%2",
        curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, variable,
        overrideCenter, jogPoint, chordPoint, text);
}

QString CZtConverterKVAPIObjectVba::WriteInsertRotatedDimension(const QString& variable, const OdGePoint3d& first,
                                                                const OdGePoint3d& second, const OdGePoint3d& linePoint,
                                                                const QString& text, double rotation)
{
    return Statement("%1Dim Coordinates1(2) As Double%2"
                     "%1Dim Coordinates2(2) As Double%2"
                     "%1Dim Coordinates3(2) As Double%2%2"
                     "%1Coordinates1( 0 )=%3%2"
                     "%1Coordinates1( 1 )=%4%2"
                     "%1Coordinates1( 2 )=%5%2"
                     "%1Coordinates2( 0 )=%6%2"
                     "%1Coordinates2( 1 )=%7%2"
                     "%1Coordinates2( 2 )=%8%2"
                     "%1Coordinates3( 0 )=%9%2"
                     "%1Coordinates3( 1 )=%10%2"
                     "%1Coordinates3( 2 )=%11%2"
                     "%1Set %14 = kvSketchManager.InsertRotatedDimension( _%2"
                     "%1 Coordinates1 , _%2"
                     "%1 Coordinates2, _%2"
                     "%1 Coordinates3, _%2"
                     "%1\"%12\", %13)%2",
                     first, second, linePoint, text, Fixed{rotation}, variable);
}

// Diameters and radii differ in one word.
QString CZtConverterKVAPIObjectVba::OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                            const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement("%1If 1 Then%2"
                         "%1    Dim Coordinates1(2) As Double%2%2"
                         "%1    Coordinates1( 0 )=%6%2"
                         "%1    Coordinates1( 1 )=%7%2"
                         "%1    Coordinates1( 2 )=%8%2"
                         "%1    Set %5 = kvSketchManager.Insert%3DimensionCircle( %4, Coordinates1, \"%9\" )%2"
                         "%1End If%2",
                         kind, curve.name, variable, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement("%1If 1 Then%2"
                         "%1    Dim Coordinates1(2) As Double%2%2"
                         "%1    Coordinates1( 0 )=%10%2"
                         "%1    Coordinates1( 1 )=%11%2"
                         "%1    Coordinates1( 2 )=%12%2"
                         "%1    Dim %4 As Morvane.Circle%2"
                         "%1    Set %4 = kvSketchManager.InsertCircle( %5, %6, %7, %8 )%2"
                         "%1    Set %9 = kvSketchManager.Insert%3DimensionCircle( %4, Coordinates1, \"%13\" )%2"
                         "%1    %4.Erased = True%2"
                         "%1End If%2",
                         kind, curve.name, curve.center, Fixed{curve.radius}, variable, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement("%1If 1 Then%2"
                         "%1    Dim Coordinates1(2) As Double%2%2"
                         "%1    Coordinates1( 0 )=%6%2"
                         "%1    Coordinates1( 1 )=%7%2"
                         "%1    Coordinates1( 2 )=%8%2"
                         "%1    Set %5 = kvSketchManager.Insert%3DimensionArc( %4, Coordinates1, \"%9\" )%2"
                         "%1End If%2",
                         kind, curve.name, variable, chordPoint, text);
    }
    return Statement("%1If 1 Then%2"
                     "%1    Dim Coordinates1(2) As Double%2%2"
                     "%1    Coordinates1( 0 )=%12%2"
                     "%1    Coordinates1( 1 )=%13%2"
                     "%1    Coordinates1( 2 )=%14%2"
                     "%1    Dim %4 As Morvane.CircleArc%2"
                     "%1    Set %4 = kvSketchManager.InsertArc( %5, %6, %7, %8, %9, %10 )%2"
                     "%1    Set %11 = kvSketchManager.Insert%3DimensionArc( %4, Coordinates1, \"%15\" )%2"
                     "%1    %4.Erased = True%2"
                     "%1End If%2",
                     kind, curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle},
                     Fixed{curve.endAngle}, variable, chordPoint, text);
}
