// C# texts of splines; the logic stands in objects/splines.cpp. A number is taken in
// every language, though nothing is declared here.
#include "backends/csharp/object.h"
#include "backends/text/coordinate_list.h"

QString CZtConverterKVAPIObjectCSharp::WriteInsertSpline(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                         bool closed, const OdGePoint3d& startTangent,
                                                         const OdGePoint3d& endTangent)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%11 = kvSketchManager.InsertSpline( new double[]{%3}, %4, %5, %6, %7, %8, %9, %10 );%2",
                     kv::CoordinateList<kv::FixedPoint>(points), FlagWord(closed), startTangent, endTangent, variable);
}
