// C# texts of the macro's frame, of blocks, comments and declarations.
#include "backends/csharp/converter.h"
#include "backends/csharp/object.h"
#include "core/recording_start.h"

CZtConverterKVAPICSharp::CZtConverterKVAPICSharp(std::int32_t recordingMode) : TextOperations(recordingMode)
{
    SetObjectConverter(std::make_unique<CZtConverterKVAPIObjectCSharp>(this));
}

QString CZtConverterKVAPICSharp::WriteMacroHeader(const QString& macroName, bool hasSysVarChanged)
{
    const RecordingStart& start = RecordingStart::Current();
    QString text = QStringLiteral("using System;%1"
                                  "using Morvane;%1"
                                  "using System.Runtime.InteropServices;%1%1"
                                  "// This code was automatically generated.%1"
                                  "namespace KVAPIMacros%1"
                                  "{%1"
                                  "    class %2%1"
                                  "    {%1"
                                  "        public void Run( Morvane.Application kvApp )%1"
                                  "        {%1");
    text += QStringLiteral("            Document kvDoc = kvApp.GetActiveDocument();%1"
                           "            if (null == kvDoc)%1"
                           "            {%1"
                           "                return;%1"
                           "            }%1%1"
                           "            Model kvModel = kvDoc.GetModel();%1"
                           "            if (null == kvModel)%1"
                           "            {%1"
                           "                return;%1"
                           "            }%1%1"
                           "            SketchManager kvSketchManager;%1");
    if (start.RecordingStartsInModel)
    {
        text += QStringLiteral("            kvSketchManager = kvModel.GetSketchManager();%1"
                               "            if (null == kvSketchManager)%1"
                               "            {%1"
                               "                return;%1"
                               "            }%1%1");
    }
    // The deeper "return" of the sheets is the format's.
    text += QStringLiteral("            object[] sheetsList = (object[])kvDoc.GetSheets();%1"
                           "            Sheet kvSheet = (Sheet)sheetsList[1];%1"
                           "            if (null == kvSheet)%1"
                           "            {%1"
                           "                 return;%1"
                           "            }%1%1");
    const bool startsOnSheet = !start.RecordingStartsInModel && !start.RecordingStartSheet.isEmpty();
    if (startsOnSheet)
    {
        text += QStringLiteral("            kvSheet = kvDoc.GetSheet(\"%3\");%1"
                               "            if (null == kvSheet)%1"
                               "            {%1"
                               "                 return;%1"
                               "            }%1%1"
                               "            kvSheet.Activate();%1%1"
                               "            kvSketchManager = kvSheet.GetSketchManager();%1"
                               "            if (null == kvSketchManager)%1"
                               "            {%1"
                               "                return;%1"
                               "            }%1%1");
    }
    text += QStringLiteral("            ViewManager kvViewManager = kvDoc.GetViewManager();%1"
                           "            if (null == kvViewManager)%1"
                           "            {%1"
                           "                return;%1"
                           "            }%1%1");
    if (hasSysVarChanged)
    {
        text += QStringLiteral("            kvSetCommandOptionResult_e result;%1");
    }
    Counters().IndentLevel += 3;
    text = kv::FillChain(text, kv::LineEnd(), macroName);
    return startsOnSheet ? kv::FillChain(text, start.RecordingStartSheet.text()) : text;
}

QString CZtConverterKVAPICSharp::WriteMacroFooter()
{
    Counters().IndentLevel -= 3;
    return kv::Fill("        }%1"
                    "    }%1"
                    "}%1",
                    kv::LineEnd());
}

QString CZtConverterKVAPICSharp::WriteBlockBegin()
{
    QString text = Statement("%1{%2");
    Counters().IndentLevel += 1;
    return text;
}

QString CZtConverterKVAPICSharp::WriteBlockEnd()
{
    Counters().IndentLevel -= 1;
    return Statement("%1}%2");
}

QString CZtConverterKVAPICSharp::WriteComment(const QString& text)
{
    return Statement("%1//%3%2", text);
}

QString CZtConverterKVAPICSharp::WriteDeclareVariable(const QString& typeName, const QString& stem, std::int32_t number)
{
    return Statement("%1%3 %4%5;%2", typeName, stem, number);
}
