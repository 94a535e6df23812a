// C# texts of leaders; the logic stands in objects/leaders.cpp. A number is taken in
// every language, though nothing is declared here.
#include "backends/csharp/object.h"
#include "backends/text/coordinate_list.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCSharp::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                         double width, const QString& content)
{
    [[maybe_unused]] const std::int32_t spent = NextLocalNumber();
    return Statement("%1%6 = kvSketchManager.InsertLeader( new double[]{%3}, %4, \"%5\" );%2",
                     kv::CoordinateList<kv::FixedPoint>(points), Fixed{width}, content, variable);
}
