// C++ COM texts of dimensions; the logic stands in objects/dimensions.cpp.
#include "backends/cppcom/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertTemporaryLine(const QString& name, const OdGePoint3d& start,
                                                                const OdGePoint3d& end)
{
    return Statement("%1ILinePtr %3 = kvSketchManager->InsertLine(%4, %5, %6, %7, %8, %9);%2", name, start, end);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteEraseTemporary(const QString& name)
{
    return Statement("%1%3->put_Erased(VARIANT_TRUE);%2", name);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertAlignedDimension(const QString& variable, const OdGePoint3d& first,
                                                                   const OdGePoint3d& second,
                                                                   const OdGePoint3d& linePoint, const QString& text)
{
    const std::int32_t number1 = NextLocalNumber();
    const std::int32_t number2 = NextLocalNumber();
    const std::int32_t number3 = NextLocalNumber();
    QString code = PointArray(CurrentIndent(), number1, first);
    code += PointArray(CurrentIndent(), number2, second);
    code += PointArray(CurrentIndent(), number3, linePoint);
    code += Statement("%1%3 = kvSketchManager->InsertAlignedDimension( variant%4, variant%5, variant%6, L\"%7\" );%2",
                      variable, number1, number2, number3, text);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertAngularDimension2Line(const QString& variable,
                                                                        const QString& firstLine,
                                                                        const QString& secondLine,
                                                                        const OdGePoint3d& arcPoint,
                                                                        const QString& text)
{
    const kv::Indent inner{Counters().IndentLevel + 1};
    const std::int32_t number = NextLocalNumber();
    QString code = Statement("%1{%2");
    code += PointArray(inner, number, arcPoint);
    code += Statement("%1    %3 = kvSketchManager->InsertAngularDimension2Line(%4, %5, variant%6, L\"%7\");%2"
                      "%1}%2",
                      variable, firstLine, secondLine, number, text);
    return code;
}

QString
CZtConverterKVAPIObjectCPPCOM::WriteInsertAngularDimension3Point(const QString& variable, const OdGePoint3d& center,
                                                                 const OdGePoint3d& first, const OdGePoint3d& second,
                                                                 const OdGePoint3d& arcPoint, const QString& text)
{
    const std::int32_t number1 = NextLocalNumber();
    const std::int32_t number2 = NextLocalNumber();
    const std::int32_t number3 = NextLocalNumber();
    const std::int32_t number4 = NextLocalNumber();
    QString code = PointArray(CurrentIndent(), number1, center);
    code += PointArray(CurrentIndent(), number2, first);
    code += PointArray(CurrentIndent(), number3, second);
    code += PointArray(CurrentIndent(), number4, arcPoint);
    code += Statement("%1%3 = kvSketchManager->InsertAngularDimension3Point(%2"
                      "%1variant%4,%2"
                      "%1 variant%5,%2"
                      "%1 variant%6,%2"
                      "%1 variant%7, L\"%8\" );%2",
                      variable, number1, number2, number3, number4, text);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertAngularDimensionArc(const QString& variable,
                                                                      const MeasuredCurve& curve,
                                                                      const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number, arcPoint);
        code += Statement("%1    %3 = kvSketchManager->InsertAngularDimensionArc( %4, variant%5, L\"%6\" );%2"
                          "%1}%2",
                          variable, curve.name, number, text);
        return code;
    }
    const kv::Indent inner{Counters().IndentLevel + 1};
    const std::int32_t number = NextLocalNumber();
    QString code =
        Statement("%1ICircleArcPtr %3 = kvSketchManager->InsertArc(%4, %5, %6, %7, %8, %9);%2"
                  "%1{%2",
                  curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle});
    code += PointArray(inner, number, arcPoint);
    code += Statement("%1    %3 = kvSketchManager->InsertAngularDimensionArc( %4, variant%5, L\"%6\" );%2"
                      "%1    %4->put_Erased(VARIANT_TRUE);%2"
                      "%1}%2",
                      variable, curve.name, number, text);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertArcLengthDimension(const QString& variable,
                                                                     const MeasuredCurve& curve, bool isPartial,
                                                                     const OdGePoint3d& first,
                                                                     const OdGePoint3d& second,
                                                                     const OdGePoint3d& arcPoint, const QString& text)
{
    if (curve.isKnown && isPartial)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number1 = NextLocalNumber();
        const std::int32_t number2 = NextLocalNumber();
        const std::int32_t number3 = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number1, first);
        code += PointArray(inner, number2, second);
        code += PointArray(inner, number3, arcPoint);
        code += Statement(
            "%1    %3 = kvSketchManager->InsertArcLengthDimensionPartial(%4, variant%5, variant%6, variant%7, L\"%8\");%2"
            "%1}%2",
            variable, curve.name, number1, number2, number3, text);
        return code;
    }
    if (isPartial)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number1 = NextLocalNumber();
        const std::int32_t number2 = NextLocalNumber();
        const std::int32_t number3 = NextLocalNumber();
        QString code =
            Statement("%1ICircleArcPtr %3 = kvSketchManager->InsertArc(%4, %5, %6, %7, %8, %9);%2"
                      "%1{%2",
                      curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle});
        code += PointArray(inner, number1, first);
        code += PointArray(inner, number2, second);
        code += PointArray(inner, number3, arcPoint);
        code += Statement(
            "%1    %3 = kvSketchManager->InsertArcLengthDimensionPartial(%4, variant%5, variant%6, variant%7, L\"%8\");%2"
            "%1    %4->put_Erased(VARIANT_TRUE);%2"
            "%1}%2",
            variable, curve.name, number1, number2, number3, text);
        return code;
    }
    if (curve.isKnown)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number, arcPoint);
        code += Statement("%1    %3 = kvSketchManager->InsertArcLengthDimension(%4, variant%5, L\"%6\");%2"
                          "%1}%2",
                          variable, curve.name, number, text);
        return code;
    }
    const kv::Indent inner{Counters().IndentLevel + 1};
    const std::int32_t number = NextLocalNumber();
    QString code =
        Statement("%1ICircleArcPtr %3 = kvSketchManager->InsertArc(%4, %5, %6, %7, %8, %9);%2"
                  "%1{%2",
                  curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle});
    code += PointArray(inner, number, arcPoint);
    code += Statement("%1    %3 = kvSketchManager->InsertArcLengthDimension(%4, variant%5, L\"%6\");%2"
                      "%1    %4->put_Erased(VARIANT_TRUE);%2"
                      "%1}%2",
                      variable, curve.name, number, text);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertOrdinateDimension(const QString& variable,
                                                                    const OdGePoint3d& definingPoint,
                                                                    const OdGePoint3d& leaderEnd, const QString& text,
                                                                    bool usesXAxis)
{
    const std::int32_t number1 = NextLocalNumber();
    const std::int32_t number2 = NextLocalNumber();
    QString code = PointArray(CurrentIndent(), number1, definingPoint);
    code += PointArray(CurrentIndent(), number2, leaderEnd);
    code += Statement("%1%3 = kvSketchManager->InsertOrdinateDimension(%2"
                      "%1 variant%4,%2"
                      "%1 variant%5,%2"
                      "%1 L\"%6\", %7);%2",
                      variable, number1, number2, text, FlagWord(usesXAxis));
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertDiameterDimension(const QString& variable, const MeasuredCurve& curve,
                                                                    const OdGePoint3d& chordPoint, const QString& text)
{
    return OnCurve("Diameter", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertRadialDimension(const QString& variable, const MeasuredCurve& curve,
                                                                  const OdGePoint3d& chordPoint, const QString& text)
{
    return OnCurve("Radial", variable, curve, chordPoint, text);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertJoggedDimension(const QString& variable, const MeasuredCurve& curve,
                                                                  const OdGePoint3d& overrideCenter,
                                                                  const OdGePoint3d& jogPoint,
                                                                  const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number1 = NextLocalNumber();
        const std::int32_t number2 = NextLocalNumber();
        const std::int32_t number3 = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number1, overrideCenter);
        code += PointArray(inner, number2, jogPoint);
        code += PointArray(inner, number3, chordPoint);
        code += Statement(
            "%1    %3 = kvSketchManager->InsertJoggedDimensionCircle( %4, variant%5, variant%6,variant%7, L\"%8\" );%2"
            "%1}%2",
            variable, curve.name, number1, number2, number3, text);
        return code;
    }
    if (!curve.isArc)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number1 = NextLocalNumber();
        const std::int32_t number2 = NextLocalNumber();
        const std::int32_t number3 = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number1, overrideCenter);
        code += PointArray(inner, number2, jogPoint);
        code += PointArray(inner, number3, chordPoint);
        code += Statement(
            "%1    ICirclePtr %3 = kvSketchManager->InsertCircle( %4, %5, %6, %7);%2"
            "%1    %8 = kvSketchManager->InsertJoggedDimensionCircle( %3, variant%9, variant%10,variant%11, L\"%12\" );%2"
            "%1    %3->put_Erased(VARIANT_TRUE);%2"
            "%1}%2",
            curve.name, curve.center, Fixed{curve.radius}, variable, number1, number2, number3, text);
        return code;
    }
    if (curve.isKnown)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number1 = NextLocalNumber();
        const std::int32_t number2 = NextLocalNumber();
        const std::int32_t number3 = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number1, overrideCenter);
        code += PointArray(inner, number2, jogPoint);
        code += PointArray(inner, number3, chordPoint);
        code += Statement(
            "%1    %3 = kvSketchManager->InsertJoggedDimensionArc( %4, variant%5, variant%6, variant%7, L\"%8\");%2"
            "%1}%2",
            variable, curve.name, number1, number2, number3, text);
        return code;
    }
    const kv::Indent inner{Counters().IndentLevel + 1};
    const std::int32_t number1 = NextLocalNumber();
    const std::int32_t number2 = NextLocalNumber();
    const std::int32_t number3 = NextLocalNumber();
    QString code = Statement("%1{%2");
    code += PointArray(inner, number1, overrideCenter);
    code += PointArray(inner, number2, jogPoint);
    code += PointArray(inner, number3, chordPoint);
    code += Statement(
        "%1    ICircleArcPtr %3 = kvSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 );%2"
        "%1    %10 = kvSketchManager->InsertJoggedDimensionArc( %3, variant%11, variant%12, variant%13, L\"%14\");%2"
        "%1    %3->put_Erased(VARIANT_TRUE);%2"
        "%1}%2",
        curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle}, variable,
        number1, number2, number3, text);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertRotatedDimension(const QString& variable, const OdGePoint3d& first,
                                                                   const OdGePoint3d& second,
                                                                   const OdGePoint3d& linePoint, const QString& text,
                                                                   double rotation)
{
    const std::int32_t number1 = NextLocalNumber();
    const std::int32_t number2 = NextLocalNumber();
    const std::int32_t number3 = NextLocalNumber();
    QString code = PointArray(CurrentIndent(), number1, first);
    code += PointArray(CurrentIndent(), number2, second);
    code += PointArray(CurrentIndent(), number3, linePoint);
    code += Statement("%1%3 = kvSketchManager->InsertRotatedDimension(%2"
                      "%1 variant%4 ,%2"
                      "%1 variant%5,%2"
                      "%1 variant%6,%2"
                      "%1L\"%7\", %8);%2",
                      variable, number1, number2, number3, text, Fixed{rotation});
    return code;
}

// Diameters and radii differ in one word.
QString CZtConverterKVAPIObjectCPPCOM::OnCurve(const char* kind, const QString& variable, const MeasuredCurve& curve,
                                               const OdGePoint3d& chordPoint, const QString& text)
{
    if (!curve.isArc && curve.isKnown)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number, chordPoint);
        code += Statement("%1    %3 = kvSketchManager->Insert%4DimensionCircle( %5, variant%6, L\"%7\" );%2"
                          "%1}%2",
                          variable, kind, curve.name, number, text);
        return code;
    }
    if (!curve.isArc)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number, chordPoint);
        code += Statement("%1    ICirclePtr %3 = kvSketchManager->InsertCircle( %4, %5, %6, %7 );%2"
                          "%1    %8 = kvSketchManager->Insert%9DimensionCircle( %3, variant%10, L\"%11\" );%2"
                          "%1    %3->put_Erased(VARIANT_TRUE);%2"
                          "%1}%2",
                          curve.name, curve.center, Fixed{curve.radius}, variable, kind, number, text);
        return code;
    }
    if (curve.isKnown)
    {
        const kv::Indent inner{Counters().IndentLevel + 1};
        const std::int32_t number = NextLocalNumber();
        QString code = Statement("%1{%2");
        code += PointArray(inner, number, chordPoint);
        code += Statement("%1    %3 = kvSketchManager->Insert%4DimensionArc( %5, variant%6, L\"%7\" );%2"
                          "%1}%2",
                          variable, kind, curve.name, number, text);
        return code;
    }
    const kv::Indent inner{Counters().IndentLevel + 1};
    const std::int32_t number = NextLocalNumber();
    QString code = Statement("%1{%2");
    code += PointArray(inner, number, chordPoint);
    code += Statement("%1    ICircleArcPtr %3 = kvSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                      "%1    %10 = kvSketchManager->Insert%11DimensionArc( %3, variant%12, L\"%13\" );%2"
                      "%1    %3->put_Erased(VARIANT_TRUE);%2"
                      "%1}%2",
                      curve.name, curve.center, Fixed{curve.radius}, Fixed{curve.startAngle}, Fixed{curve.endAngle},
                      variable, kind, number, text);
    return code;
}

QString CZtConverterKVAPIObjectCPPCOM::PointArray(kv::Indent indent, std::int32_t number, const OdGePoint3d& point)
{
    const SafeArrayText array(SafeArrayText::Kind::Doubles, "variant", number);
    return array.Declare(indent, 3) + array.Elements(indent, CoordinateTexts(point, kv::FixedText));
}
