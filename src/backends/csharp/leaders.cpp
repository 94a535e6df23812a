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

QString CZtConverterKVAPIObjectCSharp::WriteSetLeaderAnnotation(const QString& variable, const QString& text,
                                                                const OdGePoint3d& point, bool isTolerance)
{
    QString code = Statement(
        "%1MathUtility kvMathUtility = kvApp.GetMathUtility();%2%1MathPoint insertionPoint = kvMathUtility.CreatePoint( %3, %4, %5 );%2",
        point);
    code += isTolerance ? Statement("%1%3.SetToleranceAnnotation( \"%4\", insertionPoint );%2", variable, text)
                        : Statement("%1%3.SetBlockAnnotation( \"%4\", insertionPoint );%2", variable, text);
    return code;
}
