// VBA texts of block definitions and their instances; the logic stands in objects/blocks.cpp.
#include "backends/vba/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVba::WriteInsertBlockInstance(const QString& variable, const QString& name,
                                                             bool nameIsVariable, const OdGePoint3d& position,
                                                             const OdGePoint3d& scale, double rotation)
{
    return nameIsVariable
               ? Statement(
                     "%1Set %11 = kvApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2(  %3, %4, %5, %6, %7, %8, %9, %10 )%2",
                     name, position, scale, Fixed{rotation}, variable)
               : Statement(
                     "%1Set %11 = kvApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2(  \"%3\", %4, %5, %6, %7, %8, %9, %10 )%2",
                     name, position, scale, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectVba::WriteInsertExternalReference(const QString& variable, const QString& path,
                                                                 const OdGePoint3d& position, double scale,
                                                                 double rotation)
{
    return Statement("%1 Set %9 = kvSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8)%2", path,
                     position, Fixed{scale}, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectVba::WriteCreateBlockDefinition(const QString& variable, const QString& name,
                                                               const QString& description, const OdGePoint3d& basePoint)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim result%3 As Morvane.kvCreateObjectResult_e%2%1Set %8 = kvDoc.CreateBlockDefinition( \"%4\", %5, %6, %7, result%3 )%2%1%8.Description = \"%9\"%2",
        number, name, basePoint, variable, description);
}

QString CZtConverterKVAPIObjectVba::WriteGetBlockName(const QString& name, const QString& definition)
{
    return Statement("%1Dim %3 As String%2%1%3 = %4.Name%2", name, definition);
}

QString CZtConverterKVAPIObjectVba::WriteUpdateBlockDefinition(const QString& variable, const QString& name,
                                                               const QString& description)
{
    return Statement("%1Set %4 = kvDoc.GetBlockDefinition( \"%3\" )%2%1%4.Description = \"%5\"%2", name, variable,
                     description);
}

QString CZtConverterKVAPIObjectVba::WriteEnterBlockDefinition(const QString& variable, std::int32_t number)
{
    return Statement(
        "%1Dim kvSavedSketchManager%3 As Morvane.SketchManager%2%1Set kvSavedSketchManager%3 = kvSketchManager%2%1Set kvSketchManager = %4.GetSketchManager()%2",
        number, variable);
}

QString CZtConverterKVAPIObjectVba::WriteLeaveBlockDefinition(std::int32_t number)
{
    return Statement("%1Set kvSketchManager = kvSavedSketchManager%3%2", number);
}
