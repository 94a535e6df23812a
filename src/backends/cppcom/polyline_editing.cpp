// C++ COM texts of polyline editing; the logic stands in core/polyline_editing.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/safe_array.h"

using kv::General;

QString CZtConverterKVAPICPPCOM::WriteFitPolyline(const QStringList& names)
{
    const int number = ++ComCounters::OfProcess().WriteFitPolyline;
    QString text = Line("%1VARIANT_BOOL Success%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1Success%3=%2->Fit();\n", name, number);
    }
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteDecurvePolyline(const QStringList& names)
{
    const int number = ++ComCounters::OfProcess().WriteDecurvePolyline;
    QString text = Line("%1VARIANT_BOOL Success%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1Success%3=%2->Decurve();\n", name, number);
    }
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteSplinePolyline(const QStringList& names)
{
    const int number = ++ComCounters::OfProcess().WriteSplinePolyline;
    QString text = Line("%1VARIANT_BOOL Success%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1Success%3=%2->Spline();\n", name, number);
    }
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteJoinPolyline(const QString& first, const QString& other)
{
    return Statement("%1VARIANT_BOOL bRet%3 = VARIANT_FALSE;%2"
                     "%1bRet%3=%4->JoinPolyLine( %5 );%2",
                     NextLocalNumber(), first, other);
}

QString CZtConverterKVAPICPPCOM::WriteJoinLine(const QString& first, const QString& other)
{
    return Statement("%1VARIANT_BOOL bRet%3 = VARIANT_FALSE;%2"
                     "%1bRet%3=%4->JoinLine( %5 );%2",
                     NextLocalNumber(), first, other);
}

QString CZtConverterKVAPICPPCOM::WriteJoinCircleArc(const QString& first, const QString& other)
{
    return Statement("%1VARIANT_BOOL bRet%3 = VARIANT_FALSE;%2"
                     "%1bRet%3=%4->JoinCircleArc( %5 );%2",
                     NextLocalNumber(), first, other);
}

QString CZtConverterKVAPICPPCOM::WriteJoinEntity(const QString& first, const QString& second)
{
    return Statement("%1%3->Join( %4 );%2", first, second);
}

QString CZtConverterKVAPICPPCOM::WriteSplitPolyline(const QString& variable, std::int32_t index, bool is3D)
{
    const int number = ComCounters::OfProcess().WriteSplitPolyline++;
    return is3D ? Line("%1VARIANT_BOOL Success%4;\n"
                       "%1IPolyLine3DPtr splittedPolyline3D%4;\n"
                       "%1Success%4=%2->Split( %3, &splittedPolyline3D%4 );\n",
                       variable, index, number)
                : Line("%1VARIANT_BOOL Success%4;\n"
                       "%1IPolyLinePtr splittedPolyline%4;\n"
                       "%1Success%4=%2->Split( %3, &splittedPolyline%4 );\n",
                       variable, index, number);
}

QString CZtConverterKVAPICPPCOM::WriteAddVertexAfter(const QString& variable, std::int32_t index,
                                                     const OdGePoint3d& point, bool is3D)
{
    const int number = ComCounters::OfProcess().WriteAddVertexAfter++;
    return is3D ? Line("%1VARIANT_BOOL Success%4;\n"
                       "%1Success%4=%2->AddVertexAfter( %3, %5, %6, %7 );\n",
                       variable, index, number, point)
                : Line("%1VARIANT_BOOL Success%4;\n"
                       "%1Success%4=%2->AddVertexAfter( %3, %5, %6 );\n",
                       variable, index, number, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPICPPCOM::WriteSetVertexCoordinate(const QString& variable, std::int32_t index,
                                                          const OdGePoint3d& point, bool is3D)
{
    const int number = ComCounters::OfProcess().WriteSetVertexCoordinate++;
    return is3D ? Line("%1VARIANT_BOOL Success%4;\n"
                       "%1Success%4=%2->SetVertexCoordinate( %3, %5, %6, %7 );\n",
                       variable, index, number, point)
                : Line("%1VARIANT_BOOL Success%4;\n"
                       "%1Success%4=%2->SetVertexCoordinate( %3, %5, %6 );\n",
                       variable, index, number, OdGePoint2d{point.x, point.y});
}

// "Success" is declared without use in the next two; the format's.

QString CZtConverterKVAPICPPCOM::WriteStraightenPolyline(const QString& variable, std::int32_t first,
                                                         std::int32_t second)
{
    return Line("%1VARIANT_BOOL Success%5;\n"
                "%1%2->Straighten( %3, %4 );\n",
                variable, first, second, ComCounters::OfProcess().WriteStraightenPolyline++);
}

QString CZtConverterKVAPICPPCOM::WriteSetSegmentWidths(const QString& variable, std::int32_t segment, double start,
                                                       double end)
{
    return Line("%1VARIANT_BOOL Success%6;\n"
                "%1%2->SetSegmentStartWidth( %3, %4 );\n"
                "%1%2->SetSegmentEndWidth( %3, %5 );\n",
                variable, segment, General{start}, General{end}, ComCounters::OfProcess().WriteSetSegmentWidths++);
}

QString CZtConverterKVAPICPPCOM::WriteDeleteVertex(const QString& variable, std::int32_t index)
{
    return Line("%1%2->DeleteVertex( %3 );\n", variable, index);
}

QString CZtConverterKVAPICPPCOM::WriteInsertPolyline2DBlock(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                            bool closed)
{
    const std::int32_t number = NextLocalNumber();
    const QStringList coordinates = CoordinateTexts(points, kv::GeneralText);
    const SafeArrayText array(SafeArrayText::Kind::Doubles, "variant", number);
    QString text = Statement("%2"
                             "%1IPolyLinePtr %3;%2"
                             "%1{%2",
                             variable);
    text += array.Declare({Counters().IndentLevel + 1}, coordinates.size());
    text += kv::LineEnd();
    text += array.Elements(CurrentIndent(), coordinates);
    text += kv::LineEnd();
    text += Statement("%1    %5=kvSketchManager->InsertPolyline2D( variant%3, %4);%2"
                      "%1}%2",
                      number, FlagWord(closed), variable);
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteRemoveClipBoundary(const QString& variable)
{
    return Statement("%1%3->RemoveClipBoundary();%2", variable);
}

QString CZtConverterKVAPICPPCOM::WriteSetClipBoundary(const QString& variable, const OdArray<OdGePoint2d>& points)
{
    const std::int32_t number = NextLocalNumber();
    const QStringList coordinates = CoordinateTexts(points, kv::GeneralText);
    const SafeArrayText array(SafeArrayText::Kind::Doubles, "variant", number);
    QString text = array.Declare(CurrentIndent(), coordinates.size());
    text += kv::LineEnd();
    text += array.Elements(CurrentIndent(), coordinates);
    text += kv::LineEnd();
    text += Statement("%1%3->SetClipBoundary( variant%4);%2", variable, number);
    return text;
}
