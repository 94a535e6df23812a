// VBA texts of options; the logic stands in core/options.cpp.
// The results are named by type, since a name can be declared once in the procedure. The blanks that differ between the
// options are the format's.
#include "backends/vba/converter.h"

using kv::General;

QString CZtConverterKVAPIVba::WriteSetCommandOptionBool(const QString& constant, bool value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1Dim resultBool%5 As Morvane.kvSetCommandOptionResult_e %2"
        "%1kvApp.GetActiveDocument().SetCommandOptionBool Morvane.kvCommandOptionBool_e.%3, %4, resultBool%5%2"
        "%1End If%2",
        constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionDouble(const QString& constant, double value)
{
    return Statement("%1If 1 Then%2"
                     "%1    Dim resultDouble%5 As Morvane.kvSetCommandOptionResult_e %2"
                     "%1    kvApp.GetActiveDocument().SetCommandOptionDouble Morvane.kvCommandOptionDouble_e.%3, %4, "
                     "resultDouble%5%2"
                     "%1End If%2",
                     constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionInt8(const QString& constant, std::int32_t value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1Dim resultInt8%5 As Morvane.kvSetCommandOptionResult_e %2"
        "%1kvApp.GetActiveDocument().SetCommandOptionInt8 Morvane.kvCommandOptionInt8_e.%3, %4,resultInt8%5%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1Dim resultInt16%5 As Morvane.kvSetCommandOptionResult_e %2"
        "%1kvApp.GetActiveDocument().SetCommandOptionInt16 Morvane.kvCommandOptionInt16_e.%3, %4, resultInt16%5%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1Dim resultInt32%5 As Morvane.kvSetCommandOptionResult_e %2"
        "%1kvApp.GetActiveDocument().SetCommandOptionInt32 Morvane.kvCommandOptionInt32_e.%3, %4, resultInt32%5%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionPoint2D(const QString& constant, const OdGePoint2d& value)
{
    return Statement("%1If 1 Then%2"
                     "%1Dim resultPoint2D%6 As Morvane.kvSetCommandOptionResult_e %2"
                     "%1kvApp.GetActiveDocument().SetCommandOptionPoint2D Morvane.kvCommandOptionPoint2d_e.%3, %4, %5, "
                     "resultPoint2D%6%2"
                     "%1End If%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionPoint3D(const QString& constant, const OdGePoint3d& value)
{
    return Statement(
        "%1If 1 Then%2"
        "%1Dim resultPoint3D%7 As Morvane.kvSetCommandOptionResult_e %2"
        "%1kvApp.GetActiveDocument().SetCommandOptionPoint3D Morvane.kvCommandOptionPoint3d_e.%3, %4, %5, %6, "
        "resultPoint3D%7%2"
        "%1End If%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetCommandOptionString(const QString& constant, const QString& value)
{
    return Statement("%1If 1 Then%2"
                     "%1Dim resultString%5 As Morvane.kvSetCommandOptionResult_e %2"
                     "%1kvApp.GetActiveDocument().SetCommandOptionString Morvane.kvCommandOptionString_e.%3, \"%4\", "
                     "resultString%5%2"
                     "%1End If%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetApplicationOptionBool(const QString& constant, bool value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions%2"
                     "%1Set kvApplicationOptions%5 = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionBool Morvane.kvApplicationOptionBool_e.%3, %4, "
                     "kvSetApplicationOptionResult%5%2",
                     constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetApplicationOptionDouble(const QString& constant, double value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions%2"
                     "%1Set kvApplicationOptions%5 = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionDouble Morvane.kvApplicationOptionDouble_e.%3, %4, "
                     "kvSetApplicationOptionResult%5%2",
                     constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetApplicationOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions%2"
                     "%1Set kvApplicationOptions%5 = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionInt16 Morvane.kvApplicationOptionInt16_e.%3, %4, "
                     "kvSetApplicationOptionResult%5%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetApplicationOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%2"
                     "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
                     "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions%2"
                     "%1Set kvApplicationOptions%5 = kvApp.GetApplicationOptions()%2"
                     "%1kvApplicationOptions%5.SetApplicationOptionInt32 Morvane.kvApplicationOptionInt32_e.%3, %4, "
                     "kvSetApplicationOptionResult%5%2",
                     constant, value, NextLocalNumber());
}

QString CZtConverterKVAPIVba::WriteSetApplicationOptionString(const QString& constant, const QString& value)
{
    return Statement(
        "%2"
        "%1Dim kvSetApplicationOptionResult%5 As Morvane.kvSetApplicationOptionResult_e%2"
        "%1Dim kvApplicationOptions%5 As Morvane.ApplicationOptions%2"
        "%1Set kvApplicationOptions%5 = kvApp.GetApplicationOptions()%2"
        "%1kvApplicationOptions%5.SetApplicationOptionString Morvane.kvApplicationOptionString_e.%3, \"%4\", "
        "kvSetApplicationOptionResult%5%2",
        constant, value, NextLocalNumber());
}
