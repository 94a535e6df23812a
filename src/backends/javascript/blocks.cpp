// JavaScript texts of block definitions and their instances; the logic stands in objects/blocks.cpp.
#include "backends/javascript/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectJavaScript::WriteInsertBlockInstance(const QString& variable, const QString& name,
                                                                    bool nameIsVariable, const OdGePoint3d& position,
                                                                    const OdGePoint3d& scale, double rotation)
{
    return nameIsVariable ? Statement("%1 var %11 = mSkMgr.InsertBlock2(%3, %4, %5, %6, %7, %8, %9, %10);%2", name,
                                      position, scale, Fixed{rotation}, variable)
                          : Statement("%1 var %11 = mSkMgr.InsertBlock2(\"%3\", %4, %5, %6, %7, %8, %9, %10);%2", name,
                                      position, scale, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteInsertExternalReference(const QString& variable, const QString& path,
                                                                        const OdGePoint3d& position, double scale,
                                                                        double rotation)
{
    return Statement("%1 var %9 = mSkMgr.InsertExternalReference( \"%3\", %4, %5, %6, %7, %8);%2", path, position,
                     Fixed{scale}, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteCreateBlockDefinition(const QString& variable, const QString& name,
                                                                      const QString& description,
                                                                      const OdGePoint3d& basePoint)
{
    static_cast<void>(NextLocalNumber());
    return Statement(
        "%1var %7 = mDoc.CreateBlockDefinition(\"%3\", %4, %5, %6).BlockDefinition;%2%1%7.put_Description(\"%8\");%2",
        name, basePoint, variable, description);
}

QString CZtConverterKVAPIObjectJavaScript::WriteGetBlockName(const QString& name, const QString& definition)
{
    return Statement("%1var %3 = %4.get_Name();%2", name, definition);
}

QString CZtConverterKVAPIObjectJavaScript::WriteUpdateBlockDefinition(const QString& variable, const QString& name,
                                                                      const QString& description)
{
    return Statement("%1var %4 = mDoc.GetBlockDefinition(\"%3\");%2%1%4.put_Description(\"%5\");%2", name, variable,
                     description);
}

QString CZtConverterKVAPIObjectJavaScript::WriteEnterBlockDefinition(const QString& variable, std::int32_t number)
{
    return Statement("%1var mSavedSkMgr%3 = mSkMgr;%2%1mSkMgr = %4.GetSketchManager();%2", number, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteLeaveBlockDefinition(std::int32_t number)
{
    return Statement("%1mSkMgr = mSavedSkMgr%3;%2", number);
}
