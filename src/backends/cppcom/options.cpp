// C++ COM texts of options; the logic stands in core/options.cpp.
// The options of the document stand in braces of their own, so that the locals of one don't clash with the next. The
// small differences of blanks between them are the format's.
#include "backends/cppcom/converter.h"

using kv::General;

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionBool(const QString& constant, bool value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionBool(%3, %4,&result);%2"
                     "%1}%2",
                     constant, FlagWord(value));
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionDouble(const QString& constant, double value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionDouble(%3, %4, &result);%2"
                     "%1}%2",
                     constant, General{value});
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionInt8(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionInt8(%3, %4, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionInt16(%3, %4,&result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionInt32(%3, %4, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionPoint2D(const QString& constant, const OdGePoint2d& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionPoint2D(%3, %4, %5, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionPoint3D(const QString& constant, const OdGePoint3d& value)
{
    return Statement(
        "%1{%2"
        "%1    kvSetCommandOptionResult_e result;%2"
        "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionPoint3D(%3, %4, %5, %6, &result);%2"
        "%1}%2",
        constant, value);
}

QString CZtConverterKVAPICPPCOM::WriteSetCommandOptionString(const QString& constant, const QString& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    pConnection->m_KvApp->GetActiveDocument()->SetCommandOptionString(%3, L\"%4\",&result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPPCOM::WriteSetApplicationOptionBool(const QString& constant, bool value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1IApplicationOptionsPtr kvApplicationOptions%5 = pConnection->m_KvApp->GetApplicationOptions();%2"
        "%1kvApplicationOptions%5->SetApplicationOptionBool( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPICPPCOM::WriteSetApplicationOptionDouble(const QString& constant, double value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1IApplicationOptionsPtr kvApplicationOptions%5 = pConnection->m_KvApp->GetApplicationOptions();%2"
        "%1kvApplicationOptions%5->SetApplicationOptionDouble( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPICPPCOM::WriteSetApplicationOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1IApplicationOptionsPtr kvApplicationOptions%5 = pConnection->m_KvApp->GetApplicationOptions();%2"
        "%1kvApplicationOptions%5->SetApplicationOptionInt16( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICPPCOM::WriteSetApplicationOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1IApplicationOptionsPtr kvApplicationOptions%5 = pConnection->m_KvApp->GetApplicationOptions();%2"
        "%1kvApplicationOptions%5->SetApplicationOptionInt32( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICPPCOM::WriteSetApplicationOptionString(const QString& constant, const QString& value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1IApplicationOptionsPtr kvApplicationOptions%5 = pConnection->m_KvApp->GetApplicationOptions();%2"
        "%1kvApplicationOptions%5->SetApplicationOptionString( %3, L\"%4\", &kvSetApplicationOptionResult%5 );%2",
        constant, value, NextLocalNumber());
}
