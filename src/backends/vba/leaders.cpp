// VBA texts of leaders; the logic stands in objects/leaders.cpp.
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVba::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                      double width, const QString& content)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1Set %6 = kvSketchManager.InsertLeader( Coordinates%3, %4, \"%5\" )%2", number, Fixed{width},
                      JoinedLines(content), variable);
    return text;
}

QString CZtConverterKVAPIObjectVba::WriteSetLeaderAnnotation(const QString& variable, const QString& text,
                                                             const OdGePoint3d& point, bool isTolerance)
{
    QString code = Statement(
        "%1Dim kvMathUtility As Morvane.MathUtility%2%1Set kvMathUtility = kvApp.GetMathUtility()%2%1Dim insertionPoint As Morvane.MathPoint%2%1Set insertionPoint = kvMathUtility.CreatePoint( %3, %4, %5 )%2",
        point);
    code += isTolerance ? Statement("%1%3.SetToleranceAnnotation \"%4\", insertionPoint%2", variable, text)
                        : Statement("%1%3.SetBlockAnnotation \"%4\", insertionPoint%2", variable, text);
    return code;
}
