// What VB.NET leaves unsaid.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIVbNet::WriteCommentBlockSeparator()
{
    return {};
}

// A selection reaches the macro through its entities only.

QString CZtConverterKVAPIVbNet::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/)
{
    return {};
}

QString CZtConverterKVAPIVbNet::WriteSetSelectionFilter(const SelectionMethod& /*method*/,
                                                        const QStringList& /*typeNames*/)
{
    return {};
}

QString CZtConverterKVAPIObjectVbNet::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectVbNet::WriteObjectModifiedEnd()
{
    return {};
}
