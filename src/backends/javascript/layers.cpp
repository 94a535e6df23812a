// JavaScript texts of layers.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"
#include "backends/javascript/object.h"

QString CZtConverterKVAPIJavaScript::WriteGetLayer(const QString& variable)
{
    // Every layer is fetched by the name "0"; this, "kvDoc" and the member "LayerManager" are the format's.
    return Statement("%1var kvLayerManager_%3 = kvDoc.GetLayerManager();%2"
                     "%1var %4 = kvLayerManager_%3.LayerManager.GetLayer( \"0\" );%2",
                     JavaScriptCounters::OfProcess().WriteGetLayer++, variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteCreateLayer(const QString& variable, const QString& name)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1var kvLayerManager%5 = mDoc.GetLayerManager();%2%1var %4 = kvLayerManager%5.CreateLayer(\"%3\");%2", name,
        variable, number);
}

QString CZtConverterKVAPIObjectJavaScript::WriteRemoveLayer(const QString& variable)
{
    const std::int32_t number = NextLocalNumber();
    return Statement(
        "%1var kvLayerManager%4 = mDoc.GetLayerManager();%2%1var Name%4 = %3.get_Name();%2%1kvLayerManager%4.RemoveLayer(Name%4);%2",
        variable, number);
}

QString CZtConverterKVAPIObjectJavaScript::WriteActivateEntity(const QString& variable)
{
    // The success isn't asked for, but takes its number as in every language.
    static_cast<void>(NextLocalNumber());
    return Statement("%1%3.Activate();%2", variable);
}

QString CZtConverterKVAPIObjectJavaScript::WriteRenameEntity(const QString& variable, const QString& name)
{
    return Statement("%1%3.Rename(\"%4\");%2", variable, name);
}
