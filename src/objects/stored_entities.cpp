// Insertion of entities as the drawing holds them, where the journal tells of them by their ids only.
#include "host/db/curves.h"
#include "objects/object_converter.h"

QString CZtConverterKVAPIObject::InsertStored(const OdDbObject& object, const QString& variable)
{
    const OdRxClass* objectClass = object.isA();
    if (objectClass == OdDbLine::desc())
    {
        const auto& line = static_cast<const OdDbLine&>(object);
        return WriteInsertLine(variable, line.startPoint(), line.endPoint());
    }
    if (objectClass == OdDbCircle::desc())
    {
        const auto& circle = static_cast<const OdDbCircle&>(object);
        return WriteInsertCircle(variable, circle.center(), circle.radius());
    }
    if (objectClass == OdDbArc::desc())
    {
        const auto& arc = static_cast<const OdDbArc&>(object);
        return WriteInsertArc(variable, arc.center(), arc.radius(), arc.startAngle(), arc.endAngle());
    }
    if (objectClass == OdDbEllipse::desc())
    {
        const auto& ellipse = static_cast<const OdDbEllipse&>(object);
        return InsertEllipse(variable, ellipse.center(), ellipse.majorAxis(), ellipse.minorRadius(),
                             ellipse.startAngle(), ellipse.endAngle());
    }
    return {};
}
