// C# texts of the answers to prompts; the logic stands in core/prompt_answers.cpp.
// The spelling "cmdMesage" is the format's.
#include "backends/csharp/converter.h"

using kv::General;

QString CZtConverterKVAPICSharp::WriteAnswerPointOrKeyword(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1MathUtility m_pMathUtil%3 = kvApp.GetMathUtility();%2"
                     "%1MathPlane plane%3 = m_pMathUtil%3.CreateYZPlane();%2"
                     "%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1MathPoint basePoint%3, defaultPoint%3, resultPoint%3;%2"
                     "%1defaultPoint%3 = m_pMathUtil%3.CreatePoint( x%3, y%3, z%3 );%2"
                     "%1basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 );%2"
                     "%1CommandMessage cmdMesage%3;%2"
                     "%1cmdMesage%3 = kvApp.GetCommandMessage();%2"
                     "%1kvPromptResultType_e resultType%3 = kvPromptResultType_e.kvPromptResultType_Value;%2"
                     "%1string resultKeyword%3;%2"
                     "%1cmdMesage%3.PromptForPointOrKeyword( \"%4\", \"Error message\", new string[0],%2"
                     "%1new string[0], 0, false, defaultPoint%3, basePoint%3, out resultKeyword%3, out resultPoint%3, "
                     "plane%3, out resultType%3 );%2%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPICSharp::WriteAnswerAngle(const QString& prompt, double angle)
{
    return Statement("%1double angle%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForAngle(\"%4\", %5, out angle%3);%2",
                     NextLocalNumber(), prompt, General{angle});
}

QString CZtConverterKVAPICSharp::WriteAnswerDistance(const QString& prompt, double distance)
{
    return Statement("%1double distance%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForDistance(\"%4\", %5, out distance%3);%2",
                     NextLocalNumber(), prompt, General{distance});
}

QString CZtConverterKVAPICSharp::WriteAnswerOrientation(const QString& prompt, double orientation)
{
    return Statement("%1double orient%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForOrientation(\"%4\", %5, out orient%3);%2",
                     NextLocalNumber(), prompt, General{orientation});
}

QString CZtConverterKVAPICSharp::WriteAnswerPoint(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1double x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1kvApp.GetCommandMessage().PromptForPoint(\"%4\", out x%3, out y%3, out z%3);%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPICSharp::WriteAnswerScale(const QString& prompt, double scale)
{
    return Statement("%1double scale%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForDouble(\"%4\", %5, out scale%3);%2",
                     NextLocalNumber(), prompt, General{scale});
}

QString CZtConverterKVAPICSharp::WriteAnswerText(const QString& prompt, const QString& text)
{
    return Statement("%1string text%3 = \"%5\";%2"
                     "%1kvApp.GetCommandMessage().PromptForString( true, \"%4\", \"%5\", out text%3);%2",
                     NextLocalNumber(), prompt, text);
}

QString CZtConverterKVAPICSharp::WriteAnswerKeyword(const QString& prompt, const QString& /*value*/,
                                                    const QStringList& local, const QStringList& global)
{
    // The arrays and the default keep the number of the answer before, the rest takes the new one.
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1object[] kvlocal%2 = new string[%4];\n"
                        "%1object[] kvglobal%2 = new string[%4];\n"
                        "%1String keyword%2 = \"%3\";\n",
                        number, local.value(0), local.size());
    for (int i = 0; i < local.size(); ++i)
    {
        text += Line("%1kvlocal%2[%4] = \"%3\";\n", number, local.at(i), i);
        text += Line("%1kvglobal%2[%4] = \"%3\";\n", number, global.value(i), i);
    }
    text += kv::LineEnd();
    text += Statement("%1string value%3;%2"
                      "%1string ErrorMsg%3=\"\";%2"
                      "%1kvApp.GetCommandMessage().PromptForKeyword2(\"%4\",ErrorMsg%3,kvglobal%5,kvlocal%5,1, "
                      "keyword%5, out value%3);%2",
                      NextLocalNumber(), prompt, number);
    return text;
}

QString CZtConverterKVAPICSharp::WriteAnswerColor(const QString& prompt, std::int32_t color)
{
    return Statement("%1int color%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForInteger(\"%4\", %5, out color%3);%2",
                     NextLocalNumber(), prompt, color);
}

QString CZtConverterKVAPICSharp::WriteAnswerInteger(const QString& prompt, std::int32_t integer)
{
    return Statement("%1int integer%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForInteger(\"%4\", %5, out integer%3);%2",
                     NextLocalNumber(), prompt, integer);
}

QString CZtConverterKVAPICSharp::WriteAnswerReal(const QString& prompt, double real)
{
    return Statement("%1double real%3 = %5;%2"
                     "%1kvApp.GetCommandMessage().PromptForDouble(\"%4\", %5, out real%3);%2",
                     NextLocalNumber(), prompt, General{real});
}
