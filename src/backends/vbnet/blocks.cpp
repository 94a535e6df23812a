// VB.NET texts of block definitions and their instances; the logic stands in objects/blocks.cpp.
#include "backends/vbnet/object.h"

using kv::Fixed;

QString CZtConverterKVAPIObjectVbNet::WriteInsertBlockInstance(const QString& variable, const QString& name,
                                                               bool nameIsVariable, const OdGePoint3d& position,
                                                               const OdGePoint3d& scale, double rotation)
{
    return nameIsVariable
               ? Statement(
                     "%1%11 = kvApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2(  %3, %4, %5, %6, %7, %8, %9, %10 )%2",
                     name, position, scale, Fixed{rotation}, variable)
               : Statement(
                     "%1%11 = kvApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2(  \"%3\", %4, %5, %6, %7, %8, %9, %10 )%2",
                     name, position, scale, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteInsertExternalReference(const QString& variable, const QString& path,
                                                                   const OdGePoint3d& position, double scale,
                                                                   double rotation)
{
    return Statement("%1 %9 = kvSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8)%2", path, position,
                     Fixed{scale}, Fixed{rotation}, variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteCreateBlockDefinition(const QString& variable, const QString& name,
                                                                 const QString& description,
                                                                 const OdGePoint3d& basePoint)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim result%3 As Morvane.kvCreateObjectResult_e%2%1%8 = kvDoc.CreateBlockDefinition( \"%4\", %5, %6, %7, result%3 )%2%1%8.Description = \"%9\"%2",
        number, name, basePoint, variable, description);
}

QString CZtConverterKVAPIObjectVbNet::WriteGetBlockName(const QString& name, const QString& definition)
{
    return Statement("%1Dim %3 As String = %4.Name%2", name, definition);
}

QString CZtConverterKVAPIObjectVbNet::WriteUpdateBlockDefinition(const QString& variable, const QString& name,
                                                                 const QString& description)
{
    return Statement("%1%4 = kvDoc.GetBlockDefinition( \"%3\" )%2%1%4.Description = \"%5\"%2", name, variable,
                     description);
}

QString CZtConverterKVAPIObjectVbNet::WriteEnterBlockDefinition(const QString& variable, std::int32_t number)
{
    return Statement(
        "%1Dim kvSavedSketchManager%3 As Morvane.SketchManager = kvSketchManager%2%1kvSketchManager = %4.GetSketchManager()%2",
        number, variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteLeaveBlockDefinition(std::int32_t number)
{
    return Statement("%1kvSketchManager = kvSavedSketchManager%3%2", number);
}
