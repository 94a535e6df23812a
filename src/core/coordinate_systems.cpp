// Custom coordinate systems.
#include "core/action_data.h"
#include "core/converter_impl.h"

#include <QtCore/QHash>

ResultCode CZtConverterKVAPIImpl::ConvertCCS(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 12)
    {
        return ResultError;
    }
    const ActionData data(action);
    QString converted;
    switch (data.Count())
    {
    case 1:
        converted = SwitchCCS(data);
        break;
    case 2:
        converted = NameOrTurnCCS(data);
        break;
    case 3:
        if (const std::optional<OdGePoint3d> point = data.Point(2); point && data.IsObject(0))
        {
            const QString entity = ResolveObjectVariableName(data.Item(0).GetHandle(), data.Item(1).GetClass());
            converted = WriteAlignCCSByEntity(entity, *point);
        }
        break;
    case 4:
        converted = PlaceCCS(data);
        break;
    default:
        break;
    }
    if (!converted.isEmpty())
    {
        text = converted;
    }
    return ResultNormal;
}

// One item: a system that needs no more than its word, or a new origin.
QString CZtConverterKVAPIImpl::SwitchCCS(const ActionData& data)
{
    if (const std::optional<OdGePoint3d> origin = data.Point(0))
    {
        return WriteSetCCSOrigin(*origin);
    }
    const QString word = data.Text(0).value_or(QString());
    if (word == QLatin1String("Previous"))
    {
        return WritePreviousCCS();
    }
    if (word == QLatin1String("World"))
    {
        return WriteWorldCCS();
    }
    if (word == QLatin1String("View"))
    {
        return WriteAlignCCSByView();
    }
    static const QHash<QString, QString> defaults = {
        {QStringLiteral("Top"),
         QStringLiteral("kvDefaultCustomCoordinateSystem_e.kvDefaultCustomCoordinateSystem_Top")},
        {QStringLiteral("Bottom"),
         QStringLiteral("kvDefaultCustomCoordinateSystem_e.kvDefaultCustomCoordinateSystem_Bottom")},
        {QStringLiteral("Left"),
         QStringLiteral("kvDefaultCustomCoordinateSystem_e.kvDefaultCustomCoordinateSystem_Left")},
        {QStringLiteral("Right"),
         QStringLiteral("kvDefaultCustomCoordinateSystem_e.kvDefaultCustomCoordinateSystem_Right")},
        {QStringLiteral("Front"),
         QStringLiteral("kvDefaultCustomCoordinateSystem_e.kvDefaultCustomCoordinateSystem_Front")},
        {QStringLiteral("Back"),
         QStringLiteral("kvDefaultCustomCoordinateSystem_e.kvDefaultCustomCoordinateSystem_Back")},
    };
    const auto found = defaults.find(word);
    return found != defaults.end() ? WriteDefaultCCS(*found) : QString();
}

// Two items: a word with a name, or an origin with where the Z axis goes.
QString CZtConverterKVAPIImpl::NameOrTurnCCS(const ActionData& data)
{
    const std::optional<QString> word = data.Text(0);
    const std::optional<QString> name = data.Text(1);
    if (word && name)
    {
        if (*word == QLatin1String("Delete"))
        {
            return WriteRemoveCCS(*name);
        }
        if (*word == QLatin1String("NamedSave"))
        {
            return WriteSaveCCS(*name);
        }
        return *word == QLatin1String("NamedRestore") ? WriteRestoreCCS(*name) : QString();
    }
    const std::optional<OdGePoint3d> origin = data.Point(0);
    const std::optional<OdGePoint3d> point = data.Point(1);
    const std::optional<OdGeVector3d> vector = data.Vector(1);
    if (origin && point)
    {
        return WriteAlignCCSZAxis(*origin, *origin + OdGeVector3d{point->x, point->y, point->z});
    }
    return origin && vector ? WriteAlignCCSZAxis(*origin, *origin + *vector) : QString();
}

// Four items: a system given by three points.
QString CZtConverterKVAPIImpl::PlaceCCS(const ActionData& data)
{
    static constexpr std::array words = {"3POINT", "X", "Y", "Z", "ZAXIS"};
    const std::optional<QString> word = data.Text(0);
    const std::optional<OdGePoint3d> origin = data.Point(1);
    const std::optional<OdGePoint3d> xPoint = data.Point(2);
    const std::optional<OdGePoint3d> yPoint = data.Point(3);
    const bool isKnown =
        word && std::ranges::any_of(words, [&](const char* known)
                                    { return word->compare(QLatin1String(known), Qt::CaseInsensitive) == 0; });
    return isKnown && origin && xPoint && yPoint ? WriteCreateCCSFromPoints(*origin, *xPoint, *yPoint) : QString();
}
