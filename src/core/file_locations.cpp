// Locations of the application's files, colours of its window.
#include "core/action_data.h"
#include "core/converter_impl.h"
#include "core/escape.h"
#include "objects/object_converter.h"

#include <span>

namespace
{

// A location as the application names it, and the property of the API.
struct Location
{
    const char* key;
    const char* property;
};

constexpr std::array InterfaceLocations = {
    Location{"eFileLocInterfaceAliasFileLoc", "AliasFilePath"},
    Location{"eFileLocInterfaceMenuFiles", "MenuFilesPath"},
    Location{"eFileLocInterfaceMainCUIFile", "CustomizationFilePath"},
    Location{"eFileLocInterfaceCustomIconLoc", "CustomIconPath"},
};

constexpr std::array SystemLocations = {
    Location{"eFileLocSystemCustomDictionaryFile", "CustomDictionaryFile"},
    Location{"eFileLocSystemMainDictionaryFile", "MainDictionaryFile"},
    Location{"eFileLocSystemHelpFileValue", "HelpFile"},
    Location{"eFileLocSystemLogFileLoc", "LogFilePath"},
    Location{"eFileLocSystemTemporaryFileLoc", "TempPath"},
    Location{"eFileLocSystemFontFileSearchPath", "FontsPaths"},
    Location{"eFileLocSystemSupportFilesPath", "SupportPaths"},
};

// "Supprt" is the application's spelling.
constexpr std::array DrawingSupportLocations = {
    Location{"eFileLocDrawingSupprtAltFontFileSHX", "AlternateShxFontFile"},
    Location{"eFileLocDrawingSupprtAltFontFileBIG", "AlternateBigFontFile"},
    Location{"eFileLocDrawingSupprtAltFontFileSHP", "AlternateShapeFile"},
    Location{"eFileLocDrawingSupprtDrawFilesLoc", "DrawingFilesPath"},
    Location{"eFileLocDrawingSupprtDWT", "DrawingTemplateFilesPath"},
    Location{"eFileLocDrawingSupprtXrefFilesLoc", "ExternalReferencesFilesPath"},
    Location{"eFileLocDrawingSupprtFontMapFile", "FontMappingFile"},
    Location{"eFileLocDrawingSupprtLibFilesLoc", "LibraryFilesPath"},
    Location{"eFileLocDrawingSupprtLineStyle", "LineStyleFilePath"},
    Location{"eFileLocDrawingSupprtPrintSettingsLoc", "PrintSettingsPath"},
    Location{"eFileLocDrawingSupprtRLineStyle", "RichLineStyleFilePath"},
};

// The property of the key in an action's first item; empty for an unknown key, whose text is written all the same.
QString PropertyOf(std::span<const Location> locations, const CZtCustomAction& action)
{
    const QString key = ActionData(action).Text(0).value_or(QString());
    const auto found =
        std::ranges::find_if(locations, [&](const Location& location)
                             { return key.compare(QLatin1String(location.key), Qt::CaseInsensitive) == 0; });
    return found != locations.end() ? QString(QLatin1String(found->property)) : QString();
}

} // namespace

ResultCode CZtConverterKVAPIImpl::ConvertInterfaceFileLocation(const CZtCustomAction& action, QString& text)
{
    return action.GetActionId() == 32 ? ConvertFileLocation(action, PropertyOf(InterfaceLocations, action),
                                                            &CZtConverterKVAPIImpl::WriteGetInterfaceFiles, text)
                                      : ResultError;
}

ResultCode CZtConverterKVAPIImpl::ConvertSystemFileLocation(const CZtCustomAction& action, QString& text)
{
    return action.GetActionId() == 33 ? ConvertFileLocation(action, PropertyOf(SystemLocations, action),
                                                            &CZtConverterKVAPIImpl::WriteGetSystemFiles, text)
                                      : ResultError;
}

ResultCode CZtConverterKVAPIImpl::ConvertDrawingSupportFileLocation(const CZtCustomAction& action, QString& text)
{
    return action.GetActionId() == 34 ? ConvertFileLocation(action, PropertyOf(DrawingSupportLocations, action),
                                                            &CZtConverterKVAPIImpl::WriteGetDrawingSupportFiles, text)
                                      : ResultError;
}

ResultCode CZtConverterKVAPIImpl::ConvertFileLocation(const CZtCustomAction& action, const QString& property,
                                                      FilesWriter writeHead, QString& text)
{
    const ActionData data(action);
    const std::optional<QString> path = data.Text(1);
    const bool isList = data.Is(1, CZtCustomActionData::kStringArray);
    if (!data.Is(0, CZtCustomActionData::kString) || (!path && !isList))
    {
        return ResultNormal;
    }
    QString variable;
    QString converted = WriteBlockBegin();
    converted += (this->*writeHead)(variable);
    if (path)
    {
        converted += ObjectConverter().WriteSetStringProperty(variable, property, EscapeForLanguage(*path), true);
    }
    else
    {
        QStringList paths;
        std::ranges::copy(data.Item(1).GetStringArray(), std::back_inserter(paths));
        converted += WriteStringArray(variable, property, paths);
    }
    converted += WriteBlockEnd();
    converted += QLatin1Char('\n');
    text = converted;
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertElementColor(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() < 19 || action.GetActionId() > 30)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<std::int32_t> element = data.Integer(0);
    const std::optional<OdCmColor> color = data.Color(1);
    if (element && color)
    {
        text += WriteSetElementColor(*color, *element);
    }
    return ResultNormal;
}

ResultCode CZtConverterKVAPIImpl::ConvertAttributeValue(const CZtCustomAction& action, QString& text)
{
    if (action.GetActionId() != 37)
    {
        return ResultError;
    }
    const ActionData data(action);
    const std::optional<QString> tag = data.Text(2);
    const std::optional<QString> value = data.Text(3);
    if (!data.IsObject(0) || !tag || !value)
    {
        return ResultNormal;
    }
    const QString variable = ResolveObjectVariableName(data.Item(0).GetHandle(), data.Item(1).GetClass());
    if (!variable.isEmpty())
    {
        // A layer is fetched into the same variable and the text dropped again, so that only the number of the layer
        // manager grows; the format's.
        static_cast<void>(WriteGetLayer(variable));
        text = ObjectConverter().WriteSetAttributeValue(variable, QStringLiteral("Value"), *tag, *value);
    }
    return ResultNormal;
}
