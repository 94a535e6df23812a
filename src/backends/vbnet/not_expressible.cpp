// What VB.NET leaves unsaid.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/object.h"

QString CZtConverterKVAPIVbNet::WriteCommentBlockSeparator()
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
