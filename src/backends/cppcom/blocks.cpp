// C++ COM texts of block definitions and their instances; the logic stands in objects/blocks.cpp.
#include "backends/cppcom/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertBlockInstance(const QString& variable, const QString& name,
                                                                bool nameIsVariable, const OdGePoint3d& position,
                                                                const OdGePoint3d& scale, double rotation)
{
    return nameIsVariable
               ? Statement("%1 %11 = kvSketchManager->InsertBlock2(%3, %4, %5, %6, %7, %8, %9, %10 );%2", name,
                           position, scale, Fixed{rotation}, variable)
               : Statement("%1 %11 = kvSketchManager->InsertBlock2(L\"%3\", %4, %5, %6, %7, %8, %9, %10 );%2", name,
                           position, scale, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteInsertExternalReference(const QString& variable, const QString& path,
                                                                    const OdGePoint3d& position, double scale,
                                                                    double rotation)
{
    return Statement("%1 %9 = kvSketchManager->InsertExternalReference(  L\"%3\", %4, %5, %6, %7, %8);%2", path,
                     position, Fixed{scale}, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateBlockDefinition(const QString& variable, const QString& name,
                                                                  const QString& description,
                                                                  const OdGePoint3d& basePoint)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1%8 = kvDoc->CreateBlockDefinition( L\"%4\", %5, %6, %7, &result%3 );%2%1%8->put_Description( L\"%9\" );%2",
        number, name, basePoint, variable, description);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteGetBlockName(const QString& name, const QString& definition)
{
    return Statement("%1BSTR %3;%2%1%4->get_Name( &%3 );%2", name, definition);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteUpdateBlockDefinition(const QString& variable, const QString& name,
                                                                  const QString& description)
{
    return Statement("%1%4 = kvDoc->GetBlockDefinition( L\"%3\" );%2%1%4->put_Description( L\"%5\" );%2", name,
                     variable, description);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteEnterBlockDefinition(const QString& variable, std::int32_t number)
{
    return Statement(
        "%1ISketchManagerPtr kvSavedSketchManager%3 = kvSketchManager;%2%1kvSketchManager = %4->GetSketchManager();%2",
        number, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteLeaveBlockDefinition(std::int32_t number)
{
    return Statement("%1kvSketchManager = kvSavedSketchManager%3;%2", number);
}
