// C++ API texts of polyline editing; the logic stands in core/polyline_editing.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"

using kv::General;

QString CZtConverterKVAPICPP::WriteFitPolyline(const QStringList& names)
{
    const int number = ++CppCounters::OfProcess().WriteFitPolyline;
    QString text = Line("%1bool Success%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1%2->Fit( &Success%3 );\n", name, number);
    }
    return text;
}

QString CZtConverterKVAPICPP::WriteDecurvePolyline(const QStringList& names)
{
    const int number = ++CppCounters::OfProcess().WriteDecurvePolyline;
    QString text = Line("%1bool Success%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1%2->Decurve( &Success%3 );\n", name, number);
    }
    return text;
}

QString CZtConverterKVAPICPP::WriteSplinePolyline(const QStringList& names)
{
    const int number = ++CppCounters::OfProcess().WriteSplinePolyline;
    QString text = Line("%1bool Success%2;\n", number);
    for (const QString& name : names)
    {
        text += Line("%1%2->Spline( &Success%3 );\n", name, number);
    }
    return text;
}

QString CZtConverterKVAPICPP::WriteJoinPolyline(const QString& first, const QString& other)
{
    return Statement("%1bool bRet%3 = false;%2"
                     "%1%4->JoinPolyLine( %5, &bRet%3 );%2",
                     NextLocalNumber(), first, other);
}

QString CZtConverterKVAPICPP::WriteJoinLine(const QString& first, const QString& other)
{
    return Statement("%1bool bRet%3 = false;%2"
                     "%1%4->JoinLine( %5, &bRet%3 );%2",
                     NextLocalNumber(), first, other);
}

QString CZtConverterKVAPICPP::WriteJoinCircleArc(const QString& first, const QString& other)
{
    return Statement("%1bool bRet%3 = false;%2"
                     "%1%4->JoinCircleArc( %5, &bRet%3 );%2",
                     NextLocalNumber(), first, other);
}

QString CZtConverterKVAPICPP::WriteJoinEntity(const QString& first, const QString& second)
{
    return Statement("%1%3->Join( %4 );%2", first, second);
}

// "Success" is passed by value in the edits of one polyline and declared without use; the format's.

QString CZtConverterKVAPICPP::WriteSplitPolyline(const QString& variable, std::int32_t index, bool is3D)
{
    const int number = CppCounters::OfProcess().WriteSplitPolyline++;
    return is3D ? Line("%1bool Success%4;\n"
                       "%1kvPolyLine3D_ptr splittedPolyline3D%4;\n"
                       "%1%2->Split( %3, &splittedPolyline3D%4, Success%4 );\n",
                       variable, index, number)
                : Line("%1bool Success%4;\n"
                       "%1kvPolyLine_ptr splittedPolyline%4;\n"
                       "%1%2->Split( %3, &splittedPolyline%4, Success%4 );\n",
                       variable, index, number);
}

QString CZtConverterKVAPICPP::WriteAddVertexAfter(const QString& variable, std::int32_t index, const OdGePoint3d& point,
                                                  bool is3D)
{
    const int number = CppCounters::OfProcess().WriteAddVertexAfter++;
    return is3D ? Line("%1bool Success%4;\n"
                       "%1%2->AddVertexAfter( %3, %5, %6, %7, Success%4 );\n",
                       variable, index, number, point)
                : Line("%1bool Success%4;\n"
                       "%1%2->AddVertexAfter( %3, %5, %6, Success%4 );\n",
                       variable, index, number, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPICPP::WriteSetVertexCoordinate(const QString& variable, std::int32_t index,
                                                       const OdGePoint3d& point, bool is3D)
{
    const int number = CppCounters::OfProcess().WriteSetVertexCoordinate++;
    return is3D ? Line("%1bool Success%4;\n"
                       "%1%2->SetVertexCoordinate( %3, %5, %6, %7, Success%4 );\n",
                       variable, index, number, point)
                : Line("%1bool Success%4;\n"
                       "%1%2->SetVertexCoordinate( %3, %5, %6, Success%4 );\n",
                       variable, index, number, OdGePoint2d{point.x, point.y});
}

QString CZtConverterKVAPICPP::WriteStraightenPolyline(const QString& variable, std::int32_t first, std::int32_t second)
{
    return Line("%1bool Success%5;\n"
                "%1%2->Straighten( %3, %4 );\n",
                variable, first, second, CppCounters::OfProcess().WriteStraightenPolyline++);
}

QString CZtConverterKVAPICPP::WriteSetSegmentWidths(const QString& variable, std::int32_t segment, double start,
                                                    double end)
{
    return Line("%1bool Success%6;\n"
                "%1%2->SetSegmentStartWidth( %3, %4 );\n"
                "%1%2->SetSegmentEndWidth( %3, %5 );\n",
                variable, segment, General{start}, General{end}, CppCounters::OfProcess().WriteSetSegmentWidths++);
}

QString CZtConverterKVAPICPP::WriteDeleteVertex(const QString& variable, std::int32_t index)
{
    return Line("%1%2->DeleteVertex( %3 );\n", variable, index);
}

QString CZtConverterKVAPICPP::CoordinateLines(std::int32_t number, const OdArray<OdGePoint2d>& points)
{
    QString text;
    for (const OdGePoint2d& point : points)
    {
        text += Statement("%1Coordinates%3.add(%4);Coordinates%3.add(%5);%2", number, point);
    }
    return text;
}

QString CZtConverterKVAPICPP::WriteInsertPolyline2DBlock(const QString& variable, const OdArray<OdGePoint2d>& points,
                                                         bool closed)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%2"
                     "%1kvPolyLine_ptr %6;%2"
                     "%1{%2"
                     "%1    kvDoubleArray Coordinates%3;%2"
                     "%1    Coordinates%3.clear();%2%2"
                     "%4%2"
                     "%1    kvSketchManager->InsertPolyline2D( Coordinates%3, %5, &%6 );%2"
                     "%1}%2",
                     number, CoordinateLines(number, points), FlagWord(closed), variable);
}

QString CZtConverterKVAPICPP::WriteRemoveClipBoundary(const QString& variable)
{
    return Statement("%1%3->RemoveClipBoundary();%2", variable);
}

QString CZtConverterKVAPICPP::WriteSetClipBoundary(const QString& variable, const OdArray<OdGePoint2d>& points)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1kvDoubleArray Coordinates%3;%2"
                     "%1Coordinates%3.clear();%2%2"
                     "%4%2"
                     "%1%5->SetClipBoundary( Coordinates%3);%2",
                     number, CoordinateLines(number, points), variable);
}
