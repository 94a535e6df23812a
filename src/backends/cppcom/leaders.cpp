// C++ COM texts of leaders; the logic stands in objects/leaders.cpp.
#include "backends/cppcom/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                         double width, const QString& content)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1%6 = kvSketchManager->InsertLeader( variant%3, %4, L\"%5\" );%2", number, Fixed{width},
                      content, variable);
    return text;
}
