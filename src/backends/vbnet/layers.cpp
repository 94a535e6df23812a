// VB.NET texts of layers.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIVbNet::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1Dim kvLayerManager_%3 As Morvane.LayerManager = kvDoc.GetLayerManager()%2"
                     "%1Dim %4 As Morvane.Layer = kvLayerManager_%3.GetLayer( \"0\" )%2",
                     VbNetCounters::OfProcess().WriteGetLayer++, variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteCreateLayer(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim kvLayerManager%5 As Morvane.LayerManager = kvDoc.GetLayerManager()%2%1Dim kvCreateObjectResult%5 As Morvane.kvCreateObjectResult_e%2%1%4 = kvLayerManager%5.CreateLayer( \"%3\", kvCreateObjectResult%5 )%2",
        name, variable, number);
}

QString CZtConverterKVAPIObjectVbNet::WriteRemoveLayer(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim kvLayerManager%4 As Morvane.LayerManager = kvDoc.GetLayerManager()%2%1Dim Name%4 As String = %3.Name%2%1kvLayerManager1.RemoveLayer( Name%4 )%2",
        variable, number);
}

QString CZtConverterKVAPIObjectVbNet::WriteActivateEntity(const QString& variable)
{
    // The success isn't asked for, but takes its number as in every language.
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.Activate()%2", variable);
}

QString CZtConverterKVAPIObjectVbNet::WriteRenameEntity(const QString& variable, const QString& name)
{
    return Statement("%1%3.Rename(\"%4\")%2", variable, name);
}
