// JavaScript texts of pictures and shapes; the logic stands in objects/images.cpp.
#include "backends/javascript/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertPicture(const QString& variable, const QString& path,
                                                              const OdGePoint3d& position, double scale,
                                                              double rotation)
{
    return Statement("%1var %9 = mSkMgr.InsertPicture(\"%3\", %4, %5, %6, %7, %8);%2", path, position, Fixed{scale},
                     Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertShape(const QString& variable, const QString& name,
                                                            const OdGePoint3d& position, double size, double rotation)
{
    return Statement("%1var %9 = mSkMgr.InsertShape(\"%3\", %4, %5, %6, %7, %8);%2", name, position, Fixed{size},
                     Fixed{rotation}, variable);
}
