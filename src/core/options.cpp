// Options of the document and of the application, set by system variables or by a dialog.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/escape.h"
#include "core/option_tables.h"

namespace
{
ResultCode FindOption(const kv::Option* option, QString& constant, int& kind)
{
    constant = option != nullptr ? option->constant : QString();
    kind = option != nullptr ? static_cast<int>(option->kind) : -1;
    return option != nullptr ? ResultNormal : ResultError;
}

// The colour of new entities is the one variable of this width that is recorded as text.
std::int32_t Int16Of(const QString& variable, const OdResBuf& value)
{
    const bool isColor = variable.compare(QLatin1String("CECOLOR"), Qt::CaseInsensitive) == 0;
    return isColor ? value.getString().toInt() : value.getInt16();
}
} // namespace

ResultCode CZtConverterKVAPIImpl::FindCommandOption(const QString& variable, QString& constant, int& kind)
{
    return FindOption(kv::FindCommandOptionRow(variable), constant, kind);
}

ResultCode CZtConverterKVAPIImpl::FindApplicationOption(const QString& variable, QString& constant, int& kind)
{
    return FindOption(kv::FindApplicationOptionRow(variable), constant, kind);
}

ResultCode CZtConverterKVAPIImpl::ConvertSysVarChanged(const CZtSysVarChanged& event, QString& text)
{
    OdResBufPtr value;
    event.GetVariableValue(value);
    if (!value)
    {
        return ResultNormal;
    }
    const QString& variable = event.GetVariableName();
    if (const kv::Option* option = kv::FindCommandOptionRow(variable))
    {
        return SetCommandOption(variable, *option, *value, text);
    }
    const kv::Option* option = kv::FindApplicationOptionRow(variable);
    return option != nullptr ? SetApplicationOption(*option, *value, text) : ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::SetCommandOption(const QString& variable, const kv::Option& option,
                                                   const OdResBuf& value, QString& text)
{
    switch (option.kind)
    {
    case kv::OptionKind::Bool:
        text = WriteSetCommandOptionBool(option.constant, value.getBool());
        return ResultNormal;
    case kv::OptionKind::Double:
        text = WriteSetCommandOptionDouble(option.constant, value.getDouble());
        return ResultNormal;
    case kv::OptionKind::Int8:
        text = WriteSetCommandOptionInt8(option.constant, value.getInt8());
        return ResultNormal;
    case kv::OptionKind::Int16:
        text = WriteSetCommandOptionInt16(option.constant, Int16Of(variable, value));
        return ResultNormal;
    case kv::OptionKind::Int32:
        text = WriteSetCommandOptionInt32(option.constant, value.getInt32());
        return ResultNormal;
    case kv::OptionKind::Point2d:
        text = WriteSetCommandOptionPoint2D(option.constant, value.getPoint2d());
        return ResultNormal;
    case kv::OptionKind::Point3d:
        text = WriteSetCommandOptionPoint3D(option.constant, value.getPoint3d());
        return ResultNormal;
    case kv::OptionKind::String:
        text = WriteSetCommandOptionString(option.constant, value.getString());
        return ResultNormal;
    }
    return ResultError;
}

ResultCode CZtConverterKVAPIImpl::SetApplicationOption(const kv::Option& option, const OdResBuf& value, QString& text)
{
    switch (option.kind)
    {
    case kv::OptionKind::Bool:
        text += WriteSetApplicationOptionBool(option.constant, value.getBool());
        return ResultNormal;
    case kv::OptionKind::Double:
        text += WriteSetApplicationOptionDouble(option.constant, value.getDouble());
        return ResultNormal;
    case kv::OptionKind::Int16:
        text += WriteSetApplicationOptionInt16(option.constant, value.getInt16());
        return ResultNormal;
    case kv::OptionKind::Int32:
        text += WriteSetApplicationOptionInt32(option.constant, value.getInt32());
        return ResultNormal;
    case kv::OptionKind::String:
        text += WriteSetApplicationOptionString(option.constant, value.getString());
        return ResultNormal;
    default:
        return ResultError;
    }
}

// An option of a dialog. Unlike a system variable's, its name can stand for an option of the document and for one of
// the application at once.
ResultCode CZtConverterKVAPIImpl::ConvertOption(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 31)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> variable = data.Text(0);
    if (!variable)
    {
        return ResultNormal;
    }
    QString converted = text;
    if (const kv::Option* option = kv::FindCommandOptionRow(*variable))
    {
        const std::optional<std::int32_t> integer = data.Integer(1);
        const std::optional<OdGePoint3d> point = data.Point(1);
        const std::optional<QString> string = data.Text(1);
        switch (option->kind)
        {
        case kv::OptionKind::Int16:
            if (!integer)
            {
                return ResultNormal;
            }
            converted = WriteSetCommandOptionInt16(option->constant, *integer);
            break;
        case kv::OptionKind::Point3d:
            if (!point)
            {
                return ResultNormal;
            }
            converted = WriteSetCommandOptionPoint3D(option->constant, *point);
            break;
        case kv::OptionKind::String:
            if (!string)
            {
                return ResultNormal;
            }
            converted = WriteSetCommandOptionString(option->constant, EscapeForLanguage(*string));
            break;
        default:
            return ResultError;
        }
    }
    if (const kv::Option* option = kv::FindApplicationOptionRow(*variable))
    {
        const std::optional<std::int32_t> integer = data.Integer(1);
        const std::optional<QString> string = data.Text(1);
        switch (option->kind)
        {
        case kv::OptionKind::Int16:
            if (!integer)
            {
                return ResultNormal;
            }
            converted += WriteSetApplicationOptionInt16(option->constant, *integer);
            break;
        case kv::OptionKind::String:
            if (!string)
            {
                return ResultNormal;
            }
            converted += WriteSetApplicationOptionString(option->constant, EscapeForLanguage(*string));
            break;
        default:
            return ResultError;
        }
    }
    text = converted;
    return ResultNormal;
}
