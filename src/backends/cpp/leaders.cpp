// C++ API texts of leaders; the logic stands in objects/leaders.cpp.
#include "backends/cpp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertLeader(const QString& variable, const OdArray<OdGePoint3d>& points,
                                                      double width, const QString& content)
{
    const std::int32_t number = NextLocalNumber();
    QString text = DeclarePoints(number, points);
    text += Statement("%1kvSketchManager->InsertLeader( Coordinates%3, %4, L\"%5\", &%6 );%2", number, Fixed{width},
                      content, variable);
    return text;
}
