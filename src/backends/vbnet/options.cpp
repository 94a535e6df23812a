// VB.NET texts of options; the logic stands in core/options.cpp.
#include "backends/vbnet/converter.h"

using kv::General;

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionBool(const QString& constant, bool value)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim result%5 As Morvane.kvSetCommandOptionResult_e%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionBool(Morvane.kvCommandOptionBool_e.%3, %4, "
                     "result%5)%2"
                     "%1End If%2",
                     constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionDouble(const QString& constant, double value)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim result%5 As Morvane.kvSetCommandOptionResult_e%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionDouble(Morvane.kvCommandOptionDouble_e.%3, %4, "
                     "result%5)%2"
                     "%1End If%2",
                     constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionInt8(const QString& constant, std::int32_t value)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim result%5 As Morvane.kvSetCommandOptionResult_e%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionInt8(Morvane.kvCommandOptionInt8_e.%3, %4, "
                     "result%5)%2"
                     "%1End If%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim result%5 As Morvane.kvSetCommandOptionResult_e%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionInt16(Morvane.kvCommandOptionInt16_e.%3, %4, "
                     "result%5)%2"
                     "%1End If%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim result%5 As Morvane.kvSetCommandOptionResult_e%2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionInt32(Morvane.kvCommandOptionInt32_e.%3, %4, "
                     "result%5)%2"
                     "%1End If%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionPoint2D(const QString& constant, const OdGePoint2d& value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1    Dim result%6 As Morvane.kvSetCommandOptionResult_e%2"
        "%1    kvApp.GetActiveDocument().SetCommandOptionPoint2D(Morvane.kvCommandOptionPoint2d_e.%3, %4, %5, "
        "result%6)%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionPoint3D(const QString& constant, const OdGePoint3d& value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1    Dim result%7 As Morvane.kvSetCommandOptionResult_e%2"
        "%1    kvApp.GetActiveDocument().SetCommandOptionPoint3D(Morvane.kvCommandOptionPoint3d_e.%3, %4, %5, %6, "
        "result%7)%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetCommandOptionString(const QString& constant, const QString& value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1    Dim result%5 As Morvane.kvSetCommandOptionResult_e%2"
        "%1    kvApp.GetActiveDocument().SetCommandOptionString(Morvane.kvCommandOptionString_e.%3, \"%4\", "
        "result%5)%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetApplicationOptionBool(const QString& constant, bool value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionBool( Morvane.kvApplicationOptionBool_e.%3, %4, "
                     "kvSetApplicationOptionResult%5 )%2",
                     constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetApplicationOptionDouble(const QString& constant, double value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionDouble( Morvane.kvApplicationOptionDouble_e.%3, %4, "
                     "kvSetApplicationOptionResult%5 )%2",
                     constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetApplicationOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionInt16( Morvane.kvApplicationOptionInt16_e.%3, %4, "
                     "kvSetApplicationOptionResult%5 )%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetApplicationOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionInt32( Morvane.kvApplicationOptionInt32_e.%3, %4, "
                     "kvSetApplicationOptionResult%5 )%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVbNet::WriteSetApplicationOptionString(const QString& constant, const QString& value)
{
    return Statement(
        "%2"
        "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
        "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions = kvApp.GetApplicationOptions()%2"
        "%1kvApplicationOptions%5.SetApplicationOptionString( Morvane.kvApplicationOptionString_e.%3, \"%4\", "
        "kvSetApplicationOptionResult%5 )%2",
        constant, value, NextLocalNumber());
}
