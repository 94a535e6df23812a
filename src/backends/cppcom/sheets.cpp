// C++ COM texts of sheets and the model; the logic stands in core/sheets.cpp.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/counters.h"

QString CZtConverterKVAPICPPCOM::WriteActivateSheet(const QString& name)
{
    return Statement("%1kvSheet = kvDoc->GetSheet(L\"%3\");%2"
                     "%1if (NULL != kvSheet)%2"
                     "%1{%2"
                     "%1    kvSheet->Activate();%2"
                     "%1    kvSketchManager = kvSheet->GetSketchManager();%2"
                     "%1}%2",
                     name);
}

QString CZtConverterKVAPICPPCOM::WriteActivateModel()
{
    return Statement("%1kvModel->Activate();%2"
                     "%1kvSketchManager = kvModel->GetSketchManager();%2");
}

QString CZtConverterKVAPICPPCOM::WriteRenameSheet(const QString& oldName, const QString& newName)
{
    return Statement("%1ISheetPtr PreSheet%4 = kvDoc->GetSheet(L\"%3\");%2"
                     "%1if (NULL != PreSheet%4)%2"
                     "%1    PreSheet%4->put_Name(L\"%5\");%2",
                     oldName, ComCounters::OfProcess().WriteRenameSheet++, newName);
}

QString CZtConverterKVAPICPPCOM::WriteCreateSheet(const QString& name)
{
    return Statement("%1ISheetPtr kvSheet%4 = kvDoc->CreateSheet( L\"%3\" );%2", name,
                     ComCounters::OfProcess().WriteCreateSheet++);
}

QString CZtConverterKVAPICPPCOM::WriteRemoveSheet(const QString& name)
{
    return Statement("%1kvDoc->RemoveSheet( L\"%3\" );%2", name);
}

QString CZtConverterKVAPICPPCOM::WriteCopySheet(const QString& source, const QString& newName)
{
    return Statement("%1ISheetPtr sheets = kvDoc->CopySheet(L\"%3\" , L\"%4\" );%2", source, newName);
}

QString CZtConverterKVAPICPPCOM::WriteCreateSheetByTemplate(const QString& fileName, const QString& second,
                                                            const QString& third)
{
    return Statement("%1ISheetPtr kvSheet_template%6 = kvDoc->CreateSheetByTemplate( L\"%3\", L\"%4\", L\"%5\" );%2",
                     fileName, second, third, ComCounters::OfProcess().WriteCreateSheetByTemplate++);
}
