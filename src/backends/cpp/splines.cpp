// C++ API texts of splines; the logic stands in objects/splines.cpp.
#include "backends/cpp/object.h"

QString CZtConverterKVAPIObjectCPP::WriteInsertSpline(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                      bool closed, const OdGePoint3d& startTangent,
                                                      const OdGePoint3d& endTangent)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertSpline( Coordinates%3, %4, %5, %6, %7, %8, %9, %10, &%11 );%2", number,
                      FlagWord(closed), startTangent, endTangent, variable);
    return text;
}
