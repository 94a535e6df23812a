// C# texts of options; the logic stands in core/options.cpp.
#include "backends/csharp/converter.h"

using kv::General;

QString CZtConverterKVAPICSharp::WriteSetCommandOptionBool(const QString& constant, bool value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%5;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionBool("
                     "kvCommandOptionBool_e.%3, %4, out result%5);%2"
                     "%1}%2",
                     constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionDouble(const QString& constant, double value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%5;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionDouble("
                     "kvCommandOptionDouble_e.%3, %4, out result%5);%2"
                     "%1}%2",
                     constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionInt8(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%5;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionInt8("
                     "kvCommandOptionInt8_e.%3, %4, out result%5);%2"
                     "%1}%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%5;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionInt16("
                     "kvCommandOptionInt16_e.%3, %4, out result%5);%2"
                     "%1}%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%5;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionInt32("
                     "kvCommandOptionInt32_e.%3, %4, out result%5);%2"
                     "%1}%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionPoint2D(const QString& constant, const OdGePoint2d& value)
{
    // The small "d" of the two point enumerations is the API's.
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%6;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionPoint2D("
                     "kvCommandOptionPoint2d_e.%3, %4, %5, out result%6);%2"
                     "%1}%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionPoint3D(const QString& constant, const OdGePoint3d& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%7;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionPoint3D("
                     "kvCommandOptionPoint3d_e.%3, %4, %5, %6, out result%7);%2"
                     "%1}%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetCommandOptionString(const QString& constant, const QString& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result%5;%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionString("
                     "kvCommandOptionString_e.%3, \"%4\", out result%5);%2"
                     "%1}%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetApplicationOptionBool(const QString& constant, bool value)
{
    return Statement("%2"
                     "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
                     "%1ApplicationOptions kvApplicationOptions%5 = kvApp.GetApplicationOptions();%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionBool( "
                     "kvApplicationOptionBool_e.%3, %4, out kvSetApplicationOptionResult%5 );%2",
                     constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetApplicationOptionDouble(const QString& constant, double value)
{
    return Statement("%2"
                     "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
                     "%1ApplicationOptions kvApplicationOptions%5 = kvApp.GetApplicationOptions();%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionDouble( "
                     "kvApplicationOptionDouble_e.%3, %4, out kvSetApplicationOptionResult%5 );%2",
                     constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetApplicationOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%2"
                     "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
                     "%1ApplicationOptions kvApplicationOptions%5 = kvApp.GetApplicationOptions();%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionInt16( "
                     "kvApplicationOptionInt16_e.%3, %4, out kvSetApplicationOptionResult%5 );%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetApplicationOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%2"
                     "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
                     "%1ApplicationOptions kvApplicationOptions%5 = kvApp.GetApplicationOptions();%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionInt32( "
                     "kvApplicationOptionInt32_e.%3, %4, out kvSetApplicationOptionResult%5 );%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICSharp::WriteSetApplicationOptionString(const QString& constant, const QString& value)
{
    return Statement("%2"
                     "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
                     "%1ApplicationOptions kvApplicationOptions%5 = kvApp.GetApplicationOptions();%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionString( "
                     "kvApplicationOptionString_e.%3, \"%4\", out kvSetApplicationOptionResult%5 );%2",
                     constant, value, NextLocalNumber());
}
