// Answers to prompts: the macro asks the same question again, with the recorded answer as default.
#include "core/converter_impl.h"
#include "core/prompt_text.h"

namespace
{
enum class PromptKind : std::int32_t
{
    Point,
    Angle,
    Distance,
    Orientation,
    Corner,
    Scale,
    String,
    Keyword,
    Color,
    Integer,
    Double,
};

// The cleaned prompt, or the fallback when nothing is left of it.
QString PromptOf(const CZtUserInteraction& event, const char* fallback)
{
    CZtString text;
    event.GetPromptText(text);
    const QString prompt = CleanPromptText(text);
    return prompt.isEmpty() ? QString(QLatin1String(fallback)) : prompt;
}

OdGePoint3d PointOf(const OdResBuf& answer)
{
    return answer.restype() == OdResBuf::kPoint3d ? answer.getPoint3d() : OdGePoint3d();
}

// A prompt for a number also takes words; a word leaves the default.
double RealOf(const OdResBuf& answer)
{
    return answer.restype() != OdResBuf::kText ? answer.getDouble() : 1.0;
}

std::int32_t IntegerOf(const OdResBuf& answer)
{
    return answer.restype() != OdResBuf::kText ? answer.getInt32() : 1;
}

QStringList TextsOf(const std::vector<CZtString>& strings)
{
    QStringList texts;
    std::ranges::copy(strings, std::back_inserter(texts));
    return texts;
}
} // namespace

ResultCode CZtConverterKVAPIImpl::ConvertUserInteraction(const CZtUserInteraction& event, QString& text)
{
    OdResBufPtr answer;
    event.GetAnswer(answer);
    if (!answer)
    {
        return ResultNormal;
    }
    const int type = answer->restype();
    switch (static_cast<PromptKind>(event.GetPromptKind()))
    {
    case PromptKind::Point:
        text = WriteAnswerPointOrKeyword(PromptOf(event, "Specify point: "), PointOf(*answer));
        return ResultNormal;
    case PromptKind::Angle:
        text =
            WriteAnswerAngle(PromptOf(event, "Specify angle: "), type == OdResBuf::kAngle ? answer->getDouble() : 0.0);
        return ResultNormal;
    case PromptKind::Distance:
        text = WriteAnswerDistance(PromptOf(event, "Specify distance: "),
                                   type == OdResBuf::kReal ? answer->getDouble() : 1.0);
        return ResultNormal;
    case PromptKind::Orientation:
        text = WriteAnswerOrientation(PromptOf(event, "Specify orient: "),
                                      type == OdResBuf::kAngle || type == OdResBuf::kReal ? answer->getDouble() : 0.0);
        return ResultNormal;
    case PromptKind::Corner:
        text = WriteAnswerPoint(PromptOf(event, "Specify corner: "), PointOf(*answer));
        return ResultNormal;
    case PromptKind::Scale:
        text = WriteAnswerScale(PromptOf(event, "Specify scale: "), RealOf(*answer));
        return ResultNormal;
    case PromptKind::String:
        text = WriteAnswerText(PromptOf(event, "Specify string: "), answer->getString());
        return ResultNormal;
    case PromptKind::Keyword:
    {
        std::vector<CZtString> local;
        std::vector<CZtString> global;
        event.GetKeywords(local, global);
        text = WriteAnswerKeyword(PromptOf(event, "Specify keyword: "), answer->getString(), TextsOf(local),
                                  TextsOf(global));
        return ResultNormal;
    }
    case PromptKind::Color:
        text = WriteAnswerColor(PromptOf(event, "Specify color: "), IntegerOf(*answer));
        return ResultNormal;
    case PromptKind::Integer:
        text = WriteAnswerInteger(PromptOf(event, "Specify integer: "), IntegerOf(*answer));
        return ResultNormal;
    case PromptKind::Double:
        text = WriteAnswerReal(PromptOf(event, "Specify double: "), RealOf(*answer));
        return ResultNormal;
    }
    return ResultError;
}
