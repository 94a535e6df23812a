// C++ COM texts of layers.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"

QString CZtConverterKVAPICPPCOM::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1ILayerManagerPtr kvLayerManager_%3 = kvDoc->GetLayerManager();%2"
                     "%1ILayerPtr %4 = kvLayerManager_%3->GetLayer( L\"0\" );%2",
                     ComCounters::OfProcess().WriteGetLayer++, variable);
}
