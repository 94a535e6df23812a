// C# texts of sheets and the model; the logic stands in core/sheets.cpp.
#include "backends/csharp/converter.h"
#include "backends/csharp/counters.h"

QString CZtConverterKVAPICSharp::WriteActivateSheet(const QString& name)
{
    // The fifth blank in the block is the format's.
    return Statement("%1kvSheet = kvDoc.GetSheet(\"%3\");%2"
                     "%1if (null != kvSheet)%2"
                     "%1{%2"
                     "%1     kvSheet.Activate();%2"
                     "%1     kvSketchManager = kvSheet.GetSketchManager();%2"
                     "%1}%2",
                     name);
}

QString CZtConverterKVAPICSharp::WriteActivateModel()
{
    return Statement("%1kvModel.Activate();%2"
                     "%1kvSketchManager = kvModel.GetSketchManager();%2");
}

QString CZtConverterKVAPICSharp::WriteRenameSheet(const QString& oldName, const QString& newName)
{
    return Statement("%1Sheet PreSheet%4 = kvDoc.GetSheet(\"%3\");%2"
                     "%1if (null != PreSheet%4)%2"
                     "%1    PreSheet%4.Name = \"%5\";%2",
                     oldName, CSharpCounters::OfProcess().WriteRenameSheet++, newName);
}

QString CZtConverterKVAPICSharp::WriteCreateSheet(const QString& name)
{
    return Statement("%1Sheet kvSheet%4 = kvDoc.CreateSheet( \"%3\" );%2", name,
                     CSharpCounters::OfProcess().WriteCreateSheet++);
}

QString CZtConverterKVAPICSharp::WriteRemoveSheet(const QString& name)
{
    return Statement("%1kvDoc.RemoveSheet( \"%3\" );%2", name);
}

QString CZtConverterKVAPICSharp::WriteCopySheet(const QString& source, const QString& newName)
{
    return Statement("%1kvDoc.CopySheet(\"%3\" , \"%4\" );%2", source, newName);
}

QString CZtConverterKVAPICSharp::WriteCreateSheetByTemplate(const QString& fileName, const QString& second,
                                                            const QString& third)
{
    return Statement("%1Sheet kvSheet_template%6 = kvDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" );%2", fileName,
                     second, third, CSharpCounters::OfProcess().WriteCreateSheetByTemplate++);
}
