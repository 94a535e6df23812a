// VB.NET texts of the macro's frame, of blocks and of declarations.
#include "backends/vbnet/converter.h"
#include "backends/vbnet/object.h"
#include "core/recording_start.h"

CZtConverterKVAPIVbNet::CZtConverterKVAPIVbNet(std::int32_t recordingMode) : DispatchArrays(recordingMode)
{
    SetObjectConverter(std::make_unique<CZtConverterKVAPIObjectVbNet>(this));
}

QString CZtConverterKVAPIVbNet::WriteMacroHeader(const QString& macroName, bool /*hasSysVarChanged*/)
{
    const RecordingStart& start = RecordingStart::Current();
    QString text = QStringLiteral("%2Imports System.Runtime.InteropServices%2%2%2"
                                  "Public Class %1%2%2"
                                  "    Sub Run(ByVal kvApp As Morvane.Application)%2%2"
                                  "        Dim kvDoc As Morvane.Document%2"
                                  "        kvDoc = kvApp.GetActiveDocument()%2"
                                  "        If kvDoc Is Nothing Then%2"
                                  "            Return%2"
                                  "        End If%2%2"
                                  "        Dim kvModel As Morvane.Model%2"
                                  "        kvModel = kvDoc.GetModel()%2"
                                  "        If kvModel Is Nothing Then%2"
                                  "            Return%2"
                                  "        End If%2%2"
                                  "        Dim kvSketchManager As Morvane.SketchManager%2");
    if (start.RecordingStartsInModel)
    {
        text += QStringLiteral("        kvSketchManager = kvModel.GetSketchManager()%2"
                               "        If kvSketchManager Is Nothing Then%2"
                               "            Return%2"
                               "        End If%2%2");
    }
    text += QStringLiteral("        Dim kvSheet As Morvane.Sheet%2"
                           "        Dim kvVarSheets As Object%2"
                           "        kvVarSheets = kvDoc.GetSheets()%2"
                           "        kvSheet = kvVarSheets(1)%2"
                           "        If kvSheet Is Nothing Then%2"
                           "            Return%2"
                           "        End If%2%2");
    const bool startsOnSheet = !start.RecordingStartsInModel && !start.RecordingStartSheet.isEmpty();
    if (startsOnSheet)
    {
        text += QStringLiteral("        kvSheet = kvDoc.GetSheet(\"%3\")%2"
                               "        If kvSheet Is Nothing Then%2"
                               "            Return%2"
                               "        End If%2%2"
                               "        kvSheet.Activate()%2"
                               "        kvSketchManager = kvSheet.GetSketchManager()%2"
                               "        If kvSketchManager Is Nothing Then%2"
                               "            Return%2"
                               "        End If%2%2");
    }
    text += QStringLiteral("        Dim kvViewManager As Morvane.ViewManager%2"
                           "        kvViewManager = kvDoc.GetViewManager()%2"
                           "        If kvViewManager Is Nothing Then%2"
                           "            Return%2"
                           "        End If%2%2");
    Counters().IndentLevel += 2;
    text = kv::FillChain(text, macroName, kv::LineEnd());
    return startsOnSheet ? kv::FillChain(text, start.RecordingStartSheet.text()) : text;
}

QString CZtConverterKVAPIVbNet::WriteMacroFooter()
{
    // The level stays raised and the last line has no end: the format's.
    return kv::Fill("%2    End Sub%2%2End Class", kv::LineEnd());
}

QString CZtConverterKVAPIVbNet::WriteBlockBegin()
{
    // The language has no bare scope; what is declared inside the condition stays local.
    QString text = Statement("%1If 1 Then%2");
    Counters().IndentLevel += 1;
    return text;
}

QString CZtConverterKVAPIVbNet::WriteBlockEnd()
{
    Counters().IndentLevel -= 1;
    return Statement("%1End If%2%2");
}

QString CZtConverterKVAPIVbNet::WriteComment(const QString& text)
{
    return Statement("%1'%3%2", text);
}

QString CZtConverterKVAPIVbNet::WriteDeclareVariable(const QString& typeName, const QString& stem, std::int32_t number)
{
    return typeName == QLatin1String("Object") ? Statement("%1Dim %3%4 As %5%2", stem, number, typeName)
                                               : Statement("%1Dim %3%4 As Morvane.%5%2", stem, number, typeName);
}
