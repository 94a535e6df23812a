// Leaders.
#include "core/escape.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::CreateLeader(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const OdArray<OdGePoint3d> points = properties.TakePoints("Vertex", &consumed);
    const QString content = TextOf(properties.TakeProperty("content", &consumed));
    const double width = properties.TakeDouble("width", 0.0, &consumed);
    return WriteInsertLeader(variable, points, width, EscapeBackslashes(content));
}
