// C++ COM texts of the answers to prompts; the logic stands in core/prompt_answers.cpp.
#include "backends/cppcom/converter.h"

using kv::General;

QString CZtConverterKVAPICPPCOM::WriteAnswerPointOrKeyword(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1IMathUtilityPtr m_pMathUtil%3 = pConnection->m_KvApp->GetMathUtility();%2"
                     "%1IMathPlanePtr plane%3 = m_pMathUtil%3->CreateYZPlane();%2"
                     "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1IMathPointPtr basePoint%3, defaultPoint%3, resultPoint%3;%2"
                     "%1defaultPoint%3 = m_pMathUtil%3->CreatePoint( x%3, y%3, z%3 );%2"
                     "%1basePoint%3 = m_pMathUtil%3->CreatePoint( 0, 0, 0 );%2"
                     "%1kvPromptResultType_e resultType%3 = kvPromptResultType_Value;%2"
                     "%1BSTR resultKeyword%3;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForPointOrKeyword( L\"%4\", "
                     "L\"Error message\", VARIANT(),%2"
                     "%1VARIANT(), 0, false, defaultPoint%3, basePoint%3, &resultKeyword%3, &resultPoint%3, "
                     "plane%3, &resultType%3 );%2%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPICPPCOM::WriteAnswerAngle(const QString& prompt, double angle)
{
    return Statement("%1double angle%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForAngle( L\"%4\", %5, &angle%3);%2",
                     NextLocalNumber(), prompt, General{angle});
}

QString CZtConverterKVAPICPPCOM::WriteAnswerDistance(const QString& prompt, double distance)
{
    return Statement("%1double distance%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForDistance(L\"%4\", %5, &distance%3);%2",
                     NextLocalNumber(), prompt, General{distance});
}

QString CZtConverterKVAPICPPCOM::WriteAnswerOrientation(const QString& prompt, double orientation)
{
    return Statement("%1double orient%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForOrientation(L\"%4\", %5, &orient%3);%2",
                     NextLocalNumber(), prompt, General{orientation});
}

QString CZtConverterKVAPICPPCOM::WriteAnswerPoint(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForPoint(L\"%4\", &x%3, &y%3, &z%3);%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPICPPCOM::WriteAnswerScale(const QString& prompt, double scale)
{
    return Statement("%1double scale%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForDouble(L\"%4\", %5, &scale%3);%2",
                     NextLocalNumber(), prompt, General{scale});
}

QString CZtConverterKVAPICPPCOM::WriteAnswerText(const QString& prompt, const QString& text)
{
    return Statement(
        "%1BSTR text%3 = L\"%5\";%2"
        "%1pConnection->m_KvApp->GetCommandMessage()->PromptForString( true, L\"%4\", L\"%5\", &text%3);%2",
        NextLocalNumber(), prompt, text);
}

QString CZtConverterKVAPICPPCOM::WriteAnswerKeyword(const QString& prompt, const QString& /*value*/,
                                                    const QStringList& local, const QStringList& global)
{
    // The arrays and the default keep the number of the answer before, the rest takes the new one.
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1VARIANT kvlocal%2;\n"
                        "%1VARIANT kvglobal%2;\n"
                        "%1kvlocal%2.vt = ( VT_ARRAY | VT_BSTR );\n"
                        "%1kvlocal%2.parray = SafeArrayCreateVector( VT_BSTR, 0, %4 );\n"
                        "%1kvglobal%2.vt = ( VT_ARRAY | VT_BSTR );\n"
                        "%1kvglobal%2.parray = SafeArrayCreateVector( VT_BSTR, 0, %4 );\n"
                        "%1BSTR keyword%2 = L\"%3\";\n",
                        number, local.value(0), local.size());
    text += Line("%1long rgkvlocal%2 = -1;\n"
                 "%1long rgkvglobal%2 = -1;\n",
                 number);
    for (int i = 0; i < local.size(); ++i)
    {
        text += KeywordElement("kvlocal", number, i, local.at(i));
        text += KeywordElement("kvglobal", number, i, global.value(i));
    }
    text += kv::LineEnd();
    text += Statement("%1BSTR value%3;%2"
                      "%1BSTR  ErrorMsg%3 = L\"\";%2"
                      "%1kvPromptResultType_e result%3;%2"
                      "%1pConnection->m_KvApp->GetCommandMessage()->PromptForKeyword2(L\"%4\",ErrorMsg%3,kvglobal%5,"
                      "kvlocal%5,1, keyword%5, &value%3,&result%3);%2",
                      NextLocalNumber(), prompt, number);
    return text;
}

QString CZtConverterKVAPICPPCOM::KeywordElement(const char* array, std::int32_t number, int index,
                                                const QString& keyword)
{
    return Line("%1rg%2%3 = %4;\n"
                "%1BSTR s%2%3_%4 = SysAllocString( L\"%5\");\n"
                "%1SafeArrayPutElement( %2%3.parray, &rg%2%3, s%2%3_%4 );\n",
                array, number, index, keyword);
}

QString CZtConverterKVAPICPPCOM::WriteAnswerColor(const QString& prompt, std::int32_t color)
{
    return Statement("%1long color%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForInteger(L\"%4\", %5, &color%3);%2",
                     NextLocalNumber(), prompt, color);
}

QString CZtConverterKVAPICPPCOM::WriteAnswerInteger(const QString& prompt, std::int32_t integer)
{
    return Statement("%1long integer%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForInteger(L\"%4\", %5, &integer%3);%2",
                     NextLocalNumber(), prompt, integer);
}

QString CZtConverterKVAPICPPCOM::WriteAnswerReal(const QString& prompt, double real)
{
    return Statement("%1double real%3 = %5;%2"
                     "%1pConnection->m_KvApp->GetCommandMessage()->PromptForDouble(L\"%4\", %5, &real%3);%2",
                     NextLocalNumber(), prompt, General{real});
}
