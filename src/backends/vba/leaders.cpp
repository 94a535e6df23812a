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
