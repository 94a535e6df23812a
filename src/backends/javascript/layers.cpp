// JavaScript texts of layers.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"

QString CZtConverterKVAPIJavaScript::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; this, "kvDoc" and the member "LayerManager" are the format's.
    return Statement("%1var kvLayerManager_%3 = kvDoc.GetLayerManager();%2"
                     "%1var %4 = kvLayerManager_%3.LayerManager.GetLayer( \"0\" );%2",
                     JavaScriptCounters::OfProcess().WriteGetLayer++, variable);
}
