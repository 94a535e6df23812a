// C++ COM texts of layers.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"
#include "backends/cppcom/object.h"

QString CZtConverterKVAPICPPCOM::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1ILayerManagerPtr kvLayerManager_%3 = kvDoc->GetLayerManager();%2"
                     "%1ILayerPtr %4 = kvLayerManager_%3->GetLayer( L\"0\" );%2",
                     ComCounters::OfProcess().WriteGetLayer++, variable);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteCreateLayer(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1ILayerManagerPtr kvLayerManager%5 = kvDoc->GetLayerManager();%2%1kvCreateObjectResult_e kvCreateObjectResult%5;%2%1%4 = kvLayerManager%5->CreateLayer( L\"%3\", &kvCreateObjectResult%5 );%2",
        name, variable, number);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteRemoveLayer(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1ILayerManagerPtr kvLayerManager%4 = kvDoc->GetLayerManager();%2%1BSTR Name%4;%2%1%3->get_Name( &Name%4 );%2%1VARIANT_BOOL bResult%4;%2%1bResult%4=kvLayerManager%4->RemoveLayer( Name%4 );%2",
        variable, number);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteActivateEntity(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1VARIANT_BOOL bRes%4;%2%1bRes%4=%3->Activate();%2", variable, number);
}

QString CZtConverterKVAPIObjectCPPCOM::WriteRenameEntity(const QString& variable, const QString& name)
{
    return Statement("%1%3->Rename(\"%4\");%2", variable, name);
}
