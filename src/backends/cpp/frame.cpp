// C++ API texts of the macro's frame, of blocks and of declarations.
#include "backends/cpp/converter.h"
#include "backends/cpp/object.h"
#include "core/recording_start.h"

CZtConverterKVAPICPP::CZtConverterKVAPICPP(std::int32_t recordingMode) : TextOperations(recordingMode)
{
    SetObjectConverter(std::make_unique<CZtConverterKVAPIObjectCPP>(this));
}

QString CZtConverterKVAPICPP::WriteMacroHeader(const QString& macroName, bool /*hasSysVarChanged*/)
{
    const RecordingStart& start = RecordingStart::Current();
    QString text = QStringLiteral("#include \"%2.h\"%1"
                                  "#include \"kvAddinConnection.h\"%1"
                                  "#include \"kvCommandMessage_c.h\"%1"
                                  "#include \"kvApplicationOptions_c.h\"%1"
                                  "#include \"kvSheet_c.h\"%1"
                                  "#include \"math.h\"%1%1"
                                  "CMacroCommand::CMacroCommand( kvApplication_c *pApp, const kvString & name )%1"
                                  "    : m_pKvApp( pApp )%1"
                                  "    , m_name( name )%1"
                                  "    , m_pCmd( NULL )%1"
                                  "{%1"
                                  "    kvCreateCommandError_e Error;%1"
                                  "    m_pKvApp->CreateCommand( MacroApplication::appID, name, &Error, &m_pCmd );%1"
                                  "    if( Error )%1"
                                  "        return;%1%1"
                                  "    RegisterCommandExecuteNotifyHook( m_pCmd );%1"
                                  "}%1%1"
                                  "CMacroCommand::~CMacroCommand()%1"
                                  "{%1"
                                  "    if( m_pCmd )%1"
                                  "    UnRegisterCommandExecuteNotifyHook( m_pCmd );%1"
                                  "}%1%1"
                                  "ImplementCommandExecuteNotifyHook(CMacroCommand)%1"
                                  "bool CMacroCommand::ExecuteNotify(void)%1"
                                  "{%1"
                                  "    kvDocument_c* kvDoc;%1"
                                  "    m_pKvApp->GetActiveDocument( &kvDoc );%1"
                                  "    if ( !kvDoc )%1"
                                  "    {%1"
                                  "        return false;%1"
                                  "    }%1%1"
                                  "    kvModel_ptr kvModel;%1"
                                  "    kvDoc->GetModel( &kvModel );%1"
                                  "    if ( !kvModel )%1"
                                  "    {%1"
                                  "        return false;%1"
                                  "    }%1%1"
                                  "    kvSketchManager_ptr kvSketchManager;%1");
    if (start.RecordingStartsInModel)
    {
        text += QStringLiteral("    kvModel->GetSketchManager( &kvSketchManager );%1"
                               "    if ( !kvSketchManager )%1"
                               "    {%1"
                               "        return false;%1"
                               "    }%1%1");
    }
    text += QStringLiteral("    kvObjectPtrArray kvSheetsArray;%1"
                           "    kvDoc->GetSheets( &kvSheetsArray );%1"
                           "    kvSheet_ptr kvSheet = (kvSheet_c *)kvSheetsArray[1];%1"
                           "    if ( !kvSheet )%1"
                           "    {%1"
                           "        return false;%1"
                           "    }%1%1");
    const bool startsOnSheet = !start.RecordingStartsInModel && !start.RecordingStartSheet.isEmpty();
    if (startsOnSheet)
    {
        text += QStringLiteral("    kvDoc->GetSheet( L\"%3\", &kvSheet );%1"
                               "    if ( !kvSheet )%1"
                               "    {%1"
                               "        return false;%1"
                               "    }%1%1"
                               "    kvSheet->Activate();%1%1"
                               "    kvSheet->GetSketchManager( &kvSketchManager );%1"
                               "    if ( !kvSketchManager )%1"
                               "    {%1"
                               "        return false;%1"
                               "    }%1%1");
    }
    text += QStringLiteral("    kvViewManager_ptr kvViewManager;%1"
                           "    kvDoc->GetViewManager( &kvViewManager );%1"
                           "    if ( !kvViewManager )%1"
                           "    {%1"
                           "        return false;%1"
                           "    }%1%1");
    Counters().IndentLevel += 1;
    text = kv::FillChain(text, kv::LineEnd(), macroName);
    return startsOnSheet ? kv::FillChain(text, start.RecordingStartSheet.text()) : text;
}

QString CZtConverterKVAPICPP::WriteMacroFooter()
{
    Counters().IndentLevel -= 1;
    return kv::Fill("    return true;%1"
                    "}%1%1"
                    "const kvString &CMacroCommand::GetName() const%1"
                    "{%1"
                    "    return m_name;%1"
                    "}%1",
                    kv::LineEnd());
}

QString CZtConverterKVAPICPP::WriteBlockBegin()
{
    QString text = Statement("%1{%2");
    Counters().IndentLevel += 1;
    return text;
}

QString CZtConverterKVAPICPP::WriteBlockEnd()
{
    Counters().IndentLevel -= 1;
    return Statement("%1}%2");
}

QString CZtConverterKVAPICPP::WriteDeclareVariable(const QString& typeName, const QString& stem, std::int32_t number)
{
    return Statement("%1%3 %4%5;%2", typeName, stem, number);
}
