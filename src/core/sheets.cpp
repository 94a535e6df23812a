// Sheets and the model.
#include "core/action_data.h"
#include "core/converter_impl.h"

ResultCode CZtConverterKVAPIImpl::ConvertSheets(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 13)
    {
        return ResultError;
    }
    const ActionData data(action);
    QStringList items;
    for (std::int32_t i = 0; i < data.Count(); ++i)
    {
        const std::optional<QString> item = data.Text(i);
        if (!item)
        {
            return ResultNormal;
        }
        items.append(*item);
    }
    if (items.size() == 1)
    {
        text = items[0] == QLatin1String("Model") ? WriteActivateModel() : WriteActivateSheet(items[0]);
    }
    else if (items.size() == 2)
    {
        if (items[0] == QLatin1String("New"))
        {
            text = WriteCreateSheet(items[1]);
        }
        else if (items[0] == QLatin1String("Delete"))
        {
            text = WriteRemoveSheet(items[1]);
        }
        else if (items[0] == QLatin1String("Copy"))
        {
            // With two items the word itself is the source; the format's.
            text = WriteCopySheet(items[0], items[1]);
        }
        else
        {
            text = WriteRenameSheet(items[0], items[1]);
        }
    }
    else if (items.size() == 3 && items[0] == QLatin1String("Copy"))
    {
        text = WriteCopySheet(items[1], items[2]);
    }
    else if (items.size() == 4 && items[0] == QLatin1String("Layout from template"))
    {
        text = WriteCreateSheetByTemplate(items[1] + QLatin1Char('-') + items[3], items[2], items[1]);
    }
    return ResultNormal;
}
