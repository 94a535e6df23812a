// What C# leaves unsaid.
#include "backends/csharp/converter.h"
#include "backends/csharp/object.h"

QString CZtConverterKVAPICSharp::WriteCommentBlockSeparator()
{
    return {};
}

QString CZtConverterKVAPIObjectCSharp::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectCSharp::WriteObjectModifiedEnd()
{
    return {};
}
