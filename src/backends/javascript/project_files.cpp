// JavaScript texts of project files: there are none, the page is all.
#include "backends/javascript/converter.h"

ResultCode CZtConverterKVAPIJavaScript::WriteProjectFiles(const QString& /*outputPath*/)
{
    return ResultNormal;
}

QString CZtConverterKVAPIJavaScript::WriteProjectFile(const QString& /*macroName*/)
{
    return {};
}

QString CZtConverterKVAPIJavaScript::WriteGlobalHeaderFile(const QString& /*macroName*/)
{
    return {};
}
