// C++ API texts of dimensions; the logic stands in objects/dimensions.cpp.
#include "backends/cpp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertTemporaryLine(const QString& name, const OdGePoint3d& start,
                                                             const OdGePoint3d& end)
{
    return Statement("%1kvLine_ptr %3;%2"
                     "%1kvSketchManager->InsertLine(%4, %5, %6, %7, %8, %9, &%3);%2",
                     name, start, end);
}

QString CZtConverterKVAPIObjectCPP::WriteEraseTemporary(const QString& name)
{
    return Statement("%1%3->put_Erased(true);%2", name);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertAlignedDimension(const QString& variable, const OdGePoint3d& first,
                                                                const OdGePoint3d& second, const OdGePoint3d& linePoint,
                                                                const QString& text)
{
    return Statement(
        "%1kvDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
        "%1Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); %2"
        "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
        "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
        "%1Coordinates3.add(%9);Coordinates3.add(%10);Coordinates3.add(%11);%2"
        "%1kvSketchManager->InsertAlignedDimension( Coordinates1, Coordinates2, Coordinates3, L\"%12\", &%13 );%2",
        first, second, linePoint, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertAngularDimension2Line(const QString& variable, const QString& firstLine,
                                                                     const QString& secondLine,
                                                                     const OdGePoint3d& arcPoint, const QString& text)
{
    return Statement("%1{%2"
                     "%1    kvDoubleArray dimPositionPoint;%2"
                     "%1    dimPositionPoint.add(%5); dimPositionPoint.add(%6); dimPositionPoint.add(%7);%2"
                     "%1    kvSketchManager->InsertAngularDimension2Line(%3, %4, dimPositionPoint, L\"%8\", &%9);%2"
                     "%1}%2",
                     firstLine, secondLine, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertAngularDimension3Point(const QString& variable,
                                                                      const OdGePoint3d& center,
                                                                      const OdGePoint3d& first,
                                                                      const OdGePoint3d& second,
                                                                      const OdGePoint3d& arcPoint, const QString& text)
{
    return Statement("%1kvDoubleArray Coordinates1,Coordinates2,Coordinates3,Coordinates4;%2"
                     "%1Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();Coordinates4.clear();%2%2"
                     "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
                     "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
                     "%1Coordinates3.add(%9);Coordinates3.add(%10);Coordinates3.add(%11);%2"
                     "%1Coordinates4.add(%12);Coordinates4.add(%13);Coordinates4.add(%14);%2"
                     "%1kvSketchManager->InsertAngularDimension3Point(%2"
                     "%1Coordinates1,%2"
                     "%1 Coordinates2,%2"
                     "%1 Coordinates3,%2"
                     "%1 Coordinates4, L\"%15\" ,&%16 );%2",
                     center, first, second, arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertAngularDimensionArc(const QString& variable, const MeasuredCurve& curve,
                                                                   const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray dimPositionPoint;%2"
                         "%1    dimPositionPoint.add(%4); dimPositionPoint.add(%5); dimPositionPoint.add(%6);%2"
                         "%1    kvSketchManager->InsertAngularDimensionArc( %3, dimPositionPoint, L\"%7\", &%8 );%2"
                         "%1}%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1kvCircleArc_ptr %3;%2"
                     "%1kvSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
                     "%1{%2"
                     "%1    kvDoubleArray dimPositionPoint;%2"
                     "%1    dimPositionPoint.add(%10); dimPositionPoint.add(%11); dimPositionPoint.add(%12);%2"
                     "%1    kvSketchManager->InsertAngularDimensionArc( %3, dimPositionPoint, L\"%13\", &14 );%2"
                     "%1    %3->put_Erased(true);%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertArcLengthDimension(const QString& variable, const MeasuredCurve& curve,
                                                                  bool isPartial, const OdGePoint3d& first,
                                                                  const OdGePoint3d& second,
                                                                  const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown && isPartial)
    {
        return Statement(
            "%1{%2"
            "%1    kvDoubleArray firstPoint, secondPoint, dimensionPosition;%2"
            "%1    firstPoint.add(%4); firstPoint.add(%5); firstPoint.add(%6);%2"
            "%1    secondPoint.add(%7); secondPoint.add(%8); secondPoint.add(%9);%2"
            "%1    dimensionPosition.add(%10); dimensionPosition.add(%11); dimensionPosition.add(%12);%2"
            "%1    kvSketchManager->InsertArcLengthDimensionPartial(%3, firstPoint, secondPoint, dimensionPosition, L\"%13\", &%14);%2"
            "%1}%2",
            curve.name, first, second, arcPoint, text, variable);
    }
    if (isPartial)
    {
        return Statement(
            "%1kvCircleArc_ptr %3;%2"
            "%1kvSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
            "%1{%2"
            "%1    kvDoubleArray firstPoint, secondPoint, dimensionPosition;%2"
            "%1    firstPoint.add(%10); firstPoint.add(%11); firstPoint.add(%12);%2"
            "%1    secondPoint.add(%13); secondPoint.add(%14); secondPoint.add(%15);%2"
            "%1    dimensionPosition.add(%16); dimensionPosition.add(%17); dimensionPosition.add(%18);%2"
            "%1    kvSketchManager->InsertArcLengthDimensionPartial(%3, firstPoint, secondPoint, dimensionPosition, L\"%19\", &%20);%2"
            "%1    %3->put_Erased(true);%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, first,
            second, arcPoint, text, variable);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray dimensionPosition;%2"
                         "%1    dimensionPosition.add(%4); dimensionPosition.add(%5); dimensionPosition.add(%6);%2"
                         "%1    kvSketchManager->InsertArcLengthDimension(%3, dimensionPosition, L\"%7\", &%8);%2"
                         "%1}%2",
                         curve.name, arcPoint, text, variable);
    }
    return Statement("%1kvCircleArc_ptr %3;%2"
                     "%1kvSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
                     "%1{%2"
                     "%1    kvDoubleArray dimensionPosition;%2"
                     "%1    dimensionPosition.add(%10); dimensionPosition.add(%11); dimensionPosition.add(%12);%2"
                     "%1    kvSketchManager->InsertArcLengthDimension(%3, dimensionPosition, L\"%13\", &%14);%2"
                     "%1    %3->put_Erased(true);%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     arcPoint, text, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertOrdinateDimension(const QString& variable,
                                                                 const OdGePoint3d& definingPoint,
                                                                 const OdGePoint3d& leaderEnd, const QString& text,
                                                                 bool usesXAxis)
{
    return Statement("%1kvDoubleArray Coordinates1,Coordinates2;%2"
                     "%1Coordinates1.clear();Coordinates2.clear();%2%2"
                     "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
                     "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
                     "%1kvSketchManager->InsertOrdinateDimension(%2"
                     "%1 Coordinates1,%2"
                     "%1 Coordinates2,%2"
                     "%1 L\"%9\", %10 ,&%11);%2",
                     definingPoint, leaderEnd, text, FlagWord(usesXAxis), variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertDiameterDimension(const QString& variable, const MeasuredCurve& curve,
                                                                 const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray Coordinates1;%2"
                         "%1    Coordinates1.clear();%2%2"
                         "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
                         "%1    kvSketchManager->InsertDiameterDimensionCircle( %3, Coordinates1, L\"%8\", &%4 );%2"
                         "%1}%2",
                         curve.name, variable, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray Coordinates1;%2"
                         "%1    Coordinates1.clear();%2%2"
                         "%1    Coordinates1.add(%9);Coordinates1.add(%10);Coordinates1.add(%11);%2"
                         "%1    kvCircle_ptr %3; kvSketchManager->InsertCircle( %4, %5, %6, %7 ,&%3 );%2"
                         "%1    kvSketchManager->InsertDiameterDimensionCircle( %3, Coordinates1, L\"%12\" ,&%8 );%2"
                         "%1    %3->put_Erased(true);%2"
                         "%1}%2",
                         curve.name, curve.center, Fixed{curve.radius}, variable, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray Coordinates1;%2"
                         "%1    Coordinates1.clear();%2%2"
                         "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
                         "%1    kvSketchManager->InsertDiameterDimensionArc( %3, Coordinates1, L\"%8\", &%4 );%2"
                         "%1}%2",
                         curve.name, variable, chordPoint, text);
    }
    return Statement("%1{%2"
                     "%1    kvDoubleArray Coordinates1;%2"
                     "%1    Coordinates1.clear();%2%2"
                     "%1    Coordinates1.add(%11);Coordinates1.add(%12);Coordinates1.add(%13);%2"
                     "%1    kvCircleArc_ptr %3; kvSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 ,&%3 );%2"
                     "%1    kvSketchManager->InsertDiameterDimensionArc( %3, Coordinates1, L\"%14\", &%10 );%2"
                     "%1    %3->put_Erased(true);%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     variable, chordPoint, text);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertRadialDimension(const QString& variable, const MeasuredCurve& curve,
                                                               const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray Coordinates1;%2"
                         "%1    Coordinates1.clear();%2%2"
                         "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
                         "%1    kvSketchManager->InsertRadialDimensionCircle( %3, Coordinates1, L\"%8\", &%4 );%2"
                         "%1}%2",
                         curve.name, variable, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray Coordinates1;%2"
                         "%1    Coordinates1.clear();%2%2"
                         "%1    Coordinates1.add(%9);Coordinates1.add(%10);Coordinates1.add(%11);%2"
                         "%1    kvCircle_ptr %3; kvSketchManager->InsertCircle( %4, %5, %6, %7, &%3 );%2"
                         "%1    kvSketchManager->InsertRadialDimensionCircle( %3, Coordinates1, L\"%12\", &%8 );%2"
                         "%1    %3->put_Erased(true);%2"
                         "%1}%2",
                         curve.name, curve.center, Fixed{curve.radius}, variable, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement("%1{%2"
                         "%1    kvDoubleArray Coordinates1;%2"
                         "%1    Coordinates1.clear();%2%2"
                         "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
                         "%1    kvSketchManager->InsertRadialDimensionArc( %3, Coordinates1, L\"%8\", &%4 );%2"
                         "%1}%2",
                         curve.name, variable, chordPoint, text);
    }
    return Statement("%1{%2"
                     "%1    kvDoubleArray Coordinates1;%2"
                     "%1    Coordinates1.clear();%2%2"
                     "%1    Coordinates1.add(%11);Coordinates1.add(%12);Coordinates1.add(%13);%2"
                     "%1    kvCircleArc_ptr %3; kvSketchManager->InsertArc( %4, %5, %6, %7, %8, %9, &%3 );%2"
                     "%1    kvSketchManager->InsertRadialDimensionArc( %3, Coordinates1, L\"%14\", &%10 );%2"
                     "%1    %3->put_Erased(true);%2"
                     "%1}%2",
                     curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                     variable, chordPoint, text);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertJoggedDimension(const QString& variable, const MeasuredCurve& curve,
                                                               const OdGePoint3d& overrideCenter,
                                                               const OdGePoint3d& jogPoint,
                                                               const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        return Statement(
            "%1{%2"
            "%1    kvDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
            "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
            "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
            "%1    Coordinates2.add(%8);Coordinates2.add(%9);Coordinates2.add(%10);%2"
            "%1    Coordinates3.add(%11);Coordinates3.add(%12);Coordinates3.add(%13);%2"
            "%1    kvSketchManager->InsertJoggedDimensionCircle( %3, Coordinates1, Coordinates2,Coordinates3, L\"%14\" ,&%4 );%2"
            "%1}%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (!curve.isArc)
    {
        return Statement(
            "%1{%2"
            "%1    kvDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
            "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
            "%1    Coordinates1.add(%9);Coordinates1.add(%10);Coordinates1.add(%11);%2"
            "%1    Coordinates2.add(%12);Coordinates2.add(%13);Coordinates2.add(%14);%2"
            "%1    Coordinates3.add(%15);Coordinates3.add(%16);Coordinates3.add(%17);%2"
            "%1    kvCircle_ptr %3; kvSketchManager->InsertCircle( %4, %5, %6, %7 ,&%3);%2"
            "%1    kvSketchManager->InsertJoggedDimensionCircle( %3, Coordinates1, Coordinates2,Coordinates3, L\"%18\" ,&%8 );%2"
            "%1    %3->put_Erased(true);%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    if (curve.isKnown)
    {
        return Statement(
            "%1{%2"
            "%1    kvDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
            "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
            "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
            "%1    Coordinates2.add(%8);Coordinates2.add(%9);Coordinates2.add(%10);%2"
            "%1    Coordinates3.add(%11);Coordinates3.add(%12);Coordinates3.add(%13);%2"
            "%1    kvSketchManager->InsertJoggedDimensionArc( %3, Coordinates1, Coordinates2, Coordinates3, L\"%14\" ,&%4);%2"
            "%1}%2",
            curve.name, variable, overrideCenter, jogPoint, chordPoint, text);
    }
    return Statement(
        "%1{%2"
        "%1    kvDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
        "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
        "%1    Coordinates1.add(%11);Coordinates1.add(%12);Coordinates1.add(%13);%2"
        "%1    Coordinates2.add(%14);Coordinates2.add(%15);Coordinates2.add(%16);%2"
        "%1    Coordinates3.add(%17);Coordinates3.add(%18);Coordinates3.add(%19);%2"
        "%1    kvCircleArc_ptr %3; kvSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 ,&%3 );%2"
        "%1    kvSketchManager->InsertJoggedDimensionArc( %3, Coordinates1, Coordinates2, Coordinates3, L\"%20\" ,&%10);%2"
        "%1    %3->put_Erased(true);%2"
        "%1}%2",
        curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, variable,
        overrideCenter, jogPoint, chordPoint, text);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertRotatedDimension(const QString& variable, const OdGePoint3d& first,
                                                                const OdGePoint3d& second, const OdGePoint3d& linePoint,
                                                                const QString& text, double rotation)
{
    return Statement("%1kvDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
                     "%1Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
                     "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
                     "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
                     "%1Coordinates3.add(%9);Coordinates3.add(%10);Coordinates3.add(%11);%2"
                     "%1kvSketchManager->InsertRotatedDimension(%2"
                     "%1 Coordinates1 ,%2"
                     "%1 Coordinates2,%2"
                     "%1 Coordinates3,%2"
                     "%1L\"%12\", %13 ,&%14);%2",
                     first, second, linePoint, text, Fixed{rotation}, variable);
}
