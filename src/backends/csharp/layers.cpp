// C# texts of layers.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"

QString CZtConverterKVAPICSharp::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1LayerManager kvLayerManager_%3 = kvDoc.GetLayerManager();%2"
                     "%1Layer %4 = kvLayerManager_%3.GetLayer( \"0\" );%2",
                     CSharpCounters::OfProcess().WriteGetLayer++, variable);
}
