// What VBA leaves unsaid. The macro is one file, so there is no project around it.
#include "backends/vba/converter.h"
#include "backends/vba/object.h"

ResultCode CZtConverterKVAPIVba::WriteProjectFiles(const QString& /*outputPath*/)
{
    return ResultNormal;
}

QString CZtConverterKVAPIVba::WriteProjectFile(const QString& /*macroName*/)
{
    return {};
}

QString CZtConverterKVAPIVba::WriteGlobalHeaderFile(const QString& /*macroName*/)
{
    return {};
}

QString CZtConverterKVAPIVba::WriteCommentBlockSeparator()
{
    return {};
}

QString CZtConverterKVAPIObjectVba::WriteObjectAddedEnd()
{
    return {};
}

QString CZtConverterKVAPIObjectVba::WriteObjectModifiedEnd()
{
    return {};
}
