// C# texts of layers.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"
#include "backends/csharp/object.h"

QString CZtConverterKVAPICSharp::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; that is the format's.
    return Statement("%1LayerManager kvLayerManager_%3 = kvDoc.GetLayerManager();%2"
                     "%1Layer %4 = kvLayerManager_%3.GetLayer( \"0\" );%2",
                     CSharpCounters::OfProcess().WriteGetLayer++, variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteCreateLayer(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1LayerManager kvLayerManager%5 = kvDoc.GetLayerManager();%2%1kvCreateObjectResult_e kvCreateObjectResult%5;%2%1%4 = kvLayerManager%5.CreateLayer( \"%3\", out kvCreateObjectResult%5 );%2",
        name, variable, number);
}

QString CZtConverterKVAPIObjectCSharp::WriteRemoveLayer(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1LayerManager kvLayerManager%4 = kvDoc.GetLayerManager();%2%1String Name%4 = %3.Name;%2%1kvLayerManager%4.RemoveLayer( Name%4 );%2",
        variable, number);
}

QString CZtConverterKVAPIObjectCSharp::WriteActivateEntity(const QString& variable)
{
    // The success isn't asked for, but takes its number as in every language.
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.Activate();%2", variable);
}

QString CZtConverterKVAPIObjectCSharp::WriteRenameEntity(const QString& variable, const QString& name)
{
    return Statement("%1%3.Rename(\"%4\");%2", variable, name);
}
