// What C++ COM leaves unsaid.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/object.h"

QString CZtConverterKVAPICPPCOM::WriteComment(const QString& /*text*/)
{
    return {};
}

QString CZtConverterKVAPICPPCOM::WriteCommentBlockSeparator()
{
    return {};
}

QString CZtConverterKVAPICPPCOM::WriteSelectByMethods(const SelectionMethod& /*method*/, bool /*filterActive*/)
{
    return {};
}

QString CZtConverterKVAPICPPCOM::WriteSetSelectionFilter(const SelectionMethod& /*method*/,
                                                         const QStringList& /*typeNames*/)
{
    return {};
}

// The project exports by its module definition.
QString CZtConverterKVAPICPPCOM::WriteGlobalHeaderFile(const QString& /*macroName*/)
{
    return {};
}

QString CZtConverterKVAPIObjectCPPCOM::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectCPPCOM::WriteObjectModifiedEnd()
{
    return {};
}
