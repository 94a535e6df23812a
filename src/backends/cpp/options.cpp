// C++ API texts of options; the logic stands in core/options.cpp.
// The options of the document stand in braces of their own, so that the locals of one don't clash with the next. The
// small differences of blanks between them are the format's.
#include "backends/cpp/converter.h"

using kv::General;

QString CZtConverterKVAPICPP::WriteSetCommandOptionBool(const QString& constant, bool value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionBool(%3, %4,&result);%2"
                     "%1}%2",
                     constant, FlagWord(value));
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionDouble(const QString& constant, double value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionDouble(%3, %4, &result);%2"
                     "%1}%2",
                     constant, General{value});
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionInt8(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionInt8(%3, %4, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionInt16(%3, %4,&result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionInt32(%3, %4, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionPoint2D(const QString& constant, const OdGePoint2d& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionPoint2D(%3, %4, %5, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionPoint3D(const QString& constant, const OdGePoint3d& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionPoint3D(%3, %4, %5, %6, &result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPP::WriteSetCommandOptionString(const QString& constant, const QString& value)
{
    return Statement("%1{%2"
                     "%1    kvSetCommandOptionResult_e result;%2"
                     "%1    kvDocument_c* kvDoc;%2"
                     "%1    m_pKvApp->GetActiveDocument(&kvDoc);%2"
                     "%1    kvDoc->SetCommandOptionString(%3, L\"%4\",&result);%2"
                     "%1}%2",
                     constant, value);
}

QString CZtConverterKVAPICPP::WriteSetApplicationOptionBool(const QString& constant, bool value)
{
    return Statement("%2"
                     "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
                     "%1kvApplicationOptions_ptr kvApplicationOptions%5;%2"
                     "%1m_pKvApp->GetApplicationOptions( &kvApplicationOptions%5 );%2"
                     "%1kvApplicationOptions%5->SetApplicationOptionBool( %3, %4, &kvSetApplicationOptionResult%5 );%2",
                     constant, FlagWord(value), NextLocalNumber());
}

QString CZtConverterKVAPICPP::WriteSetApplicationOptionDouble(const QString& constant, double value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1kvApplicationOptions_ptr kvApplicationOptions%5;%2"
        "%1m_pKvApp->GetApplicationOptions( &kvApplicationOptions%5 );%2"
        "%1kvApplicationOptions%5->SetApplicationOptionDouble( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, General{value}, NextLocalNumber());
}

QString CZtConverterKVAPICPP::WriteSetApplicationOptionInt16(const QString& constant, std::int32_t value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1kvApplicationOptions_ptr kvApplicationOptions%5;%2"
        "%1m_pKvApp->GetApplicationOptions( &kvApplicationOptions%5 );%2"
        "%1kvApplicationOptions%5->SetApplicationOptionInt16( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICPP::WriteSetApplicationOptionInt32(const QString& constant, std::int32_t value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1kvApplicationOptions_ptr kvApplicationOptions%5;%2"
        "%1m_pKvApp->GetApplicationOptions( &kvApplicationOptions%5 );%2"
        "%1kvApplicationOptions%5->SetApplicationOptionInt32( %3, %4, &kvSetApplicationOptionResult%5 );%2",
        constant, value, NextLocalNumber());
}

QString CZtConverterKVAPICPP::WriteSetApplicationOptionString(const QString& constant, const QString& value)
{
    return Statement(
        "%2"
        "%1kvSetApplicationOptionResult_e kvSetApplicationOptionResult%5;%2"
        "%1kvApplicationOptions_ptr kvApplicationOptions%5;%2"
        "%1m_pKvApp->GetApplicationOptions( &kvApplicationOptions%5 );%2"
        "%1kvApplicationOptions%5->SetApplicationOptionString( %3, L\"%4\", &kvSetApplicationOptionResult%5 );%2",
        constant, value, NextLocalNumber());
}
