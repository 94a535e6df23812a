// VB.NET texts of polyline editing; the logic stands in core/polyline_editing.cpp.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

using kv::General;

QString CZtConverterKVAPIVbNet::WriteFitPolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Fit()\n", name);
    }
    return text;
}

QString CZtConverterKVAPIVbNet::WriteDecurvePolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Decurve()\n", name);
    }
    return text;
}

QString CZtConverterKVAPIVbNet::WriteSplinePolyline(const QStringList& names)
{
    QString text;
    for (const QString& name : names)
    {
        text += Line("%1%2.Spline()\n", name);
    }
    return text;
}

// A join takes a number in every language, though nothing is declared here.

QString CZtConverterKVAPIVbNet::WriteJoinPolyline(const QString& first, const QString& other)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.JoinPolyLine( %4 )%2", first, other);
}

QString CZtConverterKVAPIVbNet::WriteJoinLine(const QString& first, const QString& other)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.JoinLine( %4 )%2", first, other);
}

QString CZtConverterKVAPIVbNet::WriteJoinCircleArc(const QString& first, const QString& other)
{
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.JoinCircleArc( %4 )%2", first, other);
}

QString CZtConverterKVAPIVbNet::WriteJoinEntity(const QString& first, const QString& second)
{
    return Statement("%1%3.Join( %4 )%2", first, second);
}

// "Success" is passed without a value in the edits of one polyline and declared without use; the format's.

QString CZtConverterKVAPIVbNet::WriteSplitPolyline(const QString& variable, std::int32_t index, bool is3D)
{
    const int number = VbNetCounters::OfProcess().WriteSplitPolyline++;
    return is3D ? Line("%1Dim Success%4 As Boolean\n"
                       "%1Dim splittedPolyline3D%4 As Morvane.PolyLine3D = %2.Split( %3, Success%4 )\n",
                       variable, index, number)
                : Line("%1Dim Success%4 As Boolean\n"
                       "%1Dim splittedPolyline%4 As Morvane.PolyLine = %2.Split( %3, Success%4 )\n",
                       variable, index, number);
}

QString CZtConverterKVAPIVbNet::WriteAddVertexAfter(const QString& variable, std::int32_t index,
                                                    const OdGePoint3d& point, bool is3D)
{
    const int number = VbNetCounters::OfProcess().WriteAddVertexAfter++;
    return is3D ? Line("%1Dim Success%4 As Boolean\n"
                       "%1%2.AddVertexAfter( %3, %5, %6, %7, Success%4 )\n",
                       variable, index, number, point)
                : Line("%1Dim Success%4 As Boolean\n"
                       "%1%2.AddVertexAfter( %3, %5, %6, Success%4 )\n",
                       variable, index, number, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIVbNet::WriteSetVertexCoordinate(const QString& variable, std::int32_t index,
                                                         const OdGePoint3d& point, bool is3D)
{
    const int number = VbNetCounters::OfProcess().WriteSetVertexCoordinate++;
    return is3D ? Line("%1Dim Success%4 As Boolean\n"
                       "%1%2.SetVertexCoordinate( %3, %5, %6, %7, Success%4 )\n",
                       variable, index, number, point)
                : Line("%1Dim Success%4 As Boolean\n"
                       "%1%2.SetVertexCoordinate( %3, %5, %6, Success%4 )\n",
                       variable, index, number, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPIVbNet::WriteStraightenPolyline(const QString& variable, std::int32_t first,
                                                        std::int32_t second)
{
    return Line("%1Dim Success%5 As Boolean\n"
                "%1%2.Straighten( %3, %4 )\n",
                variable, first, second, VbNetCounters::OfProcess().WriteStraightenPolyline++);
}

QString CZtConverterKVAPIVbNet::WriteSetSegmentWidths(const QString& variable, std::int32_t segment, double start,
                                                      double end)
{
    return Line("%1Dim Success%6 As Boolean\n"
                "%1%2.SetSegmentStartWidth( %3, %4 )\n"
                "%1%2.SetSegmentEndWidth( %3, %5 )\n",
                variable, segment, General{start}, General{end}, VbNetCounters::OfProcess().WriteSetSegmentWidths++);
}

QString CZtConverterKVAPIVbNet::WriteDeleteVertex(const QString& variable, std::int32_t index)
{
    return Line("%1%2.DeleteVertex( %3 )\n", variable, index);
}

QString CZtConverterKVAPIVbNet::WriteInsertPolyline2DBlock(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                           bool closed)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%2"
                     "%1Dim %7 As Morvane.PolyLine%2"
                     "%1If 1 Then%2"
                     "%1    Dim Coordinates%3(%4) As Double%2%2"
                     "%5%2"
                     "%1    %7 = kvSketchManager.InsertPolyline2D( Coordinates%3, %6 )%2"
                     "%1End If%2",
                     number, HighestIndex2D(points), WriteCoordinateElements2D(number, points), FlagWord(closed),
                     variable);
}

QString CZtConverterKVAPIVbNet::WriteRemoveClipBoundary(const QString& variable)
{
    return Statement("%1%3.RemoveClipBoundary()%2", variable);
}

QString CZtConverterKVAPIVbNet::WriteSetClipBoundary(const QString& variable, const OdArray<OdGePoint2d>& points)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1Dim Coordinates%3(%4) As Double%2%2"
                     "%5%2"
                     "%1%6.SetClipBoundary( Coordinates%3)%2",
                     number, HighestIndex2D(points), WriteCoordinateElements2D(number, points), variable);
}
