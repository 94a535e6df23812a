// Named views: made, changed and given a background.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/escape.h"
#include "core/named_view_action.h"
#include "host/kernel/services.h"
#include "objects/object_converter.h"

#include <cmath>

#include <QtCore/QCoreApplication>

namespace
{

// The texts of the dialog that stand for a kind of background and not for the name of one.
bool IsBackgroundName(const QString& text)
{
    static constexpr std::array kinds = {"<None>", "Solid...", "Gradient...", "Image..."};
    return !text.isEmpty() &&
           std::ranges::none_of(kinds, [&](const char* kind) { return text == QLatin1String(kind); });
}

bool IsAtOrigin(const OdGePoint3d& point)
{
    constexpr double tolerance = 1e-10;
    return std::hypot(point.x, point.y, point.z) <= tolerance;
}

bool IsCurrentView(const QString& name)
{
    return name.compare(QCoreApplication::translate("CZtDlgView", "Current"), Qt::CaseInsensitive) == 0;
}

} // namespace

std::optional<NamedViewAction> NamedViewAction::Read(const ActionData& data)
{
    if (!data.IsObject(0))
    {
        return std::nullopt;
    }
    const std::optional<bool> isSheetView = data.Flag(2);
    const std::optional<bool> exists = data.Flag(3);
    const std::optional<QString> background = data.Text(5);
    const std::optional<QString> name = data.Text(6);
    const std::optional<QString> viewClass = data.Text(7);
    const std::optional<OdGePoint3d> corner1 = data.Point(8);
    const std::optional<OdGePoint3d> corner2 = data.Point(9);
    if (!isSheetView || !exists || !background || !name || !viewClass || !corner1 || !corner2)
    {
        return std::nullopt;
    }
    return NamedViewAction{data.Item(0).GetHandle(),
                           data.Item(1).GetClass(),
                           *isSheetView,
                           *exists,
                           *background,
                           *name,
                           *viewClass,
                           *corner1,
                           *corner2};
}

// The background of a new view; nothing when the data isn't that of a background.
std::optional<QString> CZtConverterKVAPIImpl::SetBackground(const QString& variable, const ActionData& data)
{
    const std::optional<bool> solid = data.Flag(10);
    const std::optional<bool> gradient = data.Flag(11);
    const std::optional<bool> image = data.Flag(12);
    if (!solid || !gradient || !image)
    {
        return std::nullopt;
    }
    if (*solid)
    {
        const std::optional<OdCmColor> color = data.Color(13);
        return color ? std::optional(ObjectConverter().WriteSetSolidBackground(variable, *color)) : std::nullopt;
    }
    if (*gradient)
    {
        const std::optional<bool> flag = data.Flag(13);
        const std::optional<OdCmColor> top = data.Color(14);
        const std::optional<OdCmColor> bottom = data.Color(15);
        const std::optional<OdCmColor> middle = data.Color(16);
        const std::optional<double> angle = data.Real(17);
        if (!flag || !top || !bottom || !middle || !angle)
        {
            return std::nullopt;
        }
        return ObjectConverter().WriteSetGradientBackground(variable, *flag, *top, *middle, *bottom, *angle);
    }
    if (*image)
    {
        const std::optional<QString> file = data.Text(13);
        const std::optional<QString> mode = data.Text(14);
        const std::optional<double> a = data.Real(15);
        const std::optional<double> b = data.Real(16);
        const std::optional<double> c = data.Real(17);
        const std::optional<double> d = data.Real(18);
        if (!file || !mode || !a || !b || !c || !d)
        {
            return std::nullopt;
        }
        return ObjectConverter().WriteSetImageBackground(variable, EscapeForLanguage(*file), *mode, *a, *b, *c, *d);
    }
    return QString();
}

// The text of a view whose variable is known; nothing when the data is wrong.
std::optional<QString> CZtConverterKVAPIImpl::ConvertNamedView(const NamedViewAction& view, const QString& variable,
                                                               const ActionData& data)
{
    QString text;
    if (!view.exists)
    {
        text += ObjectConverter().WriteCreateNamedView(variable, view.name, view.viewClass, view.corner1, view.corner2,
                                                       view.isSheetView);
        const std::optional<QString> background = SetBackground(variable, data);
        if (!background)
        {
            return std::nullopt;
        }
        text += *background;
    }
    if (view.isSheetView && IsBackgroundName(view.background))
    {
        text += WriteRenameNamedView(view.exists ? view.background : variable, view.name, view.exists);
    }
    const QString target = view.exists ? view.name : variable;
    if (!IsCurrentView(view.name))
    {
        text += WriteSetNamedViewClass(target, view.viewClass, view.exists);
    }
    if (!IsAtOrigin(view.corner1) || !IsAtOrigin(view.corner2))
    {
        text += WriteSetNamedViewWindow(target, view.corner1, view.corner2, view.exists);
    }
    return text;
}

ResultCode CZtConverterKVAPIImpl::ConvertBackground(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 14)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<NamedViewAction> view = NamedViewAction::Read(data);
    if (!view || FindKnownObject(view->handle) == nullptr)
    {
        return ResultNormal;
    }
    QString variable;
    static_cast<void>(ObjectConverter().GetObjectByHandle(view->handle, view->objectClass, variable));
    if (const std::optional<QString> converted = ConvertNamedView(*view, variable, data);
        converted && !converted->isEmpty())
    {
        text = *converted;
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertBackgroundOptions(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 39)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<NamedViewAction> view = NamedViewAction::Read(data);
    if (!view)
    {
        return ResultNormal;
    }
    QString variable;
    if (FindKnownObject(view->handle) != nullptr)
    {
        static_cast<void>(ObjectConverter().GetObjectByHandle(view->handle, view->objectClass, variable));
        if (const std::optional<QString> converted = ConvertNamedView(*view, variable, data);
            converted && !converted->isEmpty())
        {
            text = *converted;
        }
        return ResultNormal;
    }
    if (view->exists || !RegisterOpenable(view->handle, view->objectClass, variable))
    {
        return ResultNormal;
    }
    // A block of its own, so that the view's variable outlives it.
    --counters_.IndentLevel;
    static_cast<void>(ObjectConverter().GetObjectByHandle(view->handle, view->objectClass, variable));
    QString converted = DeclareVariable(*FindKnownObject(view->handle));
    converted += WriteBlockBegin();
    const std::optional<QString> changes = ConvertNamedView(*view, variable, data);
    converted += changes.value_or(QString());
    converted += WriteBlockEnd();
    if (changes)
    {
        text = converted;
    }
    return ResultNormal;
}
