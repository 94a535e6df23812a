// Settings of dimensions and of their styles, each with its own way to the option object: what is read anew every time
// doesn't depend on what stands between two settings.
#include "objects/dimension_settings.h"

#include "objects/object_converter.h"
#include "objects/variant_readers.h"

QString CZtConverterKVAPIObject::NextLocal(const char* stem)
{
    return QLatin1String(stem) + QString::number(++Counters().LocalNameSequence);
}

QString CZtConverterKVAPIObject::OpenGeneralDimension(const QString& dimension, QString& general)
{
    general = NextLocal("generalDimension");
    return WriteGetDimensionOptions(general, dimension, QStringLiteral("GeneralDimension"));
}

QString CZtConverterKVAPIObject::OpenOptions(const QString& root, DimensionRoot kind, const DimensionOptions& options,
                                             QString& local)
{
    QString text;
    QString owner = root;
    if (kind == DimensionRoot::Dimension)
    {
        text += OpenGeneralDimension(root, owner);
    }
    if (options.typeName == nullptr)
    {
        local = owner;
        return text;
    }
    if (kind != DimensionRoot::Style)
    {
        const QString style = NextLocal("dimensionStyle");
        text += WriteGetDimensionOptions(style, owner, QStringLiteral("DimensionStyleUserData"));
        owner = style;
    }
    local = NextLocal(options.stem);
    text += WriteGetDimensionOptions(local, owner, QLatin1String(options.typeName));
    return text;
}

bool CZtConverterKVAPIObject::IsSet(const CZtVariant& value, DimensionRoot kind) const
{
    const bool isChosen = value.GetType() == CZtVariant::kCollection || value.GetType() == CZtVariant::kElement;
    if (kind != DimensionRoot::Style || isChosen)
    {
        return TagOf(value) == 1;
    }
    return value.GetType() == CZtVariant::kText ? IsWord(words_, value, "Yes") : value.GetInt32() != 0;
}

QString CZtConverterKVAPIObject::WriteSetting(const QString& variable, DimensionRoot kind,
                                              const DimensionSetting& setting, const CZtVariant& value)
{
    const QLatin1String word(setting.word);
    switch (setting.form)
    {
    case DimensionForm::Number:
        return WriteSetDoubleProperty(variable, word, value.GetDouble());
    case DimensionForm::Text:
        return WriteSetStringProperty(variable, word, value.GetString(), true);
    case DimensionForm::ElementText:
        return WriteSetStringProperty(variable, word, TextOf(value), true);
    case DimensionForm::Flag:
        return WriteSetBoolProperty(variable, word, IsSet(value, kind));
    case DimensionForm::ReversedFlag:
        return WriteSetBoolProperty(variable, word, TagOf(value) == 0);
    case DimensionForm::Constant:
        return WriteSetEnumByNumber(variable, setting.kind, word, TagOf(value));
    case DimensionForm::PlainConstant:
        return WriteSetEnumByNumber(variable, setting.kind, word, value.GetInt32());
    case DimensionForm::ConstantByWord:
        return WriteSetEnumProperty(variable, setting.kind, word, TextOf(value));
    case DimensionForm::Color:
        return WriteSetColorProperty(variable, word, value.GetColor());
    case DimensionForm::LineWeight:
        return WriteSetLineWeightProperty(variable, word, value.GetInt32());
    case DimensionForm::LineStyle:
        return SetLineStyle(variable, word, value.GetId());
    }
    return {};
}

QString CZtConverterKVAPIObject::ChangeSettings(const PropertyPass& pass, DimensionRoot kind,
                                                const DimensionOptions& options,
                                                std::initializer_list<DimensionSetting> settings)
{
    QString text;
    for (const DimensionSetting& setting : settings)
    {
        if (const CZtVariant value = pass.properties.TakeProperty(setting.label); !value.IsNull())
        {
            QString local;
            const QString way = OpenOptions(pass.variable, kind, options, local);
            text += way;
            text += WriteSetting(local, kind, setting, value);
        }
    }
    return text;
}

QString CZtConverterKVAPIObject::ChangeSetting(const PropertyPass& pass, DimensionRoot kind,
                                               const DimensionOptions& options, const char* label,
                                               const SettingWriter& write)
{
    const CZtVariant value = pass.properties.TakeProperty(label);
    if (value.IsNull())
    {
        return {};
    }
    QString local;
    const QString way = OpenOptions(pass.variable, kind, options, local);
    return way + write(local, value);
}
