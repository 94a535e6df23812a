// JavaScript texts of the answers to prompts; the logic stands in core/prompt_answers.cpp.
#include "backends/javascript/converter.h"

using kv::General;

QString CZtConverterKVAPIJavaScript::WriteAnswerPointOrKeyword(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1var m_pMathUtil%3 = mApp.GetMathUtility();%2"
                     "%1var plane%3 = m_pMathUtil%3.CreateYZPlane();%2"
                     "%1var x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1var defaultPoint%3 = m_pMathUtil%3.CreatePoint(x%3, y%3, z%3);%2"
                     "%1var basePoint%3 = m_pMathUtil%3.CreatePoint(0, 0, 0);%2"
                     "%1var results = mCmdMess.PromptForPointOrKeyword( \"%4\", \"Error message\", kvStringArray,%2"
                     "%1                  kvStringArray, 0, false, defaultPoint%3, basePoint%3, plane%3 );%2"
                     "%1var resultKeyword%3 = results[0];%2"
                     "%1var resultPoint%3 = results[1];%2%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPIJavaScript::WriteAnswerAngle(const QString& prompt, double angle)
{
    return Statement("%1var angle%3 = mCmdMess.PromptForAngle(\"%4\", %5);%2", NextLocalNumber(), prompt,
                     General{angle});
}

QString CZtConverterKVAPIJavaScript::WriteAnswerDistance(const QString& prompt, double distance)
{
    return Statement("%1var distance%3 = mCmdMess.PromptForDistance(\"%4\", %5);%2", NextLocalNumber(), prompt,
                     General{distance});
}

QString CZtConverterKVAPIJavaScript::WriteAnswerOrientation(const QString& prompt, double orientation)
{
    return Statement("%1var orient%3 = mCmdMess.PromptForOrientation(\"%4\", %5);%2", NextLocalNumber(), prompt,
                     General{orientation});
}

QString CZtConverterKVAPIJavaScript::WriteAnswerPoint(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1var x%3 = %5, y%3 = %6, z%3 = %7;%2"
                     "%1var point%3 = mCmdMess.PromptForPoint(\"%4\", x%3, y%3, z%3);%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPIJavaScript::WriteAnswerScale(const QString& prompt, double scale)
{
    return Statement("%1var scale%3 = mCmdMess.PromptForDouble(\"%4\", %5);%2", NextLocalNumber(), prompt,
                     General{scale});
}

QString CZtConverterKVAPIJavaScript::WriteAnswerText(const QString& prompt, const QString& text)
{
    return Statement("%1var text%3 = mCmdMess.PromptForString(true, \"%4\", \"%5\");%2", NextLocalNumber(), prompt,
                     text);
}

QString CZtConverterKVAPIJavaScript::WriteAnswerKeyword(const QString& prompt, const QString& /*value*/,
                                                        const QStringList& local, const QStringList& global)
{
    // The arrays and the default keep the number of the answer before, the rest takes the new one.
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1var kvlocal%2 = new Array(%4);\n"
                        "%1var kvglobal%2 = new Array(%4);\n"
                        "%1var keyword%2 = \"%3\";\n",
                        number, local.value(0), local.size());
    for (int i = 0; i < local.size(); ++i)
    {
        text += Line("%1kvlocal%2[%4] = \"%3\";\n", number, local.at(i), i);
        text += Line("%1kvglobal%2[%4] = \"%3\";\n", number, global.value(i), i);
    }
    text += kv::LineEnd();
    text += Statement("%1var ErrorMsg%3 = \"\";%2"
                      "%1var value%3 = mCmdMess.PromptForKeyword2(\"%4\",ErrorMsg%3,kvglobal%5,kvlocal%5,1, "
                      "keyword%5);%2",
                      NextLocalNumber(), prompt, number);
    return text;
}

QString CZtConverterKVAPIJavaScript::WriteAnswerColor(const QString& prompt, std::int32_t color)
{
    return Statement("%1var color%3 = mCmdMess.PromptForInteger(\"%4\", %5);%2", NextLocalNumber(), prompt, color);
}

QString CZtConverterKVAPIJavaScript::WriteAnswerInteger(const QString& prompt, std::int32_t integer)
{
    return Statement("%1var integer%3 = mCmdMess.PromptForInteger(\"%4\", %5);%2", NextLocalNumber(), prompt, integer);
}

QString CZtConverterKVAPIJavaScript::WriteAnswerReal(const QString& prompt, double real)
{
    return Statement("%1var real%3 = mCmdMess.PromptForDouble(\"%4\", %5);%2", NextLocalNumber(), prompt,
                     General{real});
}
