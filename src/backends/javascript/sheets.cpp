// JavaScript texts of sheets and the model; the logic stands in core/sheets.cpp.
#include "backends/javascript/converter.h"
#include "backends/javascript/counters.h"

QString CZtConverterKVAPIJavaScript::WriteActivateSheet(const QString& name)
{
    return Statement("%1mSheet = mDoc.GetSheet(\"%3\");%2"
                     "%1if (null != mSheet)%2"
                     "%1{%2"
                     "%1    mSheet.Activate();%2"
                     "%1    mSkMgr = mSheet.GetSketchManager();%2"
                     "%1}%2",
                     name);
}

QString CZtConverterKVAPIJavaScript::WriteActivateModel()
{
    return Statement("%1mModel.Activate();%2"
                     "%1mSkMgr = mModel.GetSketchManager();%2");
}

QString CZtConverterKVAPIJavaScript::WriteRenameSheet(const QString& oldName, const QString& newName)
{
    // The name goes to a variable that doesn't exist; that and the layout are the format's.
    return Statement("%1 var PreSheet%4 = mDoc.GetSheet(\"%3\");%2"
                     "%1 if (null != PreSheet%4)%2"
                     "%1\t    kvSheet%4.put_Name( \"%5\" );%2",
                     oldName, JavaScriptCounters::OfProcess().WriteRenameSheet++, newName);
}

QString CZtConverterKVAPIJavaScript::WriteCreateSheet(const QString& name)
{
    return Statement("%1var kvSheet = mDoc.CreateSheet(\"%3\");%2", name);
}

QString CZtConverterKVAPIJavaScript::WriteRemoveSheet(const QString& name)
{
    return Statement("%1var mV = mDoc.RemoveSheet(\"%3\");%2", name);
}

QString CZtConverterKVAPIJavaScript::WriteCopySheet(const QString& source, const QString& newName)
{
    // The prefixes of the names are the format's.
    return Statement("%1mDoc.CopySheet(L\"%3\" , L\"%4\" );%2", source, newName);
}

QString CZtConverterKVAPIJavaScript::WriteCreateSheetByTemplate(const QString& fileName, const QString& second,
                                                                const QString& third)
{
    return Statement("%1var kvSheet_template%6 = mDoc.CreateSheetByTemplate(\"%3\", \"%4\", \"%5\");%2", fileName,
                     second, third, JavaScriptCounters::OfProcess().WriteCreateSheetByTemplate++);
}
