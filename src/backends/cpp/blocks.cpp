// C++ API texts of block definitions and their instances; the logic stands in objects/blocks.cpp.
#include "backends/cpp/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectCPP::WriteInsertBlockInstance(const QString& variable, const QString& name,
                                                             bool nameIsVariable, const OdGePoint3d& position,
                                                             const OdGePoint3d& scale, double rotation)
{
    return nameIsVariable
               ? Statement("%1 kvSketchManager->InsertBlock2(%3, %4, %5, %6, %7, %8, %9, %10, &%11 );%2", name,
                           position, scale, Fixed{rotation}, variable)
               : Statement("%1 kvSketchManager->InsertBlock2(L\"%3\", %4, %5, %6, %7, %8, %9, %10, &%11 );%2", name,
                           position, scale, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteInsertExternalReference(const QString& variable, const QString& path,
                                                                 const OdGePoint3d& position, double scale,
                                                                 double rotation)
{
    return Statement("%1 kvSketchManager->InsertExternalReference(  L\"%3\", %4, %5, %6, %7, %8 ,&%9);%2", path,
                     position, Fixed{scale}, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteCreateBlockDefinition(const QString& variable, const QString& name,
                                                               const QString& description, const OdGePoint3d& basePoint)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvCreateObjectResult_e result%3;%2%1kvDoc->CreateBlockDefinition( L\"%4\", %5, %6, %7, &%8, &result%3 );%2%1%8->put_Description( L\"%9\" );%2",
        number, name, basePoint, variable, description);
}

QString CZtConverterKVAPIObjectCPP::WriteGetBlockName(const QString& name, const QString& definition)
{
    return Statement("%1kvString %3;%2%1%4->get_Name( &%3 );%2", name, definition);
}

QString CZtConverterKVAPIObjectCPP::WriteUpdateBlockDefinition(const QString& variable, const QString& name,
                                                               const QString& description)
{
    return Statement("%1kvDoc->GetBlockDefinition( L\"%3\", &%4 );%2%1%4->put_Description( L\"%5\" );%2", name,
                     variable, description);
}

QString CZtConverterKVAPIObjectCPP::WriteEnterBlockDefinition(const QString& variable, std::int32_t number)
{
    return Statement(
        "%1kvSketchManager_ptr kvSavedSketchManager%3;%2%1kvSavedSketchManager%3 = kvSketchManager;%2%1%4->GetSketchManager( &kvSketchManager );%2",
        number, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteLeaveBlockDefinition(std::int32_t number)
{
    return Statement("%1kvSketchManager = kvSavedSketchManager%3;%2", number);
}
