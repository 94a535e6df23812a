// VB.NET texts of leaders; the logic stands in objects/leaders.cpp.
#include "backends/vbnet/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVbNet::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                        double width, const QString& content)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%6 = kvSketchManager.InsertLeader( Coordinates%3, %4, \"%5\" )%2", number, Fixed{width},
                      JoinedLines(content), variable);
    return text;
}

QString CZtConverterKVAPIObjectVbNet::WriteSetLeaderAnnotation(const QString& variable, const QString& text,
                                                               const OdGePoint3d& point, bool isTolerance)
{
    QString code = Statement(
        "%1Dim kvMathUtility As Morvane.MathUtility = kvApp.GetMathUtility()%2%1Dim insertionPoint As Morvane.MathPoint = kvMathUtility.CreatePoint( %3, %4, %5 )%2",
        point);
    code += isTolerance ? Statement("%1%3.SetToleranceAnnotation( \"%4\", insertionPoint )%2", variable, text)
                        : Statement("%1%3.SetBlockAnnotation( \"%4\", insertionPoint )%2", variable, text);
    return code;
}
