// JavaScript texts of polyline editing; the logic stands in core/polyline_editing.cpp. The success of an edit would be
// the result of its call and isn't asked for.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"

using kv::General;

QString CZtConverterKVAPIJavaScript::WriteFitPolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Fit();\n", name);
    }
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteDecurvePolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Decurve();\n", name);
    }
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteSplinePolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Spline();\n", name);
    }
    return text;
}

// A join shows no number, but takes one as in every language.

QString CZtConverterKVAPIJavaScript::WriteJoinPolyline(const QString& first, const QString& other)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.JoinPolyLine(%4);%2", first, other);
}

QString CZtConverterKVAPIJavaScript::WriteJoinLine(const QString& first, const QString& other)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.JoinLine(%4);%2", first, other);
}

QString CZtConverterKVAPIJavaScript::WriteJoinCircleArc(const QString& first, const QString& other)
{
    ++Counters().LocalNameSequence;
    return Statement("%1%3.JoinCircleArc(%4);%2", first, other);
}

QString CZtConverterKVAPIJavaScript::WriteJoinEntity(const QString& first, const QString& second)
{
    return Statement("%1%3.Join(%4);%2", first, second);
}

QString CZtConverterKVAPIJavaScript::WriteSplitPolyline(const QString& variable, std::int32_t index, bool is3D)
{
    const int number = JavaScriptCounters::OfProcess().WriteSplitPolyline++;
    return is3D ? Line("%1var splittedPolyline3D%4 = %2.Split(%3);\n", variable, index, number)
                : Line("%1var splittedPolyline%4 = %2.Split(%3);\n", variable, index, number);
}

QString CZtConverterKVAPIJavaScript::WriteAddVertexAfter(const QString& variable, std::int32_t index,
                                                         const OdGePoint3d& point, bool is3D)
{
    return is3D ? Line("%1%2.AddVertexAfter(%3, %4, %5, %6);\n", variable, index, point)
                : Line("%1%2.AddVertexAfter(%3, %4, %5);\n", variable, index, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIJavaScript::WriteSetVertexCoordinate(const QString& variable, std::int32_t index,
                                                              const OdGePoint3d& point, bool is3D)
{
    return is3D ? Line("%1%2.SetVertexCoordinate(%3, %4, %5, %6);\n", variable, index, point)
                : Line("%1%2.SetVertexCoordinate(%3, %4, %5);\n", variable, index, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIJavaScript::WriteStraightenPolyline(const QString& variable, std::int32_t first,
                                                             std::int32_t second)
{
    return Line("%1%2.Straighten(%3, %4);\n", variable, first, second);
}

QString CZtConverterKVAPIJavaScript::WriteSetSegmentWidths(const QString& variable, std::int32_t segment, double start,
                                                           double end)
{
    return Line("%1%2.SetSegmentStartWidth(%3, %4);\n"
                "%1%2.SetSegmentEndWidth(%3, %5);\n",
                variable, segment, General{start}, General{end});
}

QString CZtConverterKVAPIJavaScript::WriteDeleteVertex(const QString& variable, std::int32_t index)
{
    return Line("%1%2.DeleteVertex(%3);\n", variable, index);
}

QString CZtConverterKVAPIJavaScript::WriteInsertPolyline2DBlock(const QString& variable,
                                                                const OdArray<OdGePoint2d>& points, bool closed)
{
    const QString array = kv::Fill("polyPoints%1", NextLocalNumber());
    return Statement("%2"
                     "%1{%2"
                     "%4%2"
                     "%1    var %6 = mSkMgr.InsertPolyline2D(%3, %5);%2"
                     "%1}%2",
                     array, CoordinateArray(array, points), FlagWord(closed), variable);
}

QString CZtConverterKVAPIJavaScript::WriteRemoveClipBoundary(const QString& variable)
{
    return Statement("%1%3.RemoveClipBoundary();%2", variable);
}

QString CZtConverterKVAPIJavaScript::WriteSetClipBoundary(const QString& variable, const OdArray<OdGePoint2d>& points)
{
    const std::int32_t number = NextLocalNumber();
    QString text = CoordinateArray(kv::Fill("ClipPointsDblArray%1", number), points);
    text += kv::LineEnd();
    // The name of the call is the format's.
    text += Statement("%1%4.InsertPolyline2D(ClipPointsDblArray%3);%2", number, variable);
    return text;
}
