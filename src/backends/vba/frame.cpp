// VBA texts of the macro's frame, of blocks and of declarations. Blanks and tabs are mixed as the
// format has them.
#include "backends/vba/converter.h"
#include "backends/vba/object.h"
#include "core/recording_start.h"

CZtConverterKVAPIVba::CZtConverterKVAPIVba(std::int32_t recordingMode) : ObjectArrays(recordingMode)
{
    SetObjectConverter(std::make_unique<CZtConverterKVAPIObjectVba>(this));
}

QString CZtConverterKVAPIVba::WriteMacroHeader(const QString& /*macroName*/, bool /*hasSysVarChanged*/)
{
    const RecordingStart& start = RecordingStart::Current();
    // The message box and the arc are the format's; the macro has neither.
    QString text = QStringLiteral("'--------------------------------------------------------------%1"
                                  "' Preconditions:%1"
                                  "' 1. Create a VBA macro in a software product in which VBA is%1"
                                  "'    embedded.%1"
                                  "' 2. Copy and paste this example into the Visual Basic IDE.%1"
                                  "' 3. Add a reference to the Morvane type library,%1"
                                  "'    install_dir\\bin\\kvAutomation.dll.%1"
                                  "' 4. Start Morvane and open a document.%1"
                                  "' 5. Run the macro.%1"
                                  "'%1"
                                  "' Postconditions: A message box pops up when an Arc is%1"
                                  "' constructed in the drawing document.%1"
                                  "'----------------------------------------------------------------%1"
                                  "Option Explicit%1"
                                  "Sub main()%1"
                                  "\tDim kvApp As Morvane.Application%1"
                                  "\tDim kvDoc As Morvane.Document%1"
                                  "\tDim kvModel As Morvane.Model%1"
                                  "\tDim kvSketchManager As Morvane.SketchManager%1"
                                  "   Dim kvViewManager As Morvane.ViewManager%1%1"
                                  "\t'Connect to Morvane%1"
                                  "\tSet kvApp = GetObject(, \"Morvane.Application\")%1"
                                  "\t'Abort any command currently running in Morvane%1"
                                  "\t'to avoid nested commands%1"
                                  "\tkvApp.AbortRunningCommand%1%1"
                                  "\t'Get active document%1"
                                  "\tSet kvDoc = kvApp.GetActiveDocument()%1"
                                  "\tIf Not kvDoc Is Nothing Then%1%1"
                                  "\t\t'Get model space%1"
                                  "\t\tSet kvModel = kvDoc.GetModel()%1%1");
    if (start.RecordingStartsInModel)
    {
        text += QStringLiteral("\t\t'Get Sketch Manager%1"
                               "\t\tSet kvSketchManager = kvModel.GetSketchManager()%1%1");
    }
    text += QStringLiteral("        Dim kvSheet As Morvane.Sheet%1"
                           "        Dim kvVarSheets As Variant%1"
                           "        kvVarSheets = kvDoc.GetSheets%1"
                           "        Set kvSheet = kvVarSheets(1)%1"
                           "        If kvSheet Is Nothing Then%1"
                           "            Return%1"
                           "        End If%1%1");
    const bool startsOnSheet = !start.RecordingStartsInModel && !start.RecordingStartSheet.isEmpty();
    if (startsOnSheet)
    {
        text += QStringLiteral("\t\t'Get paper space%1"
                               "        Set kvSheet = kvDoc.GetSheet(\"%2\")%1"
                               "        If kvSheet Is Nothing Then%1"
                               "            Return%1"
                               "        End If%1%1"
                               "        kvSheet.Activate%1"
                               "\t\t'Get Sketch Manager%1"
                               "\t\tSet kvSketchManager = kvSheet.GetSketchManager()%1%1");
    }
    text += QStringLiteral("\t\t'Get View Manager%1"
                           "\t\tSet kvViewManager = kvDoc.GetViewManager()%1%1");
    Counters().IndentLevel += 2;
    text = kv::FillChain(text, kv::LineEnd());
    return startsOnSheet ? kv::FillChain(text, start.RecordingStartSheet.text()) : text;
}

QString CZtConverterKVAPIVba::WriteMacroFooter()
{
    // The level stays raised: the format's.
    return kv::Fill("\tElse%1%1"
                    "\t\tMsgBox \"There are no open documents in Morvane\"%1%1"
                    "\tEnd If%1"
                    "End Sub%1",
                    kv::LineEnd());
}

QString CZtConverterKVAPIVba::WriteBlockBegin()
{
    // The language has no bare scope.
    QString text = Statement("%1If 1 Then%2");
    Counters().IndentLevel += 1;
    return text;
}

QString CZtConverterKVAPIVba::WriteBlockEnd()
{
    Counters().IndentLevel -= 1;
    return Statement("%1End If%2%2");
}

QString CZtConverterKVAPIVba::WriteComment(const QString& text)
{
    return Statement("%1'%3%2", text);
}

QString CZtConverterKVAPIVba::WriteDeclareVariable(const QString& typeName, const QString& stem, std::int32_t number)
{
    return typeName == QLatin1String("Variant") ? Statement("%1Dim %3%4 As %5%2", stem, number, typeName)
                                                : Statement("%1Dim %3%4 As Morvane.%5%2", stem, number, typeName);
}
