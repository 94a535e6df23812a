// C# texts of polyline editing; the logic stands in core/polyline_editing.cpp. The success of an edit is its result,
// which nothing reads.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "backends/text/coordinate_list.h"

using kv::General;

QString CZtConverterKVAPICSharp::WriteFitPolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Fit();\n", name);
    }
    return text;
}

QString CZtConverterKVAPICSharp::WriteDecurvePolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Decurve();\n", name);
    }
    return text;
}

QString CZtConverterKVAPICSharp::WriteSplinePolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Spline();\n", name);
    }
    return text;
}

// A join and an array of coordinates take a number in every language, though they need no local here.

QString CZtConverterKVAPICSharp::WriteJoinPolyline(const QString& first, const QString& other)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.JoinPolyLine( %4 );%2", first, other);
}

QString CZtConverterKVAPICSharp::WriteJoinLine(const QString& first, const QString& other)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.JoinLine( %4 );%2", first, other);
}

QString CZtConverterKVAPICSharp::WriteJoinCircleArc(const QString& first, const QString& other)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.JoinCircleArc( %4 );%2", first, other);
}

QString CZtConverterKVAPICSharp::WriteJoinEntity(const QString& first, const QString& second)
{
    return Statement("%1%3.Join( %4 );%2", first, second);
}

QString CZtConverterKVAPICSharp::WriteSplitPolyline(const QString& variable, std::int32_t index, bool is3D)
{
    const int number = CSharpCounters::OfProcess().WriteSplitPolyline++;
    return is3D ? Line("%1PolyLine3D splittedPolyline3D%4;\n"
                       "%1%2.Split( %3, out splittedPolyline3D%4 );\n",
                       variable, index, number)
                : Line("%1PolyLine splittedPolyline%4;\n"
                       "%1%2.Split( %3, out splittedPolyline%4 );\n",
                       variable, index, number);
}

QString CZtConverterKVAPICSharp::WriteAddVertexAfter(const QString& variable, std::int32_t index,
                                                     const OdGePoint3d& point, bool is3D)
{
    return is3D ? Line("%1%2.AddVertexAfter( %3, %4, %5, %6 );\n", variable, index, point)
                : Line("%1%2.AddVertexAfter( %3, %4, %5 );\n", variable, index, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPICSharp::WriteSetVertexCoordinate(const QString& variable, std::int32_t index,
                                                          const OdGePoint3d& point, bool is3D)
{
    return is3D ? Line("%1%2.SetVertexCoordinate( %3, %4, %5, %6 );\n", variable, index, point)
                : Line("%1%2.SetVertexCoordinate( %3, %4, %5 );\n", variable, index, OdGePoint2d{point.x, point.y});
}

// The next two declare "Success" without use; the format's.

QString CZtConverterKVAPICSharp::WriteStraightenPolyline(const QString& variable, std::int32_t first,
                                                         std::int32_t second)
{
    return Line("%1bool Success%5;\n"
                "%1%2.Straighten( %3, %4 );\n",
                variable, first, second, CSharpCounters::OfProcess().WriteStraightenPolyline++);
}

QString CZtConverterKVAPICSharp::WriteSetSegmentWidths(const QString& variable, std::int32_t segment, double start,
                                                       double end)
{
    return Line("%1bool Success%6;\n"
                "%1%2.SetSegmentStartWidth( %3, %4 );\n"
                "%1%2.SetSegmentEndWidth( %3, %5 );\n",
                variable, segment, General{start}, General{end}, CSharpCounters::OfProcess().WriteSetSegmentWidths++);
}

QString CZtConverterKVAPICSharp::WriteDeleteVertex(const QString& variable, std::int32_t index)
{
    return Line("%1%2.DeleteVertex( %3 );\n", variable, index);
}

QString CZtConverterKVAPICSharp::WriteInsertPolyline2DBlock(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                            bool closed)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%2"
                     "%1PolyLine %5;%2"
                     "%1{%2"
                     "%1    %5 = kvSketchManager.InsertPolyline2D( new double[]{%3}, %4 );%2"
                     "%1}%2",
                     kv::CoordinateList<kv::GeneralPoint2d>(points), FlagWord(closed), variable);
}

QString CZtConverterKVAPICSharp::WriteRemoveClipBoundary(const QString& variable)
{
    return Statement("%1%3.RemoveClipBoundary();%2", variable);
}

QString CZtConverterKVAPICSharp::WriteSetClipBoundary(const QString& variable, const OdArray<OdGePoint2d>& points)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%3.SetClipBoundary( new double[]{%4});%2", variable,
                     kv::CoordinateList<kv::GeneralPoint2d>(points));
}
