// The replay of selections.
#include "core/converter_impl.h"
#include "core/variable_names.h"

ResultCode CZtConverterKVAPIImpl::ConvertUserSelection(const CZtUserSelection& event, QString& text)
{
    const EntityArray entities =
        NameEntities(event.GetSelectedHandles(), event.GetSelectedClasses(), PlainPointerMark::Kept);
    if (entities.size() > 0)
    {
        text = WriteSelectEntities(entities);
    }
    return ResultNormal;
}
