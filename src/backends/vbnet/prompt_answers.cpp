// VB.NET texts of the answers to prompts; the logic stands in core/prompt_answers.cpp.
// The spelling "cmdMesage" is the format's.
#include "backends/vbnet/converter.h"

using kv::General;

QString CZtConverterKVAPIVbNet::WriteAnswerPointOrKeyword(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1Dim m_pMathUtil%3 As Morvane.MathUtility%2"
                     "%1Dim plane%3 As Morvane.MathPlane%2"
                     "%1m_pMathUtil%3 = kvApp.GetMathUtility()%2"
                     "%1plane%3 = m_pMathUtil%3.CreateYZPlane()%2"
                     "%1Dim x%3 As Double = %5, y%3 As Double = %6, z%3 As Double = %7%2"
                     "%1Dim basePoint%3 As Morvane.MathPoint, defaultPoint%3 As Morvane.MathPoint, "
                     "resultPoint%3 As Morvane.MathPoint%2"
                     "%1defaultPoint%3 = m_pMathUtil%3.CreatePoint( x%3, y%3, z%3 )%2"
                     "%1basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 )%2"
                     "%1Dim cmdMesage%3 As Morvane.CommandMessage%2"
                     "%1cmdMesage%3 = kvApp.GetCommandMessage()%2"
                     "%1Dim resultType%3 As Morvane.kvPromptResultType_e = "
                     "Morvane.kvPromptResultType_e.kvPromptResultType_Value%2"
                     "%1Dim resultKeyword%3 As String%2"
                     "%1cmdMesage%3.PromptForPointOrKeyword( \"%4\", \"Error message\", Nothing, _%2"
                     "%1Nothing, 0, false, defaultPoint%3, basePoint%3, resultKeyword%3, resultPoint%3, "
                     "plane%3, resultType%3 )%2%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPIVbNet::WriteAnswerAngle(const QString& prompt, double angle)
{
    return Statement("%1Dim angle%3 As Double = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForAngle( \"%4\", %5, angle%3 )%2",
                     NextLocalNumber(), prompt, General{angle});
}

QString CZtConverterKVAPIVbNet::WriteAnswerDistance(const QString& prompt, double distance)
{
    return Statement("%1Dim distance%3 As Double = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForDistance(\"%4\", %5, distance%3)%2",
                     NextLocalNumber(), prompt, General{distance});
}

QString CZtConverterKVAPIVbNet::WriteAnswerOrientation(const QString& prompt, double orientation)
{
    return Statement("%1Dim orient%3 As Double = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForOrientation(\"%4\", %5, orient%3)%2",
                     NextLocalNumber(), prompt, General{orientation});
}

QString CZtConverterKVAPIVbNet::WriteAnswerPoint(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1Dim x%3 As Double = %5, y%3 As Double = %6, z%3 As Double = %7%2"
                     "%1kvApp.GetCommandMessage().PromptForPoint(\"%4\", x%3, y%3, z%3)%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPIVbNet::WriteAnswerScale(const QString& prompt, double scale)
{
    return Statement("%1Dim scale%3 As Double = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForDouble(\"%4\", %5, scale%3)%2",
                     NextLocalNumber(), prompt, General{scale});
}

QString CZtConverterKVAPIVbNet::WriteAnswerText(const QString& prompt, const QString& text)
{
    return Statement("%1Dim text%3 As String = \"%5\"%2"
                     "%1kvApp.GetCommandMessage().PromptForString( true, \"%4\", \"%5\", text%3)%2",
                     NextLocalNumber(), prompt, text);
}

QString CZtConverterKVAPIVbNet::WriteAnswerKeyword(const QString& prompt, const QString& /*value*/,
                                                   const QStringList& local, const QStringList& global)
{
    // The arrays and the default keep the number of the answer before, the rest takes the new one.
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1Dim kvlocal%2(%4) As String\n"
                        "%1Dim kvglobal%2(%4) As String\n"
                        "%1Dim keyword%2 As String  = \"%3\"\n",
                        number, local.value(0), local.size() - 1);
    for (int i = 0; i < local.size(); ++i)
    {
        text += Line("%1kvlocal%2(%4) = \"%3\"\n", number, local.at(i), i);
        text += Line("%1kvglobal%2(%4) = \"%3\"\n", number, global.value(i), i);
    }
    text += kv::LineEnd();
    text += Statement("%1Dim value%3 As String%2"
                      "%1Dim ErrorMsg%3 As String%2"
                      "%1kvApp.GetCommandMessage().PromptForKeyword2(\"%4\",ErrorMsg%3,kvglobal%5,kvlocal%5,1, "
                      "keyword%5, value%3)%2",
                      NextLocalNumber(), prompt, number);
    return text;
}

QString CZtConverterKVAPIVbNet::WriteAnswerColor(const QString& prompt, std::int32_t color)
{
    return Statement("%1Dim color%3 As Integer = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForInteger(\"%4\", %5, color%3)%2",
                     NextLocalNumber(), prompt, color);
}

QString CZtConverterKVAPIVbNet::WriteAnswerInteger(const QString& prompt, std::int32_t integer)
{
    return Statement("%1Dim integer%3 As Integer = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForInteger(\"%4\", %5, integer%3)%2",
                     NextLocalNumber(), prompt, integer);
}

QString CZtConverterKVAPIVbNet::WriteAnswerReal(const QString& prompt, double real)
{
    return Statement("%1Dim real%3 As Double = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForDouble(\"%4\", %5, real%3)%2",
                     NextLocalNumber(), prompt, General{real});
}
