// JavaScript texts of the page around the macro; blocks and declarations need none.
#include "backends/javascript/converter.h"
#include "backends/javascript/object.h"
#include "backends/javascript/object_type_names.h"
#include "backends/javascript/script_files.h"
#include "core/recording_start.h"

CZtConverterKVAPIJavaScript::CZtConverterKVAPIJavaScript(std::int32_t recordingMode) : TextOperations(recordingMode)
{
    SetObjectConverter(std::make_unique<CZtConverterKVAPIObjectJavaScript>(this));
}

QString CZtConverterKVAPIJavaScript::WriteMacroHeader(const QString& /*macroName*/, bool /*hasSysVarChanged*/)
{
    const RecordingStart& start = RecordingStart::Current();
    // The closing bracket of the meta tag stands on the next line; that is the format's.
    QString text = QStringLiteral("<html>%1"
                                  "   <head>%1"
                                  "%1"
                                  "   <!-- Without this line, this will not work in Internet Explorer 8 -->%1"
                                  "   <meta http-equiv =\"X-UA-Compatible\" content =\"IE=8\" /%1"
                                  ">   <!-- Add your kvInterface .js Files here -->%1");
    for (const char* file : kv::ScriptFiles())
    {
        // The application serves the library on this machine only.
        text += QLatin1String("   <script type=\"text/javascript\" src=\"http://localhost:7776/APISDK/kjLibrary/");
        text += QLatin1String(file);
        text += QLatin1String("\"></script>%1");
    }
    text += QStringLiteral("   <script type=\"text/javascript\">%1"
                           "       /*jslint newcap:true */%1"
                           "       function runMacro() {%1"
                           "           'use strict';%1"
                           "            var mScript = new kjScriptManager(),%1"
                           "               mApp = mScript.getApplication(),%1"
                           "               mDoc = mApp.GetActiveDocument(),%1"
                           "               mViewManager = mDoc.GetViewManager(),%1"
                           "               mModel = mDoc.GetModel(),%1"
                           "               mSheet = mDoc.GetSheet(\"%2\"),%1"
                           "               mSkMgr = mModel.GetSketchManager(),%1"
                           "               mCmdMess = mApp.GetCommandMessage();%1"
                           "%1"
                           "%1");
    if (!start.RecordingStartsInModel)
    {
        text += QStringLiteral("            mSheet.Activate();%1"
                               "            mSkMgr = mSheet.GetSketchManager();%1%1");
    }
    Counters().IndentLevel += 3;
    return kv::FillChain(text, kv::LineEnd(), start.RecordingStartSheet.text());
}

QString CZtConverterKVAPIJavaScript::WriteMacroFooter()
{
    Counters().IndentLevel -= 3;
    return kv::Fill("       }%1"
                    "   </script>%1"
                    "   </head>%1"
                    "   <body>%1"
                    "   <h2>Recorded Macro</h2>%1"
                    "   <form name=\"macroform\">%1"
                    "       <button type=\"button\" onclick=\"runMacro()\">Run macro</button><br />%1"
                    "   </form>%1"
                    "   </body>%1"
                    "</html>%1",
                    kv::LineEnd());
}

std::int32_t CZtConverterKVAPIJavaScript::GetObjectTypeNumber(const QString& constant)
{
    if (objectTypeNumbers_.isEmpty())
    {
        std::int32_t number = 0;
        for (const char* name : kv::ObjectTypeNames())
        {
            objectTypeNumbers_.insert(QLatin1String(name), number++);
        }
    }
    return objectTypeNumbers_[constant];
}
