// What the C++ API leaves unsaid.
#include "backends/cpp/converter_cpp.h"
#include "backends/cpp/object_cpp.h"

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
