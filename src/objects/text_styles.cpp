// Text styles and the shape files that stand among them.
#include "core/escape.h"
#include "host/db/text.h"
#include "objects/object_converter.h"
#include "objects/variant_readers.h"

namespace
{
// The journal doubles the backslashes of a font's path; the language gets it in its own way.
QString FontPath(QString path)
{
    return EscapeForLanguage(path.replace(QLatin1String("\\\\"), QLatin1String("\\")));
}

// Marks a name under which a style is searched but not created.
constexpr QLatin1String SearchMark("<tag>", 5);
} // namespace

QString CZtConverterKVAPIObject::CreateTextStyle(const Creation& creation)
{
    const auto& [properties, consumed, handle, variable] = creation;
    const auto record = Opened<OdDbTextStyleTableRecord>(handle);
    if (record && record->isShapeFile())
    {
        if (record->fileName().compare(QLatin1String("LTypeShp.shx"), Qt::CaseInsensitive) == 0)
        {
            return {};
        }
        --Counters().IndentLevel;
        QString text = WriteLoadShape(EscapeBackslashes(record->fileName()));
        ++Counters().IndentLevel;
        return text;
    }
    const QString name = TextOf(properties.TakeProperty("Name", &consumed));
    const bool isMarked = name.startsWith(SearchMark, Qt::CaseInsensitive);
    QString text = WriteCreateTextStyle(variable, isMarked ? name.mid(SearchMark.size()) : name, name);
    if (const CZtVariant font = properties.TakeProperty("Font", &consumed); !font.IsNull())
    {
        text += WriteSetStringProperty(variable, QStringLiteral("Font"), FontPath(TextOf(font)), true);
    }
    return text;
}

QString CZtConverterKVAPIObject::ConvertTextStyle(const PropertyPass& pass)
{
    PropertyList& properties = pass.properties;
    QString text;
    if (const CZtVariant name = properties.TakeProperty("Name"); !name.IsNull() && !pass.created)
    {
        if (!TextOf(name).startsWith(SearchMark, Qt::CaseInsensitive))
        {
            text += WriteRenameStyle(pass.variable, TextOf(name), true);
        }
    }
    if (const CZtVariant font = properties.TakeProperty("Font"); !font.IsNull() && !pass.created)
    {
        text += WriteSetStringProperty(pass.variable, QStringLiteral("Font"), FontPath(TextOf(font)), true);
    }
    for (const char* name : {"Angle", "Height", "Spacing"})
    {
        if (const CZtVariant value = properties.TakeProperty(name); !value.IsNull())
        {
            text += WriteSetDoubleProperty(pass.variable, QLatin1String(name), value.GetDouble());
        }
    }
    for (const auto& [name, word] : {std::pair("Backwards", "Backwards"), std::pair("Upside down", "UpsideDown"),
                                     std::pair("Vertical", "Vertical")})
    {
        if (const CZtVariant value = properties.TakeProperty(name); !value.IsNull())
        {
            text += WriteSetBoolProperty(pass.variable, QLatin1String(word),
                                         IsWord(words_, value, "Yes", Qt::CaseInsensitive));
        }
    }
    if (const CZtVariant font = properties.TakeProperty("BigFont"); !font.IsNull())
    {
        text += WriteSetStringProperty(pass.variable, QStringLiteral("BigFont"), TextOf(font), true);
    }
    return text;
}
