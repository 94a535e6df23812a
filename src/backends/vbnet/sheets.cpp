// VB.NET texts of sheets and the model; the logic stands in core/sheets.cpp.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/counters.h"

QString CZtConverterKVAPIVbNet::WriteActivateSheet(const QString& name)
{
    // The blanks behind the indent are the format's.
    return Statement("%1 kvSheet = kvDoc.GetSheet(\"%3\")%2"
                     "%1 If kvSheet IsNot Nothing Then%2"
                     "%1     kvSheet.Activate()%2"
                     "%1     kvSketchManager = kvSheet.GetSketchManager()%2"
                     "%1End If%2",
                     name);
}

QString CZtConverterKVAPIVbNet::WriteActivateModel()
{
    return Statement("%1kvModel.Activate()%2"
                     "%1kvSketchManager = kvModel.GetSketchManager()%2");
}

QString CZtConverterKVAPIVbNet::WriteRenameSheet(const QString& oldName, const QString& newName)
{
    return Statement("%1Dim PreSheet%4 As Morvane.Sheet = kvDoc.GetSheet(\"%3\")%2"
                     "%1If PreSheet%4 IsNot Nothing Then%2"
                     "%1    PreSheet%4.Name = \"%5\"%2"
                     "%1End If%2",
                     oldName, VbNetCounters::OfProcess().WriteRenameSheet++, newName);
}

QString CZtConverterKVAPIVbNet::WriteCreateSheet(const QString& name)
{
    return Statement("%1Dim kvSheet%4 As Morvane.Sheet = kvDoc.CreateSheet( \"%3\" )%2", name,
                     VbNetCounters::OfProcess().WriteCreateSheet++);
}

QString CZtConverterKVAPIVbNet::WriteRemoveSheet(const QString& name)
{
    return Statement("%1kvDoc.RemoveSheet( \"%3\" )%2", name);
}

QString CZtConverterKVAPIVbNet::WriteCopySheet(const QString& source, const QString& newName)
{
    // The prefixes of wide texts, which VB.NET doesn't have, are the format's.
    return Statement("%1kvDoc.CopySheet(L\"%3\" , L\"%4\" )%2", source, newName);
}

QString CZtConverterKVAPIVbNet::WriteCreateSheetByTemplate(const QString& fileName, const QString& second,
                                                           const QString& third)
{
    return Statement("%1Dim kvSheet_template%6 As Morvane.Sheet = "
                     "kvDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" )%2",
                     fileName, second, third, VbNetCounters::OfProcess().WriteCreateSheetByTemplate++);
}
