// What the C++ API leaves unsaid.
#include "backends/cpp/converter.h"
#include "backends/cpp/object.h"

QString CZtConverterKVAPICPP::WriteComment(const QString& /*text*/)
{
    return {};
}

QString CZtConverterKVAPICPP::WriteCommentBlockSeparator()
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectCPP::WriteObjectModifiedEnd()
{
    return {};
}
