// C++ API texts of layers.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"

QString CZtConverterKVAPICPP::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1kvLayerManager_ptr kvLayerManager_%3;%2"
                     "%1kvDoc->GetLayerManager( &kvLayerManager_%3 );%2"
                     "%1kvLayer_ptr %4;%2"
                     "%1kvLayerManager_%3->GetLayer( L\"0\", &%4 );%2",
                     CppCounters::OfProcess().WriteGetLayer++, variable);
}
