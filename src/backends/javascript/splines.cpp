// JavaScript texts of splines; the logic stands in objects/splines.cpp.
#include "backends/javascript/object.h"

QString CZtConverterKVAPIObjectJavaScript::WriteInsertSpline(const QString& variable,
                                                             const OdArray<OdGePoint3d>& points, bool closed,
                                                             const OdGePoint3d& startTangent,
                                                             const OdGePoint3d& endTangent)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints("polyPoints", number, points);
    text += Statement("%1var %11 = mSkMgr.InsertSpline(polyPoints%3, %4, %5, %6, %7, %8, %9, %10);%2", number,
                      FlagWord(closed), startTangent, endTangent, variable);
    return text;
}
