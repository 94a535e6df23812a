// C++ API texts of layers.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"
#include "backends/cpp/object.h"

QString CZtConverterKVAPICPP::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1kvLayerManager_ptr kvLayerManager_%3;%2"
                     "%1kvDoc->GetLayerManager( &kvLayerManager_%3 );%2"
                     "%1kvLayer_ptr %4;%2"
                     "%1kvLayerManager_%3->GetLayer( L\"0\", &%4 );%2",
                     CppCounters::OfProcess().WriteGetLayer++, variable);
}

QString CZtConverterKVAPIObjectCPP::WriteCreateLayer(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvLayerManager_ptr kvLayerManager%5;%2%1kvDoc->GetLayerManager( &kvLayerManager%5 );%2%1kvCreateObjectResult_e kvCreateObjectResult%5;%2%1kvLayerManager%5->CreateLayer( L\"%3\", &%4, &kvCreateObjectResult%5 );%2",
        name, variable, number);
}

QString CZtConverterKVAPIObjectCPP::WriteRemoveLayer(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1kvLayerManager_ptr kvLayerManager%4;%2%1kvDoc->GetLayerManager( &kvLayerManager%4 );%2%1kvString Name%4;%2%1%3->get_Name( &Name%4 );%2%1bool bResult%4;%2%1kvLayerManager%4->RemoveLayer( Name%4, &bResult%4 );%2",
        variable, number);
}

QString CZtConverterKVAPIObjectCPP::WriteActivateEntity(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement("%1bool bRes%4;%2%1%3->Activate( &bRes%4 );%2", variable, number);
}
