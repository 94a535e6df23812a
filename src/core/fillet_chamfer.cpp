// Fillet and chamfer, of two entities or of one polyline.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "host/kernel/services.h"

QString CZtConverterKVAPIImpl::SetFilletOptions()
{
    CZtDocument* document = ACTIVE_DOCUMENT();
    return document != nullptr ? WriteSetCommandOptionDouble(QStringLiteral("kvCommandOptionDouble_SetFltRad"),
                                                             document->GetZtDatabase()->filletRadius())
                               : QString();
}

QString CZtConverterKVAPIImpl::SetChamferOptions()
{
    QString text;
    if (CZtDocument* document = ACTIVE_DOCUMENT())
    {
        const CZtDatabase& database = *document->GetZtDatabase();
        text += WriteSetCommandOptionDouble(QStringLiteral("kvCommandOptionDouble_SetChmfDst1"),
                                            database.chamferFirstDistance());
        text += WriteSetCommandOptionDouble(QStringLiteral("kvCommandOptionDouble_SetChmfDst2"),
                                            database.chamferSecondDistance());
        text +=
            WriteSetCommandOptionDouble(QStringLiteral("kvCommandOptionDouble_SetChmfLen"), database.chamferLength());
        text +=
            WriteSetCommandOptionDouble(QStringLiteral("kvCommandOptionDouble_SetChmfAng"), database.chamferAngle());
    }
    const CZtSystemSettings& settings = GetZtSystemServices()->Settings();
    text += WriteSetCommandOptionInt16(QStringLiteral("kvCommandOptionInt16_EnblChmfAng"), settings.ChamferMode());
    text += WriteSetCommandOptionInt16(QStringLiteral("kvCommandOptionInt16_EnblFltTrm"), settings.TrimMode());
    return text;
}

ResultCode CZtConverterKVAPIImpl::ConvertFillet(const CZtCustomAction& action, QString& text)
{
    return action.GetActionId() == 8 ? ConvertCorner(action, true, text) : ResultError;
}

ResultCode CZtConverterKVAPIImpl::ConvertChamfer(const CZtCustomAction& action, QString& text)
{
    return action.GetActionId() == 9 ? ConvertCorner(action, false, text) : ResultError;
}

ResultCode CZtConverterKVAPIImpl::ConvertCorner(const CZtCustomAction& action, bool isFillet, QString& text)
{
    constexpr std::int32_t itemsOfTwoEntities = 6;
    constexpr std::int32_t itemsOfPolyline = 3;
    const ActionData data(action);
    if (data.Count() == itemsOfTwoEntities)
    {
        const std::optional<OdGePoint3d> firstPoint = data.Point(2);
        const std::optional<OdGePoint3d> secondPoint = data.Point(5);
        if (!data.IsEntityArray(0) || !firstPoint || !data.IsEntityArray(3) || !secondPoint)
        {
            return ResultNormal;
        }
        const QStringList first = ResolveEntityVariableNames(data.Item(0), data.Item(1));
        const QStringList second = ResolveEntityVariableNames(data.Item(3), data.Item(4));
        text = isFillet ? WriteFilletEntities(first, *firstPoint, second, *secondPoint)
                        : WriteChamferEntities(first, *firstPoint, second, *secondPoint);
        return ResultNormal;
    }
    if (data.Count() == itemsOfPolyline)
    {
        const std::optional<QString> word = data.Text(0);
        if (!word || !data.IsObject(1))
        {
            return ResultNormal;
        }
        // Either action accepts either word; the action's number decides.
        const bool isKnownWord = word->compare(QLatin1String("FILLET"), Qt::CaseInsensitive) == 0 ||
                                 word->compare(QLatin1String("CHAMFER"), Qt::CaseInsensitive) == 0;
        const QString polyline = ResolveObjectVariableName(data.Item(1).GetHandle(), data.Item(2).GetClass());
        if (isKnownWord && !polyline.isEmpty())
        {
            text = WriteFilletChamferOptions(polyline, isFillet);
        }
    }
    return ResultNormal;
}
