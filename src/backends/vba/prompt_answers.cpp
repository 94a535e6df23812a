// VBA texts of the answers to prompts; the logic stands in core/prompt_answers.cpp.
// The answers go as arguments by reference. The spelling "cmdMesage" is the format's.
#include "backends/vba/converter.h"

using kv::General;

QString CZtConverterKVAPIVba::WriteAnswerPointOrKeyword(const QString& prompt, const OdGePoint3d& point)
{
    // The blanks behind the types, and "false" in lower case, are the format's.
    return Statement(
        "%1Dim m_pMathUtil%3 As Morvane.MathUtility %2"
        "%1Dim plane%3 As Morvane.MathPlane %2"
        "%1Set m_pMathUtil%3 = kvApp.GetMathUtility()%2"
        "%1Set plane%3 = m_pMathUtil%3.CreateYZPlane()%2"
        "%1Dim IOPoint_x%3 As Double, IOPoint_y%3 As Double, IOPoint_z%3 As Double%2"
        "%1IOPoint_x%3 = %5%2"
        "%1IOPoint_y%3 = %6%2"
        "%1IOPoint_z%3 = %7%2"
        "%1Dim basePoint%3 As Morvane.MathPoint, defaultPoint%3 As Morvane.MathPoint, "
        "resultPoint%3 As Morvane.MathPoint %2"
        "%1Set defaultPoint%3 = m_pMathUtil%3.CreatePoint( IOPoint_x%3, IOPoint_y%3, IOPoint_z%3 )%2"
        "%1Set basePoint%3 = m_pMathUtil%3.CreatePoint( 0, 0, 0 )%2"
        "%1Dim cmdMesage%3 As Morvane.CommandMessage %2"
        "%1Set cmdMesage%3 = kvApp.GetCommandMessage()%2"
        "%1Dim resultType%3 As Morvane.kvPromptResultType_e %2"
        "%1resultType%3 = Morvane.kvPromptResultType_e.kvPromptResultType_Value%2"
        "%1Dim resultKeyword%3 As String%2"
        "%1cmdMesage%3.PromptForPointOrKeyword \"%4\", \"Error message\", 0, _%2"
        "%1 0, 0, false, defaultPoint%3, basePoint%3, resultKeyword%3, resultPoint%3, plane%3, resultType%3%2%2",
        NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPIVba::WriteAnswerAngle(const QString& prompt, double angle)
{
    // "Double2" lacks the percent sign of a line end; the format's.
    return Statement("%1Dim IO_angle%3 As Double2"
                     "%1IO_angle%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForAngle \"%4\", %5, IO_angle%3%2",
                     NextLocalNumber(), prompt, General{angle});
}

QString CZtConverterKVAPIVba::WriteAnswerDistance(const QString& prompt, double distance)
{
    // The blank ahead of the assignment is the format's.
    return Statement("%1Dim IO_distance%3 As Double%2"
                     "%1 IO_distance%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForDistance \"%4\", %5, IO_distance%3%2",
                     NextLocalNumber(), prompt, General{distance});
}

QString CZtConverterKVAPIVba::WriteAnswerOrientation(const QString& prompt, double orientation)
{
    return Statement("%1Dim IO_orient%3 As Double%2"
                     "%1IO_orient%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForOrientation \"%4\", %5, IO_orient%3%2",
                     NextLocalNumber(), prompt, General{orientation});
}

QString CZtConverterKVAPIVba::WriteAnswerPoint(const QString& prompt, const OdGePoint3d& point)
{
    return Statement("%1Dim IOCorner_x%3 As Double, IOCorner_y%3 As Double, IOCorner_z%3 As Double%2"
                     "%1IOCorner_x%3 = %5%2"
                     "%1IOCorner_y%3 = %6%2"
                     "%1IOCorner_z%3 = %7%2"
                     "%1kvApp.GetCommandMessage().PromptForPoint \"%4\", IOCorner_x%3, IOCorner_y%3, IOCorner_z%3%2",
                     NextLocalNumber(), prompt, point);
}

QString CZtConverterKVAPIVba::WriteAnswerScale(const QString& prompt, double scale)
{
    return Statement("%1Dim IO_scale%3 As Double%2"
                     "%1IO_scale%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForDouble \"%4\", %5, IO_scale%3%2",
                     NextLocalNumber(), prompt, General{scale});
}

QString CZtConverterKVAPIVba::WriteAnswerText(const QString& prompt, const QString& text)
{
    return Statement("%1Dim IO_text%3 As String%2"
                     "%1IO_text%3 = \"%5\"%2"
                     "%1kvApp.GetCommandMessage().PromptForString True, \"%4\", \"%5\", IO_text%3%2",
                     NextLocalNumber(), prompt, text);
}

QString CZtConverterKVAPIVba::WriteAnswerKeyword(const QString& prompt, const QString& /*value*/,
                                                 const QStringList& local, const QStringList& global)
{
    // The arrays and the default keep the number of the answer before, the rest
    // takes the new one.
    const std::int32_t number = Counters().LocalNameSequence;
    QString text = Line("%1Dim kvlocal%2(%4) As String\n"
                        "%1Dim kvglobal%2(%4) As String\n"
                        "%1Dim keyword%2 As String\n"
                        "%1keyword%2  = \"%3\"\n",
                        number, local.value(0), local.size() - 1);
    for (int i = 0; i < local.size(); ++i)
    {
        text += Line("%1kvlocal%2(%4) = \"%3\"\n", number, local.at(i), i);
        text += Line("%1kvglobal%2(%4) = \"%3\"\n", number, global.value(i), i);
    }
    text += kv::LineEnd();
    text += Statement(
        "%1Dim value%3 As String%2"
        "%1Dim ErrorMsg%3 As String%2"
        "%1kvApp.GetCommandMessage().PromptForKeyword2 \"%4\",ErrorMsg%3,kvglobal%5,kvlocal%5,1, keyword%5, value%3%2",
        NextLocalNumber(), prompt, number);
    return text;
}

QString CZtConverterKVAPIVba::WriteAnswerColor(const QString& prompt, std::int32_t color)
{
    return Statement("%1Dim IO_color%3 As Integer%2"
                     "%1IO_color%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForInteger \"%4\", %5, IO_color%3%2",
                     NextLocalNumber(), prompt, color);
}

QString CZtConverterKVAPIVba::WriteAnswerInteger(const QString& prompt, std::int32_t integer)
{
    return Statement("%1Dim IO_integer%3 As Integer%2"
                     "%1IO_integer%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForInteger \"%4\", %5, IO_integer%3%2",
                     NextLocalNumber(), prompt, integer);
}

QString CZtConverterKVAPIVba::WriteAnswerReal(const QString& prompt, double real)
{
    return Statement("%1Dim IO_real%3 As Double%2"
                     "%1IO_real%3 = %5%2"
                     "%1kvApp.GetCommandMessage().PromptForDouble \"%4\", %5, IO_real%3%2",
                     NextLocalNumber(), prompt, General{real});
}
