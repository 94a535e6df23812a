// VBA texts of sheets and the model; the logic stands in core/sheets.cpp.
#include "backends/vba/converter.h"
#include "backends/vba/counters.h"

QString CZtConverterKVAPIVba::WriteActivateSheet(const QString& name)
{
    // The blanks behind the indent are the format's.
    return Statement("%1 Set kvSheet = kvDoc.GetSheet(\"%3\")%2"
                     "%1 If Not kvSheet Is Nothing Then%2"
                     "%1     kvSheet.Activate%2"
                     "%1     Set kvSketchManager = kvSheet.GetSketchManager()%2"
                     "%1End If%2",
                     name);
}

QString CZtConverterKVAPIVba::WriteActivateModel()
{
    return Statement("%1kvModel.Activate%2"
                     "%1Set kvSketchManager = kvModel.GetSketchManager()%2");
}

QString CZtConverterKVAPIVba::WriteRenameSheet(const QString& oldName, const QString& newName)
{
    return Statement("%1Dim PreSheet%4 As Morvane.Sheet%2"
                     "%1Set PreSheet%4 = kvDoc.GetSheet(\"%3\")%2"
                     "%1If Not PreSheet%4 Is Nothing Then%2"
                     "%1    PreSheet%4.Name = \"%5\"%2"
                     "%1End If%2",
                     oldName, VbaCounters::OfProcess().WriteRenameSheet++, newName);
}

QString CZtConverterKVAPIVba::WriteCreateSheet(const QString& name)
{
    return Statement("%1Dim kvSheet%4 As Morvane.Sheet%2"
                     "%1Set kvSheet%4 = kvDoc.CreateSheet( \"%3\" )%2",
                     name, VbaCounters::OfProcess().WriteCreateSheet++);
}

QString CZtConverterKVAPIVba::WriteRemoveSheet(const QString& name)
{
    return Statement("%1kvDoc.RemoveSheet \"%3\"%2", name);
}

QString CZtConverterKVAPIVba::WriteCopySheet(const QString& source, const QString& newName)
{
    // The prefixes of wide texts, and the digit where the line should end, are the format's.
    return Line("%1kvDoc.CopySheet(L\"%3\" , L\"%4\" )2", source, newName);
}

QString CZtConverterKVAPIVba::WriteCreateSheetByTemplate(const QString& fileName, const QString& second,
                                                         const QString& third)
{
    return Statement("%1Dim kvSheet_template%6 As Morvane.Sheet%2"
                     "%1Set kvSheet_template%6 = kvDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" )%2",
                     fileName, second, third, VbaCounters::OfProcess().WriteCreateSheetByTemplate++);
}
