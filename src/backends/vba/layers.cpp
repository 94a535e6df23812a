// VBA texts of layers.
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"
#include "backends/vba/object.h"

QString CZtConverterKVAPIVba::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that and the two blanks are the
    // format's.
    return Statement("%1Dim kvLayerManager_%3 As Morvane.LayerManager%2"
                     "%1Set kvLayerManager_%3  = kvDoc.GetLayerManager()%2"
                     "%1Dim %4 As Morvane.Layer%2"
                     "%1Set %4 = kvLayerManager_%3.GetLayer( \"0\" )%2",
                     VbaCounters::OfProcess().WriteGetLayer++, variable);
}

QString CZtConverterKVAPIObjectVba::WriteCreateLayer(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim kvLayerManager%5 As Morvane.LayerManager%2%1Set kvLayerManager%5 = kvDoc.GetLayerManager()%2%1Dim kvCreateObjectResult%5 As Morvane.kvCreateObjectResult_e%2%1Set %4 = kvLayerManager%5.CreateLayer( \"%3\", kvCreateObjectResult%5 )%2",
        name, variable, number);
}

QString CZtConverterKVAPIObjectVba::WriteRemoveLayer(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1Dim kvLayerManager%4 As Morvane.LayerManager%2%1Set kvLayerManager%4 = kvDoc.GetLayerManager()%2%1Dim Name%4 As String%2%1Name%4 = %3.Name%2%1kvLayerManager1.RemoveLayer( Name%4 )%2",
        variable, number);
}

QString CZtConverterKVAPIObjectVba::WriteActivateEntity(const QString& variable)
{
    // The success isn't asked for, but takes its number as in every language.
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.Activate%2", variable);
}

QString CZtConverterKVAPIObjectVba::WriteRenameEntity(const QString& variable, const QString& name)
{
    return Statement("%1%3.Rename \"%4\"%2", variable, name);
}
