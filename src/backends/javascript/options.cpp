// JavaScript texts of options; the logic stands in core/options.cpp.
#include "backends/javascript/converter.h"

using kv::General;

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionBool(const QString& constant, bool value)
{
    return Statement("%1mDoc.SetCommandOptionBool(\"%3\", %4);%2", constant, FlagWord(value));
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionDouble(const QString& constant, double value)
{
    return Statement("%1mDoc.SetCommandOptionDouble(\"%3\", %4);%2", constant, General{value});
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionInt8(const QString& constant, std::int32_t value)
{
    return Statement("%1mDoc.SetCommandOptionInt8(\"%3\", %4);%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%1mDoc.SetCommandOptionInt16(\"%3\", %4);%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%1mDoc.SetCommandOptionInt32(\"%3\", %4);%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionPoint2D(const QString& constant, const OdGePoint2d& value)
{
    return Statement("%1mDoc.SetCommandOptionPoint2D(\"%3\", %4, %5);%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionPoint3D(const QString& constant, const OdGePoint3d& value)
{
    return Statement("%1mDoc.SetCommandOptionPoint3D(\"%3\", %4, %5, %6);%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetCommandOptionString(const QString& constant, const QString& value)
{
    return Statement("%1mDoc.SetCommandOptionString(\"%3\", \"%4\");%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetApplicationOptionBool(const QString& constant, bool value)
{
    return Statement("%1mApp.GetApplicationOptions().SetApplicationOptionBool(\"%3\", %4);%2%2", constant,
                     FlagWord(value));
}

QString CZtConverterKVAPIJavaScript::WriteSetApplicationOptionDouble(const QString& constant, double value)
{
    return Statement("%1mApp.GetApplicationOptions().SetApplicationOptionDouble(\"%3\", %4);%2%2", constant,
                     General{value});
}

QString CZtConverterKVAPIJavaScript::WriteSetApplicationOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%1mApp.GetApplicationOptions().SetApplicationOptionInt16(\"%3\", %4);%2%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetApplicationOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%1mApp.GetApplicationOptions().SetApplicationOptionInt32(\"%3\", %4);%2%2", constant, value);
}

QString CZtConverterKVAPIJavaScript::WriteSetApplicationOptionString(const QString& constant, const QString& value)
{
    return Statement("%1mApp.GetApplicationOptions().SetApplicationOptionString(\"%3\", \"%4\");%2%2", constant, value);
}
