// C++ API texts of pictures and shapes; the logic stands in objects/images.cpp.
#include "backends/cpp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertPicture(const QString& variable, const QString& path,
                                                       const OdGePoint3d& position, double scale, double rotation)
{
    return Statement("%1kvSketchManager->InsertPicture( L\"%3\", %4, %5, %6, %7, %8, &%9 );%2", path, position,
                     Fixed{scale}, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertShape(const QString& variable, const QString& name,
                                                     const OdGePoint3d& position, double size, double rotation)
{
    return Statement("%1kvSketchManager->InsertShape( L\"%3\", %4, %5, %6, %7, %8, &%9 );%2", name, position,
                     Fixed{size}, Fixed{rotation}, variable);
}
