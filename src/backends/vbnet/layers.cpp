// VB.NET texts of layers.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

QString CZtConverterKVAPIVbNet::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1Dim kvLayerManager_%3 As Morvane.LayerManager = kvDoc.GetLayerManager()%2"
                     "%1Dim %4 As Morvane.Layer = kvLayerManager_%3.GetLayer( \"0\" )%2",
                     VbNetCounters::OfProcess().WriteGetLayer++, variable);
}
