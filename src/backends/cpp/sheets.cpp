// C++ API texts of sheets and the model; the logic stands in core/sheets.cpp.
#include "backends/cpp/converter.h"
#include "backends/cpp/counters.h"

QString CZtConverterKVAPICPP::WriteActivateSheet(const QString& name)
{
    return Statement("%1kvDoc->GetSheet(L\"%3\" , &kvSheet);%2"
                     "%1if (NULL != kvSheet)%2"
                     "%1{%2"
                     "%1    kvSheet->Activate();%2"
                     "%1    kvSheet->GetSketchManager( &kvSketchManager );%2"
                     "%1}%2",
                     name);
}

QString CZtConverterKVAPICPP::WriteActivateModel()
{
    return Statement("%1kvModel->Activate();%2"
                     "%1kvModel->GetSketchManager( &kvSketchManager );%2");
}

QString CZtConverterKVAPICPP::WriteRenameSheet(const QString& oldName, const QString& newName)
{
    return Statement("%1kvSheet_ptr PreSheet%4;%2"
                     "%1kvDoc->GetSheet(L\"%3\" , &PreSheet%4);%2"
                     "%1if (NULL != PreSheet%4)%2"
                     "%1    PreSheet%4->put_Name(L\"%5\");%2",
                     oldName, CppCounters::OfProcess().WriteRenameSheet++, newName);
}

QString CZtConverterKVAPICPP::WriteCreateSheet(const QString& name)
{
    return Statement("%1kvSheet_c* kvSheet%4;%2"
                     "%1kvDoc->CreateSheet( L\"%3\", &kvSheet%4 );%2",
                     name, CppCounters::OfProcess().WriteCreateSheet++);
}

QString CZtConverterKVAPICPP::WriteRemoveSheet(const QString& name)
{
    return Statement("%1kvDoc->RemoveSheet( L\"%3\" );%2", name);
}

QString CZtConverterKVAPICPP::WriteCopySheet(const QString& source, const QString& newName)
{
    return Statement("%1kvSheet_ptr sheets;%2"
                     "%1kvDoc->CopySheet(L\"%3\" , L\"%4\" ,&sheets);%2",
                     source, newName);
}

QString CZtConverterKVAPICPP::WriteCreateSheetByTemplate(const QString& fileName, const QString& second,
                                                         const QString& third)
{
    return Statement("%1kvSheet_c* kvSheet_template%6;%2"
                     "%1kvDoc->CreateSheetByTemplate( L\"%3\", L\"%4\", L\"%5\", &kvSheet_template%6 );%2",
                     fileName, second, third, CppCounters::OfProcess().WriteCreateSheetByTemplate++);
}
