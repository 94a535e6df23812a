// VBA texts of layers.
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"

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
