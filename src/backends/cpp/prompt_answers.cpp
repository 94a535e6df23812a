// C++ API texts of the answers to prompts; the logic stands in core/prompt_answers.cpp.
// The spelling "cmdMesage" is the format's.
#include "backends/cpp/converter.h"

using kv::General;

QString CZtConverterKVAPICPP::WriteAnswerPointOrKeyword(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1kvMathUtility_ptr m_pMathUtil%3;%2"
                     "%1kvMathPlane_ptr plane%3;%2"
                     "%1m_pKvApp->GetMathUtility( &m_pMathUtil%3 );%2"
                     "%1m_pMathUtil%3->CreateYZPlane( &plane%3 );%2"
                     "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1kvMathPoint_ptr basePoint%3, defaultPoint%3, resultPoint%3;%2"
                     "%1m_pMathUtil%3->CreatePoint( x%3, y%3, z%3, &defaultPoint%3 );%2"
                     "%1m_pMathUtil%3->CreatePoint( 0, 0, 0, &basePoint%3 );%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1kvPromptResultType_e resultType%3 = kvPromptResultType_Value;%2"
                     "%1kvString resultKeyword%3;%2"
                     "%1cmdMesage%3->PromptForPointOrKeyword( L\"%4\", L\"Error message\", kvStringArray(),%2"
                     "%1kvStringArray(), 0, false, defaultPoint%3, basePoint%3, &resultKeyword%3, &resultPoint%3, "
                     "plane%3, &resultType%3 );%2%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPICPP::WriteAnswerAngle(const QString& prompt, double angle)
{
    return Statement("%1double angle%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForAngle( L\"%4\", %5, &angle%3, &result%3 );%2",
                     NextLocalNumber(), prompt, General{angle});
}

QString CZtConverterKVAPICPP::WriteAnswerDistance(const QString& prompt, double distance)
{
    return Statement("%1double distance%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForDistance(L\"%4\", %5, &distance%3,&result%3);%2",
                     NextLocalNumber(), prompt, General{distance});
}

QString CZtConverterKVAPICPP::WriteAnswerOrientation(const QString& prompt, double orientation)
{
    return Statement("%1double orient%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForOrientation(L\"%4\", %5, &orient%3,&result%3);%2",
                     NextLocalNumber(), prompt, General{orientation});
}

QString CZtConverterKVAPICPP::WriteAnswerPoint(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForPoint(L\"%4\", &x%3, &y%3, &z%3,&result%3);%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPICPP::WriteAnswerScale(const QString& prompt, double scale)
{
    return Statement("%1double scale%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForDouble(L\"%4\", %5, &scale%3,&result%3);%2",
                     NextLocalNumber(), prompt, General{scale});
}

QString CZtConverterKVAPICPP::WriteAnswerText(const QString& prompt, const QString& text)
{
    return Statement("%1kvString text%3 = L\"%5\";%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForString( true, L\"%4\", L\"%5\", &text%3,&result%3);%2",
                     NextLocalNumber(), prompt, text);
}

QString CZtConverterKVAPICPP::WriteAnswerKeyword(const QString& prompt, const QString& /*value*/,
                                                 const QStringList& local, const QStringList& global)
{
    // The arrays and the default keep the number of the answer before, the rest takes the new one.
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1kvStringArray kvlocal%2;\n"
                        "%1kvStringArray kvglobal%2;\n"
                        "%1kvString keyword%2 = L\"%3\";\n",
                        number, local.value(0));
    for (int i = 0; i < local.size(); ++i)
    {
        text += Line("%1kvlocal%2.add(L\"%3\");\n", number, local.at(i));
        text += Line("%1kvglobal%2.add(L\"%3\");\n", number, global.value(i));
    }
    text += kv::LineEnd();
    text += Statement("%1kvString value%3;%2"
                      "%1kvString  ErrorMsg%3;%2"
                      "%1kvPromptResultType_e result%3;%2"
                      "%1kvCommandMessage_c* cmdMesage%3;%2"
                      "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                      "%1cmdMesage%3->PromptForKeyword2(L\"%4\",ErrorMsg%3,kvglobal%5,kvlocal%5,1, keyword%5, "
                      "&value%3,&result%3);%2",
                      NextLocalNumber(), prompt, number);
    return text;
}

QString CZtConverterKVAPICPP::WriteAnswerColor(const QString& prompt, std::int32_t color)
{
    return Statement("%1long color%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForInteger(L\"%4\", %5, &color%3,&result%3);%2",
                     NextLocalNumber(), prompt, color);
}

QString CZtConverterKVAPICPP::WriteAnswerInteger(const QString& prompt, std::int32_t integer)
{
    return Statement("%1long integer%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForInteger(L\"%4\", %5, &integer%3,&result%3);%2",
                     NextLocalNumber(), prompt, integer);
}

QString CZtConverterKVAPICPP::WriteAnswerReal(const QString& prompt, double real)
{
    return Statement("%1double real%3 = %5;%2"
                     "%1bool  result%3;%2"
                     "%1kvCommandMessage_c* cmdMesage%3;%2"
                     "%1m_pKvApp->GetCommandMessage(&cmdMesage%3);%2"
                     "%1cmdMesage%3->PromptForDouble(L\"%4\", %5, &real%3,&result%3);%2",
                     NextLocalNumber(), prompt, General{real});
}
